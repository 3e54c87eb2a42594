#include "game/board.hpp"

#include <gtest/gtest.h>

namespace lexigrove
{
namespace
{

/// Guards against a slip in the tables: the order of a list decides which of two equal paths is found first.
TEST(Board, NeighbourListsStandAsTabled)
{
    const std::vector<const char*> square{"1 2,9,10,",    "8 7,15,16,",      "57 58,50,49,",
                                          "64 63,56,55,", "9 10,2,1,17,18,", "28 27,29,21,35,20,36,19,37,"};
    const std::vector<const char*> staggered{"1 2,10,9,",          "2 3,1,10,11,",    "7 15,16,6,", "9 1,17,10,",
                                             "10 9,11,1,2,17,18,", "16 15,7,23,",     "24 ",        "57 58,49,",
                                             "23 22,16,15,31,32,", "60 61,59,51,52,", "64 63,55,"};
    Board board;
    for (const Arrangement arrangement : {Arrangement::Square, Arrangement::Staggered}) {
        board.layOut(arrangement);
        for (const std::string list : arrangement == Arrangement::Square ? square : staggered)
            EXPECT_EQ(list.substr(0, list.find(' ') + 1) + board.Neibors(std::stoi(list)), list);
    }
}

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
