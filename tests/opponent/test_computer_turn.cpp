#include "tests/support/scripted_front_end.hpp"

#include <gtest/gtest.h>

namespace lexigrove
{

namespace
{

std::string rowText(const WordsGrid& grid, int row)
{
    std::string text;
    for (int column = 0; column < WordsGrid::columnCount; ++column)
        text += (column == 0 ? "" : " ") + grid.text(row, column);
    return text;
}

/// Guards against a word that is shown otherwise than a player's, a turn within the turn, multipliers that count for
/// the computer, and a row or a statistics entry on the wrong side.
TEST(ComputerTurn, ShowsItsWordAndPlaysIt)
{
    PlayedGame played("AT\r\nQUIT\r\n");
    played.flow.options.Check1.Value = true;
    played.start(Arrangement::Square, presetOf("ATEEEEEEEEEEEEEEEEEEEEEEQUITE"));
    GameState& state = played.state();
    const ColourScheme& scheme = played.flow.scheme;
    const Colour computersBack = scheme.plain(scheme_entry::computer);
    const std::vector<int> quit{25, 26, 27, 28};
    played.board().tile(25).MaskColor(3);

    int waits = 0;
    played.frontEnd.onWait = [&] {
        ++waits;
        EXPECT_EQ(state.WordTried.Caption, "QUIT");
        EXPECT_EQ(state.WordTried.backColor, computersBack);
        EXPECT_EQ(state.WordTried.foreColor, scheme.computerFore());
        EXPECT_TRUE(state.EnterWord.Visible);
        EXPECT_FALSE(state.Picture1.Enabled || state.Frame3.Enabled || played.frontEnd.Warn);
        for (const int tile : quit) {
            EXPECT_EQ(played.board().tile(tile).Tag(), "X");
            EXPECT_EQ(played.board().tile(tile).backcolor(), scheme.selectedFace());
        }
        played.flow.computerTurn.take();
    };
    played.click({1, 2});
    played.flow.enterWord();

    EXPECT_EQ(waits, 1);
    const WordsGrid& grid = state.WordsMade;
    ASSERT_EQ(grid.Rows(), 3);
    EXPECT_EQ(rowText(grid, 1), "2 13 4 QUIT");
    EXPECT_EQ(rowText(grid, 2), "1 2 2 AT");
    EXPECT_EQ(grid.row(1).maker, Maker::Computer);
    EXPECT_EQ(grid.row(2).maker, Maker::Player);
    EXPECT_EQ(state.CompScore.Caption, "13");
    EXPECT_EQ(state.YourScore.Caption, "2");
    EXPECT_EQ(state.statistics.entry(Statistics::computerBase + Statistics::longestWord), "QUIT ");
    EXPECT_EQ(state.statistics.entry(Statistics::playerBase + Statistics::longestWord), "AT ");
    for (int tile = 1; tile <= Board::tileCount; ++tile) {
        EXPECT_TRUE(played.board().isVisible(tile)) << tile;
        EXPECT_EQ(played.board().tile(tile).Tag(), "") << tile;
    }
}

/// Guards against letters outside of A to Z, which score nothing and make no candidate the best.
TEST(ComputerTurn, PlaysWordsWithoutScore)
{
    PlayedGame played("it's\r\n");
    played.flow.options.Check1.Value = true;
    played.start(Arrangement::Square, presetOf("IT'S"));
    played.flow.enterWord();
    ASSERT_EQ(played.state().WordsMade.Rows(), 2);
    EXPECT_EQ(played.state().WordsMade.text(1, WordsGrid::wordColumn), "IT'S");
    EXPECT_EQ(played.board().emptyCells(1), 0);
}

} // namespace

} // namespace lexigrove
