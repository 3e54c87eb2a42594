#include "game/board.hpp"

#include <gtest/gtest.h>

namespace lexigrove
{
namespace
{

/// Guards against tiles out of place, and lists that name a tile which does not touch on the screen.
TEST(Board, NeighboursAreTheCellsThatTouch)
{
    for (const bool square : {true, false}) {
        Board board;
        board.layOut(square ? Arrangement::Square : Arrangement::Staggered);
        EXPECT_EQ(board.tile(1).Top(), square ? 750 : 750 + 300);
        EXPECT_EQ(board.tile(64).Left(), 75 + 7 * 600);
        for (int a = 1; a <= Board::tileCount; ++a) {
            EXPECT_EQ(board.isVisible(a), square || a % 16 != 8) << a;
            for (int b = 1; b <= Board::tileCount; ++b) {
                const int across = std::abs(Board::col(a) - Board::col(b)) * layout::cellSize;
                const int down = std::abs(board.tile(a).Top() - board.tile(b).Top());
                const bool touch = a != b && board.isVisible(a) && board.isVisible(b) && across <= layout::cellSize &&
                                   down <= (square || across == 0 ? layout::cellSize : layout::cellSize / 2);
                EXPECT_EQ(board.neighbours(a).contains(b), touch) << a << " and " << b << (square ? "" : " staggered");
            }
        }
    }
}

} // namespace
} // namespace lexigrove
