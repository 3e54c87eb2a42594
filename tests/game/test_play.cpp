#include "tests/support/scripted_front_end.hpp"

#include <gtest/gtest.h>

namespace lexigrove
{
namespace
{

const std::string words = "ABLE\r\nCAT\r\nPLANET\r\nQUIZ\r\nQUIZZED\r\nTABLE\r\n";

std::string column(const Board& board, int col)
{
    std::string text;
    for (int row = 1; row <= board.columnHeight(col); ++row) {
        const int tile = board.Grid(row, col);
        text += board.isVisible(tile) ? board.letter(tile) : ".";
    }
    return text;
}

/// Guards against each wrong turn of a path: what a click appends, takes off, or starts afresh.
TEST(Play, AClickExtendsShortensOrRestartsThePath)
{
    PlayedGame played(words);
    played.start(Arrangement::Square, presetOf("CATQUIZ"));
    const auto word = [&] { return played.state().WordTried.Caption; };
    played.click({1, 2, 3});
    EXPECT_EQ(word(), "CAT");
    EXPECT_EQ(played.state().CurrScore.Caption, "5");
    EXPECT_EQ(played.board().tile(2).Tag(), "X");
    EXPECT_EQ(played.board().tile(2).BorderStyle(), 1) << "held down";
    played.click({3});
    EXPECT_EQ(word(), "CA") << "the last tile shortens";
    played.click({1});
    EXPECT_EQ(word(), "C") << "a used tile starts over";
    EXPECT_EQ(played.board().tile(2).Tag(), "");
    EXPECT_EQ(played.board().tile(2).BorderStyle(), 0);
    played.click({3});
    EXPECT_EQ(word(), "T") << "a tile that does not touch starts over";
    played.click({3});
    EXPECT_EQ(word(), "");
    EXPECT_EQ(played.flow.game.selection.lastTile(), 0);
}

/// Guards against a right click that enters too early, and one that is forgotten after another click.
TEST(Play, TwoRightClicksInARowEnterTheWord)
{
    PlayedGame played(words);
    played.start(Arrangement::Square, presetOf("CAT"));
    played.click({1, 2});
    played.flow.clickTile(3, MouseButton::Right, false);
    EXPECT_EQ(played.state().WordTried.Caption, "CAT");
    played.click({3, 3});
    played.flow.clickTile(11, MouseButton::Right, false);
    played.click({11});
    EXPECT_EQ(played.state().WordTried.Caption, "CAT");
    EXPECT_EQ(played.yourScore(), 0);
    played.click({3});
    played.flow.clickTile(3, MouseButton::Right, false);
    played.flow.clickTile(64, MouseButton::Right, false);
    EXPECT_EQ(played.yourScore(), 5);
    EXPECT_EQ(played.state().WordTried.Caption, "");
    EXPECT_EQ(played.state().WordsMade.text(1, WordsGrid::wordColumn), "CAT");
    EXPECT_EQ(column(played.board(), 1), "...EEEEE");
}

TEST(Play, OnlyTheBestMultiplierCounts)
{
    PlayedGame played(words);
    played.start(Arrangement::Square, presetOf("QUIZ"));
    Board& board = played.board();
    played.click({1, 2, 3, 4});
    EXPECT_EQ(played.state().CurrScore.Caption, "22");
    const Selection& path = played.flow.game.selection;
    const auto score = [&](Colour first, Colour second) {
        board.tile(1).MaskColor(first);
        board.tile(3).MaskColor(second);
        return wordScore("QUIZ", path, board);
    };
    EXPECT_EQ(score(3, 2).score, 66);
    EXPECT_EQ(score(3, 2).bonusCount, 1);
    EXPECT_EQ(score(2, 3).bonusCount, 2) << "each tile that raised the best counts";
    EXPECT_EQ(score(9, 4).score, 88);
    EXPECT_EQ(score(9, 4).bonusCount, 1) << "a red tile has no multiplier";
}

TEST(Play, AWordThatIsNoneCostsNothingAndStays)
{
    PlayedGame played(words);
    played.flow.options.select(played.flow.options.Option15);
    played.start(Arrangement::Square, presetOf("CXT"));
    played.frontEnd.log.clear();
    played.click({1});
    played.flow.enterWord();
    EXPECT_EQ(played.frontEnd.log, std::vector<std::string>{"sound beep3.wav"})
        << "one letter is passed over in silence";
    played.click({2});
    played.flow.enterWord();
    EXPECT_EQ(played.frontEnd.Label1, "CX not in dictionary");
    EXPECT_TRUE(played.frontEnd.Warn);
    EXPECT_EQ(played.frontEnd.count("sound err3.wav"), 1);
    EXPECT_EQ(played.state().WordTried.Caption, "CX");
    EXPECT_EQ(played.yourScore(), 0);

    played.state().developerMode = true;
    played.flow.enterWord();
    EXPECT_EQ(played.yourScore(), 11);
    EXPECT_EQ(played.frontEnd.count("sound beep4.wav"), 2);
}

/// Guards against thresholds that do not follow the level, and bonus tiles without end.
TEST(Play, LongWordsEarnBonusTiles)
{
    struct Case {
        int level;
        std::vector<int> path;
        Colour multiplier; // 0: none
    };
    PlayedGame played(words);
    OptionsForm& options = played.flow.options;
    Choice* const levels[] = {&options.Option2, &options.Option3, &options.Option4, &options.Option5};
    played.folder.write("UsrDict.txt", words);
    const std::vector<int> able{2, 3, 4, 5};
    const std::vector<int> table{1, 2, 3, 4, 5};
    const std::vector<int> planet{9, 10, 11, 12, 13, 14};
    const std::vector<int> quizzed{17, 18, 19, 20, 21, 22, 23};
    for (const Case& c : {Case{1, able, 2}, Case{2, able, 0}, Case{2, table, 2}, Case{2, planet, 3},
                          Case{2, quizzed, 4}, Case{3, table, 0}, Case{3, planet, 2}, Case{0, table, 2}}) {
        options.select(*levels[c.level]);
        played.start(Arrangement::Square, presetOf("TABLEEEEPLANETEEQUIZZEDE"));
        played.click(c.path);
        played.flow.enterWord();
        std::vector<Colour> bonus;
        for (int tile = 1; tile <= 64; ++tile) {
            if (played.board().isBonus(tile))
                bonus.push_back(played.board().maskcolor(tile));
        }
        EXPECT_EQ(bonus, c.multiplier == 0 ? std::vector<Colour>{} : std::vector<Colour>{c.multiplier})
            << "level " << c.level << ", " << c.path.size() << " letters";
        EXPECT_EQ(played.state().bonusTilesOnBoard, static_cast<int>(bonus.size()));
    }

    for (int i = 0; i < 6; ++i)
        played.flow.game.wordEntry.awardBonusTile(2);
    EXPECT_EQ(played.state().bonusTilesOnBoard, 4);
    played.start(Arrangement::Square, presetOf(""));
    for (int tile = 1; tile <= 64; ++tile)
        played.board().tile(tile).MaskColor(multiplier::red);
    played.flow.game.wordEntry.awardBonusTile(2); // would look for ever
    EXPECT_EQ(played.state().bonusTilesOnBoard, 0);
}

/// Guards against removing from the bottom up, against multipliers that stay behind, and against animations that are
/// not wanted.
TEST(Play, LettersMoveDownWithTheirMultipliers)
{
    PlayedGame played("CE\r\n");
    played.flow.options.select(played.flow.options.Option10);
    played.start(Arrangement::Square, presetOf("ABCEFGHI"));
    played.board().tile(2).MaskColor(3);
    played.board().tile(4).MaskColor(2);
    played.state().bonusTilesOnBoard = 2;
    played.click({3, 4});
    int panelTop = 0;
    played.frontEnd.onAnimationStep = [&] {
        const SlidingPanel& panel = played.board().Picture2;
        EXPECT_TRUE(panel.Visible);
        EXPECT_EQ(panel.Height, 2 * layout::cellSize);
        EXPECT_EQ(panel.DummyTile[1].Caption(), "B");
        panelTop = panel.Top;
    };
    played.flow.enterWord();
    EXPECT_EQ(column(played.board(), 1), "..ABFGHI");
    EXPECT_EQ(played.board().maskcolor(4), 3U);
    EXPECT_EQ(played.board().maskcolor(2), 1U) << "an emptied cell is plain";
    EXPECT_EQ(played.state().bonusTilesOnBoard, 1);
    EXPECT_EQ(played.frontEnd.animationSteps, 2 * 21) << "two columns of letters, 2 pixels a step over 40";
    EXPECT_GE(panelTop, played.board().cellTop(3, 1));
    EXPECT_FALSE(played.board().Picture2.Visible);

    played.frontEnd.onAnimationStep = [] {};
    played.frontEnd.animationSteps = 0;
    played.flow.options.select(played.flow.options.Option11);
    played.flow.game.removal.moveColumnDown(8, 1);
    EXPECT_EQ(column(played.board(), 1), "...ABFGH");
    EXPECT_EQ(played.frontEnd.animationSteps, 0);
}

/// Guards against drops that take letters across a gap, in the wrong order, or into a full column.
TEST(Play, WaitingLettersFallInAContiguousRun)
{
    PlayedGame played(words);
    played.flow.options.select(played.flow.options.Option15);
    for (const Arrangement arrangement : {Arrangement::Square, Arrangement::Staggered}) {
        played.start(arrangement, presetOf(""));
        Board& board = played.board();
        const char* waiting = "ABCDFGHI";
        for (std::size_t k = 1; k <= 8; ++k)
            board.TopDrop[k].Caption(std::string(1, waiting[k - 1]));
        played.frontEnd.log.clear();
        played.flow.drop(5);
        EXPECT_EQ(played.frontEnd.log, std::vector<std::string>{"sound err3.wav"});

        for (int row = 1; row <= 3; ++row)
            board.tile(board.Grid(row, 5)).Visible(false);
        board.TopDrop[3].Visible(false);
        played.flow.drop(5);
        EXPECT_EQ(column(board, 5).substr(0, 4), "GDFE") << "5, then its left neighbours up to the gap, then the right";
        EXPECT_EQ(board.TopDrop[5].Left(), board.homeLeft(5));
        EXPECT_EQ(played.state().TilesLeft.Caption, arrangement == Arrangement::Square ? "20" : "28");
        EXPECT_TRUE(board.neighbours(board.Grid(1, 5)).contains(board.Grid(2, 5)));

        for (int row = 1; row <= 2; ++row)
            board.tile(board.Grid(row, 1)).Visible(false);
        board.TopDrop[2].Visible(false);
        played.flow.drop(1);
        EXPECT_EQ(column(board, 1).substr(0, 3), ".AE") << "alone: only the lowest empty cell is filled";
    }
}

} // namespace
} // namespace lexigrove
