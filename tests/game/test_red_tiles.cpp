#include "tests/support/scripted_front_end.hpp"

#include <gtest/gtest.h>

namespace lexigrove
{
namespace
{

const std::string words = "CAT\r\n";

int redTilesDrawn(const Board& board)
{
    int count = 0;
    for (int tile = 1; tile <= 64; ++tile)
        count += board.maskcolor(tile) == multiplier::red ? 1 : 0;
    return count;
}

/// Guards against a wrong weight in the pressure and a threshold that does not fall.
TEST(RedTiles, PressureMakesThemAtTheTopsOfColumns)
{
    PlayedGame played(words);
    played.start(Arrangement::Staggered);
    GameState& state = played.state();
    for (const char* word : {"AT", "AT", "CAT", "PLANET"})
        state.statistics.recordWord(word, Statistics::playerBase);
    state.hintsUsed = 3;
    state.redTilesUsed = 1;
    played.flow.redTimerTick();
    EXPECT_EQ(state.pressure, (3 * 4 + 2 * 2 + 1) - 1 + 2 * 3 + 2 * 1 + 1);

    const int already = state.pressure;
    for (int i = already + 1; i < 500; ++i)
        played.flow.redTimerTick();
    EXPECT_EQ(redTilesDrawn(played.board()), 0);
    played.flow.redTimerTick();
    EXPECT_EQ(redTilesDrawn(played.board()), 1);
    EXPECT_EQ(state.lastPressure, 500);
    EXPECT_EQ(played.flow.dictionary.redThreshold(), 499);
    for (int i = 0; i < 5000; ++i)
        played.flow.redTimerTick();
    EXPECT_EQ(redTilesDrawn(played.board()), RedTiles::maxRedTiles);
    EXPECT_EQ(state.redTilesOnBoard, RedTiles::maxRedTiles);
    for (int tile = 1; tile <= 64; ++tile) {
        if (played.board().maskcolor(tile) == multiplier::red) {
            EXPECT_LE(played.board().row(tile), 4) << "as high as a plain tile stands";
        }
    }
    state.tickCount = 32'767;
    played.flow.redTimerTick();
    EXPECT_EQ(state.tickCount, 32'767) << "stops rather than wraps";
}

/// Guards against pressure where there must be none.
TEST(RedTiles, HoldPauseAndTheComputerStopBothTimers)
{
    PlayedGame played(words);
    played.start(Arrangement::Square);
    GameState& state = played.state();
    played.board().tile(3).MaskColor(2);
    const auto nothingHappens = [&] {
        const std::string letter = played.board().letter(3);
        played.flow.redTimerTick();
        played.flow.pushTimerTick();
        EXPECT_EQ(state.tickCount, 0);
        EXPECT_EQ(played.board().maskcolor(3), 2U);
        EXPECT_EQ(played.board().letter(3), letter);
    };
    state.redTileHold = true;
    nothingHappens();
    state.redTileHold = false;
    state.computerGame = true;
    nothingHappens();
    state.computerGame = false;
    played.flow.pause();
    nothingHappens();
    played.flow.pause();
    played.frontEnd.onConfirm = [&](const std::string&) {
        nothingHappens(); // a question is open
        return false;
    };
    state.wordsMade = 1;
    played.flow.menuNewGame();
    played.flow.redTimerTick();
    EXPECT_EQ(state.tickCount, 1);
}

TEST(RedTiles, APushTakesTheBottomLetterAndDropsTheWaitingOne)
{
    for (const Arrangement arrangement : {Arrangement::Square, Arrangement::Staggered}) {
        PlayedGame played(words);
        played.start(arrangement, presetOf(std::string(16, 'E') + "ABCDFGHI"));
        Board& board = played.board();
        const int bottom = board.Grid(board.columnHeight(3), 3);
        board.TopDrop[3].Caption("Z");
        played.flow.pushTimerTick();
        EXPECT_EQ(board.letter(17), "A") << "no special tile, no push";

        board.tile(bottom).MaskColor(3);
        board.tile(18).MaskColor(multiplier::red);
        played.state().bonusTilesOnBoard = 1;
        played.state().redTilesOnBoard = 1;
        played.click({17, 18});
        played.flow.pushTimerTick();
        EXPECT_EQ(board.letter(17), "Z");
        EXPECT_EQ(board.letter(18), "A");
        EXPECT_EQ(board.maskcolor(19), multiplier::red) << "moves down with its letter";
        EXPECT_EQ(played.state().bonusTilesOnBoard, 0) << "the bonus tile has left the board";
        EXPECT_EQ(played.state().WordTried.Caption, "");
        EXPECT_EQ(board.tile(17).Tag(), "");

        // From row 3 it takes five more pushes (four in a short column) to the bottom row; the next one loses.
        for (int i = 0; i < board.columnHeight(3) - 3; ++i)
            played.flow.pushTimerTick();
        EXPECT_EQ(board.maskcolor(bottom), multiplier::red);
        EXPECT_EQ(played.frontEnd.count("confirm Another game?"), 0);
        played.frontEnd.onConfirm = [](const std::string&) { return false; };
        played.flow.pushTimerTick();
        EXPECT_EQ(played.frontEnd.count("status A red tile was pushed out. Game over."), 1);
        EXPECT_EQ(redTilesDrawn(board), 0) << "it was shown leaving";
        EXPECT_TRUE(played.flow.ended());
    }
}

/// The seconds of a day at which red tiles appear, for a player who makes a four-letter word every `secondsPerWord`
/// seconds (0: an idle one) and uses no red tile.
std::vector<int> redSeconds(int level, int secondsPerWord)
{
    PlayedGame played(words);
    OptionsForm& options = played.flow.options;
    Choice* const levels[] = {&options.Option2, &options.Option3, &options.Option4, &options.Option5};
    options.select(*levels[level]);
    played.start(Arrangement::Square);
    std::vector<int> seconds;
    for (int second = 1; second <= 86'400; ++second) {
        if (secondsPerWord > 0 && second % secondsPerWord == 0)
            played.state().statistics.recordWord("WORD", Statistics::playerBase);
        const int before = played.state().redTilesOnBoard;
        played.flow.redTimerTick();
        if (played.state().redTilesOnBoard > before)
            seconds.push_back(second);
    }
    return seconds;
}

/// Guards against a pressure that counts too often, a threshold that does not fall, and a fifth red tile, in the course
/// of a day. An idle player's red tiles come at t, t + (t - 1), ...; each word of four letters counts as three seconds
/// more.
TEST(RedTiles, ADayOfTicks)
{
    const int thresholds[] = {500, 1000, 500, 300};
    for (const int level : {1, 2, 3}) {
        for (const int secondsPerWord : {0, 20}) {
            std::vector<int> expected;
            int due = 0;
            for (int tile = 0; tile < RedTiles::maxRedTiles; ++tile) {
                const int last = expected.empty() ? 0 : expected.back();
                const auto pressureAt = [&](int t) { return t + (secondsPerWord > 0 ? 3 * (t / secondsPerWord) : 0); };
                due = pressureAt(last) + thresholds[level] - tile;
                int second = last;
                while (pressureAt(second) < due)
                    ++second;
                expected.push_back(second);
            }
            EXPECT_EQ(redSeconds(level, secondsPerWord), expected) << "level " << level;
        }
    }
}

/// Guards against a push that draws columns instead of special tiles.
TEST(RedTiles, AColumnIsDrawnForEachOfItsSpecialTiles)
{
    PlayedGame played(words);
    played.start(Arrangement::Square, presetOf(""));
    int pushesOfTheFirst = 0;
    constexpr int pushes = 2000;
    for (int i = 0; i < pushes; ++i) {
        for (int tile = 1; tile <= 64; ++tile) {
            played.board().tile(tile).MaskColor(tile == 1 || tile == 2 || tile == 3 || tile == 57 ? 2 : 1);
            played.board().tile(tile).Visible(true); // the drop row runs dry on the way
        }
        played.flow.pushTimerTick();
        pushesOfTheFirst += played.board().maskcolor(57) == 2 ? 1 : 0;
    }
    EXPECT_NEAR(pushesOfTheFirst, pushes * 3 / 4, 100);
}

TEST(RedTiles, AWordDefusesThem)
{
    PlayedGame played(words);
    played.start(Arrangement::Square, presetOf("CAT"));
    played.board().tile(2).MaskColor(multiplier::red);
    played.state().redTilesOnBoard = 1;
    played.click({1, 2, 3});
    played.flow.enterWord();
    EXPECT_EQ(played.state().redTilesOnBoard, 0);
    EXPECT_EQ(played.state().redTilesUsed, 1);
    EXPECT_EQ(redTilesDrawn(played.board()), 0);
}

} // namespace
} // namespace lexigrove
