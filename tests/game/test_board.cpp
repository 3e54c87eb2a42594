#include "game/board.hpp"

#include <gtest/gtest.h>

namespace lexigrove
{
namespace
{

struct Expected {
    int tile;
    const char* Neibors;
};

/// Guards against a slip in the tables: the order of a list decides which of two equal paths is found first.
TEST(Board, NeighbourListsStandAsTabled)
{
    Board board;
    board.layOut(Arrangement::Square);
    for (const auto& [tile, list] :
         {Expected{1, "2,9,10,"}, Expected{8, "7,15,16,"}, Expected{57, "58,50,49,"}, Expected{64, "63,56,55,"},
          Expected{9, "10,2,1,17,18,"}, Expected{28, "27,29,21,35,20,36,19,37,"}})
        EXPECT_EQ(board.Neibors(tile), list) << tile;

    board.layOut(Arrangement::Staggered);
    for (const auto& [tile, list] :
         {Expected{1, "2,10,9,"}, Expected{2, "3,1,10,11,"}, Expected{7, "15,16,6,"}, Expected{9, "1,17,10,"},
          Expected{10, "9,11,1,2,17,18,"}, Expected{16, "15,7,23,"}, Expected{23, "22,16,15,31,32,"},
          Expected{57, "58,49,"}, Expected{60, "61,59,51,52,"}, Expected{64, "63,55,"}, Expected{24, ""}})
        EXPECT_EQ(board.Neibors(tile), list) << tile;
}

/// Guards against lists that name a tile which does not touch: neighbours touch on the screen, in both directions.
TEST(Board, NeighboursAreTheCellsThatTouch)
{
    for (const Arrangement arrangement : {Arrangement::Square, Arrangement::Staggered}) {
        Board board;
        board.layOut(arrangement);
        const bool square = arrangement == Arrangement::Square;
        for (int a = 1; a <= Board::tileCount; ++a) {
            for (int b = 1; b <= Board::tileCount; ++b) {
                const int across = std::abs(board.col(a) - board.col(b)) * layout::cellSize;
                const int down = std::abs(board.tile(a).Top() - board.tile(b).Top());
                const bool touch = a != b && board.isVisible(a) && board.isVisible(b) && across <= layout::cellSize &&
                                   down <= (square || across == 0 ? layout::cellSize : layout::cellSize / 2);
                EXPECT_EQ(board.neighbours(a).contains(b), touch) << a << " and " << b << (square ? "" : " staggered");
            }
        }
    }
}

TEST(Board, ShortColumnsStandHalfATileLowerAndLackTheirLastTile)
{
    Board board;
    board.layOut(Arrangement::Staggered);
    EXPECT_EQ(board.tile(1).Top(), 750 + 300);
    EXPECT_EQ(board.tile(9).Top(), 750);
    EXPECT_EQ(board.tile(64).Left(), 75 + 7 * 600);
    EXPECT_EQ(board.columnHeight(3), 7);
    EXPECT_EQ(board.columnHeight(4), 8);
    for (int tile = 1; tile <= 64; ++tile)
        EXPECT_EQ(board.isVisible(tile), tile != 8 && tile != 24 && tile != 40 && tile != 56) << tile;
}

/// Guards against a list that keeps a tile which has left the board, or never takes it back.
TEST(Board, HiddenTilesLeaveTheListsUntilTheyAreFilledAgain)
{
    Board board;
    board.layOut(Arrangement::Square);
    board.tile(2).Visible(false);
    board.rebuildNeighbours();
    EXPECT_EQ(board.Neibors(1), "9,10,");
    EXPECT_EQ(board.Neibors(9), "10,1,17,18,");
    board.tile(2).Visible(true);
    board.rebuildNeighbours();
    EXPECT_EQ(board.Neibors(9), "10,2,1,17,18,");
}

TEST(Board, DescriptionAndHoverCaption)
{
    Board board;
    board.layOut(Arrangement::Square);
    board.tile(1).Caption("Q");
    board.tile(2).Caption("U");
    board.tile(9).Caption("I");
    board.tile(10).Caption("T");
    board.tile(1).MaskColor(3);
    board.tile(1).Tag("X");
    EXPECT_EQ(board.hoverCaption(1), "Letter Q - score =10, will give triple word score");
    EXPECT_EQ(board.description(1),
              "index=1, seq=1<Q> row=1, col=1, Neibors=2,9,10,U,I,T,, value=10, maskcolor=3, tag= X");
    board.tile(2).MaskColor(multiplier::red);
    EXPECT_EQ(board.hoverCaption(2), "Letter U - score =1");
}

} // namespace
} // namespace lexigrove
