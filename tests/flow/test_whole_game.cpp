#include "tests/support/scripted_front_end.hpp"

#include <gtest/gtest.h>

namespace lexigrove
{
namespace
{

const std::string words = "CAT\r\nQUIZ\r\n";

/// A game of 22 points that the next column push loses.
void prepareLoss(PlayedGame& played, Arrangement arrangement)
{
    played.start(arrangement);
    const std::string quiz = "QUIZ";
    for (int tile = 1; tile <= 4; ++tile)
        played.board().tile(tile).Caption(quiz.substr(static_cast<std::size_t>(tile - 1), 1));
    played.click({1, 2, 3, 4});
    played.flow.enterWord();
    const int bottom = played.board().Grid(played.board().columnHeight(5), 5);
    played.board().tile(bottom).MaskColor(multiplier::red);
    played.state().redTilesOnBoard = 1;
    played.frontEnd.log.clear();
}

std::vector<std::string> withoutStatus(const std::vector<std::string>& log)
{
    std::vector<std::string> rest;
    for (const std::string& entry : log) {
        if (!entry.starts_with("status") && !entry.starts_with("sound"))
            rest.push_back(entry);
    }
    return rest;
}

using Log = std::vector<std::string>;
const std::string nameBox = "input LexiGrove Top 10 List: You have made TOP 10 list, Enter your name";

/// Guards against a score that is recorded twice, a question asked twice, and state that survives into the next game.
TEST(WholeGame, ALossOffersTheScoreAndAnotherGame)
{
    for (const Arrangement arrangement : {Arrangement::Square, Arrangement::Staggered}) {
        PlayedGame played(words);
        prepareLoss(played, arrangement);
        int asked = 0;
        played.frontEnd.onInput = [&](const std::string&) { return ++asked < 3 ? "" : "Ada"; };
        played.frontEnd.onConfirm = [](const std::string&) { return true; };
        played.flow.pushTimerTick();
        EXPECT_EQ(withoutStatus(played.frontEnd.log),
                  (Log{"message Scores File not found - will create a new one", "window top ten 22", nameBox, nameBox,
                       nameBox, "confirm Another game?", "window top ten -1", "window options"}));
        EXPECT_EQ(played.flow.scoreFile.load().back(), "00022\tAda");
        EXPECT_TRUE(played.flow.inGame());
        EXPECT_FALSE(played.flow.ended());
        EXPECT_EQ(played.yourScore(), 0);
        EXPECT_EQ(played.state().WordsMade.Rows(), 1);
        EXPECT_EQ(played.state().statistics.number(1), 0);
        EXPECT_EQ(played.state().redTilesOnBoard, 0);
        EXPECT_TRUE(played.state().redTileHold) << "no pressure before the first word";
        EXPECT_EQ(played.flow.dictionary.redThreshold(), 500) << "starts from its table again";

        prepareLoss(played, arrangement);
        played.frontEnd.onInput = [](const std::string&) { return "Bo"; };
        played.frontEnd.onConfirm = [](const std::string&) { return false; };
        played.frontEnd.log.clear();
        played.flow.pushTimerTick();
        EXPECT_EQ(withoutStatus(played.frontEnd.log), (Log{"window top ten 22", nameBox, "confirm Another game?"}));
        EXPECT_TRUE(played.flow.ended());
        const auto list = played.flow.scoreFile.load();
        EXPECT_EQ(std::count(list.begin(), list.end(), "00022\tBo"), 1);
    }
}

TEST(WholeGame, TheTopTenWindowsButtonsGoOnByThemselves)
{
    for (const bool another : {true, false}) {
        PlayedGame played(words);
        prepareLoss(played, Arrangement::Square);
        played.frontEnd.onInput = [](const std::string&) { return "Ada"; };
        played.frontEnd.onScores = [=](ScoreForm& form) {
            if (another)
                form.pressAnotherGame();
            else
                form.pressExitProg();
        };
        played.flow.pushTimerTick(); // no question is expected
        EXPECT_EQ(played.flow.ended(), !another);
        EXPECT_EQ(played.frontEnd.count("window top ten 22"), 1);
        EXPECT_EQ(played.frontEnd.count("window options"), another ? 1 : 0);
    }
}

TEST(WholeGame, NewGameAsksWhenWordsWereMade)
{
    PlayedGame played(words);
    played.start(Arrangement::Square);
    played.frontEnd.log.clear();
    played.flow.menuNewGame();
    EXPECT_EQ(withoutStatus(played.frontEnd.log), Log{"window options"});

    prepareLoss(played, Arrangement::Square);
    played.frontEnd.onConfirm = [](const std::string& question) { return question != "Do you wish to reset?"; };
    played.flow.menuNewGame();
    EXPECT_EQ(withoutStatus(played.frontEnd.log), Log{"confirm Do you wish to reset?"});
    EXPECT_EQ(played.yourScore(), 22) << "the game goes on";

    played.frontEnd.log.clear();
    played.frontEnd.onConfirm = [](const std::string&) { return true; };
    played.frontEnd.onInput = [](const std::string&) { return "Ada"; };
    played.frontEnd.onScores = [](ScoreForm& form) { form.pressExitProg(); };
    played.flow.menuNewGame();
    EXPECT_TRUE(played.flow.ended()) << "NOMORE";
    EXPECT_EQ(played.frontEnd.count("window top ten 22"), 1) << "leaving does not offer the score again";
}

/// Guards against preset letters that mark, or fill, a later game.
TEST(WholeGame, APresetBoardIsPlayedOnceAndNotRecorded)
{
    PlayedGame played(words);
    played.start(Arrangement::Square, presetOf("QUIZ"));
    played.click({1, 2, 3, 4});
    played.flow.enterWord();
    played.frontEnd.onConfirm = [](const std::string&) { return true; };
    played.flow.menuNewGame();
    EXPECT_EQ(played.frontEnd.count("window top ten 22"), 0);
    EXPECT_TRUE(played.flow.options.settings.presetLetters.empty());

    played.flow.options.Check1.Value = true;
    played.flow.startGame();
    EXPECT_EQ(played.flow.options.settings.presetLetters, "x");
    EXPECT_EQ(played.flow.Dc1.currentValue(), 600);
    played.flow.startGame();
    EXPECT_FALSE(played.board().letter(2).empty()) << "the mark of the game before is not dealt";
}

/// Guards against an ending that hangs, asks on, or loses the options, wherever the window is closed.
TEST(WholeGame, LeavingInTheMiddle)
{
    const auto expectLeft = [](PlayedGame& played, const char* where) {
        EXPECT_TRUE(played.flow.ended()) << where;
        EXPECT_FALSE(played.flow.isBusy()) << where;
        EXPECT_NE(played.folder.read("Lexigrove.cfg"), "") << where;
        EXPECT_EQ(played.frontEnd.count("sound thanks.wav"), 1) << where;
        const auto before = played.frontEnd.log.size();
        played.flow.enterWord();
        played.flow.pushTimerTick();
        EXPECT_EQ(played.frontEnd.log.size(), before) << where;
    };
    const auto leave = [](auto&&...) -> bool { throw Leaving{}; };
    {
        PlayedGame played(words);
        played.flow.options.select(played.flow.options.Option10);
        played.flow.options.select(played.flow.options.Option15);
        played.start(Arrangement::Square, presetOf("EEECAT"));
        played.click({4, 5, 6});
        played.frontEnd.onAnimationStep = [] { throw Leaving{}; };
        played.flow.enterWord();
        expectLeft(played, "an animation");
    }
    {
        PlayedGame played(words);
        played.flow.options.select(played.flow.options.Option15);
        prepareLoss(played, Arrangement::Square);
        played.frontEnd.onInput = [](const std::string&) { return "Ada"; };
        played.frontEnd.onConfirm = leave;
        played.flow.pushTimerTick();
        expectLeft(played, "a question");
        EXPECT_EQ(played.frontEnd.count("window top ten 22"), 1);
    }
    {
        PlayedGame played(words);
        played.flow.options.select(played.flow.options.Option15);
        prepareLoss(played, Arrangement::Square);
        played.frontEnd.onConfirm = [](const std::string&) { return true; };
        played.frontEnd.onInput = [](const std::string&) { return "Ada"; };
        played.frontEnd.onScores = [](ScoreForm&) { throw Leaving{}; };
        played.flow.menuNewGame();
        expectLeft(played, "the top ten of a new game");
        EXPECT_EQ(played.frontEnd.count("window top ten 22"), 1);
    }
    {
        PlayedGame played(words);
        played.flow.options.select(played.flow.options.Option15);
        prepareLoss(played, Arrangement::Square);
        played.frontEnd.onInput = [](const std::string&) -> std::string { throw Leaving{}; };
        played.flow.exit();
        expectLeft(played, "the name box");
        EXPECT_EQ(played.flow.scoreFile.load().back(), "00019\tYelka");
    }
}

TEST(WholeGame, PauseHoldsTheClockAndRefusesActions)
{
    PlayedGame played(words);
    played.flow.options.Check1.Value = true;
    played.start(Arrangement::Square, presetOf("CAT"));
    played.flow.clockTimerTick();
    EXPECT_EQ(played.flow.Dc1.currentValue(), 599);
    played.click({1, 2, 3});
    played.flow.pause();
    EXPECT_EQ(played.flow.pauseCaption(), "Paused");
    played.flow.pauseTimerTick();
    EXPECT_EQ(played.flow.pauseCaption(), "");
    played.flow.clockTimerTick();
    played.flow.enterWord();
    played.flow.drop(1);
    played.flow.getHint();
    played.flow.menuNewGame();
    played.click({3});
    EXPECT_EQ(played.flow.Dc1.currentValue(), 599);
    EXPECT_EQ(played.state().WordTried.Caption, "CAT");
    played.flow.pause();
    EXPECT_FALSE(played.flow.isPaused());
    played.flow.clockTimerTick();
    EXPECT_EQ(played.flow.Dc1.currentValue(), 598);
}

TEST(WholeGame, TheClockEndsAGameAgainstTheComputerOnce)
{
    PlayedGame played(words);
    played.flow.options.Check1.Value = true;
    played.start(Arrangement::Square);
    played.state().CompScore.Caption = "7";
    played.frontEnd.log.clear();
    bool open = true;
    played.frontEnd.onConfirm = [&](const std::string&) {
        for (int i = 0; i < 3; ++i)
            played.flow.clockTimerTick(); // the clock stands still behind the question
        open = false;
        return true;
    };
    for (int second = 0; second <= GameFlow::gameSeconds; ++second)
        played.flow.clockTimerTick();
    EXPECT_FALSE(open);
    EXPECT_EQ(withoutStatus(played.frontEnd.log),
              (Log{"message Game over\r\n5 minutes have elapsed", "confirm Another game?", "window options"}));
    EXPECT_EQ(played.frontEnd.count("status The computer won by 7 points"), 1);
    EXPECT_EQ(played.flow.Dc1.currentValue(), GameFlow::gameSeconds);
    EXPECT_TRUE(played.flow.Dc1.running());

    // Between games, and in a solo game from its first moment, the clock shows the time of day (12:00).
    played.flow.clockTimerTick();
    const auto shown = [&] { return played.flow.Dc1.shownDigit(0) * 10 + played.flow.Dc1.shownDigit(1); };
    EXPECT_EQ(shown(), 9);
    played.frontEnd.onOptions = [&](OptionsForm& form) {
        EXPECT_EQ(shown(), 12);
        form.Check1.Value = false;
        form.pressStart();
    };
    played.flow.menuNewGame();
    EXPECT_EQ(shown(), 12);
    EXPECT_TRUE(played.flow.Dc1.lit(Dc::upperDot)) << "the countdown stopped at an odd second";
}

TEST(WholeGame, ALetterSwapCostsTenPoints)
{
    PlayedGame played(words);
    played.flow.options.select(played.flow.options.Option15);
    played.start(Arrangement::Square, presetOf("CAT"));
    Board& board = played.board();
    const auto ask = [&](int tile) { played.flow.clickTile(tile, MouseButton::Left, true); };
    ask(1);
    EXPECT_EQ(played.frontEnd.Label1, "your score must be at least 10 to swap a letter");
    EXPECT_EQ(played.frontEnd.count("sound err3.wav"), 1);

    played.state().YourScore.Caption = "25";
    board.TopDrop[3].Caption("Z");
    board.tile(1).MaskColor(2);
    played.click({1, 2});
    ask(1);
    EXPECT_EQ(played.frontEnd.Label1, "Now click the waiting letter to swap it with");
    EXPECT_EQ(played.flow.game.selection.length(), 0);
    EXPECT_EQ(played.flow.swapTile(), 1);
    board.TopDrop[5].Visible(false);
    played.flow.drop(5);
    EXPECT_EQ(played.frontEnd.count("sound err3.wav"), 2) << "an empty place is refused";
    played.flow.drop(3);
    EXPECT_EQ(board.letter(1), "Z");
    EXPECT_EQ(board.maskcolor(1), 2U);
    EXPECT_EQ(board.TopDrop[3].Caption(), "C");
    EXPECT_EQ(played.yourScore(), 15);
    EXPECT_EQ(played.flow.swapTile(), 0);

    ask(2);
    ask(2);
    EXPECT_EQ(played.flow.swapTile(), 0);
    ask(2);
    played.flow.escape();
    EXPECT_EQ(played.flow.swapTile(), 0);
    ask(2);
    played.click({3});
    EXPECT_EQ(played.flow.swapTile(), 0);
    EXPECT_EQ(played.state().WordTried.Caption, "T") << "another action cancels and takes place";
    EXPECT_EQ(played.yourScore(), 15);
}

/// Guards against windows that forget the hold, which then gives the player no rest.
TEST(WholeGame, WindowsHoldThePressureUntilTheNextWord)
{
    PlayedGame played(words);
    played.start(Arrangement::Square, presetOf("CAT"));
    for (void (GameFlow::*open)() :
         {&GameFlow::showTopTen, &GameFlow::showStatistics, &GameFlow::showHelp, &GameFlow::showAbout}) {
        played.state().redTileHold = false;
        (played.flow.*open)();
        EXPECT_TRUE(played.state().redTileHold);
    }
    played.click({1, 2, 3});
    played.flow.enterWord();
    EXPECT_FALSE(played.state().redTileHold);
    EXPECT_EQ(played.frontEnd.count("window help " + played.folder.path() + "lexigrove.htm"), 1);
}

TEST(WholeGame, DeveloperModeHasAPasswordAndKeys)
{
    PlayedGame played(words);
    played.flow.options.select(played.flow.options.Option10);
    played.start(Arrangement::Square);
    int& delay = played.flow.options.settings.dropDelay;
    const int before = delay;
    played.flow.releaseDeveloperKey(DeveloperKey::NumpadMinus);
    EXPECT_EQ(delay, before);
    played.frontEnd.onInput = [](const std::string& prompt) { return prompt == "Enter password" ? "718kestr" : ""; };
    played.flow.askDeveloperPassword();
    played.flow.releaseDeveloperKey(DeveloperKey::Home);
    played.flow.releaseDeveloperKey(DeveloperKey::NumpadMinus);
    EXPECT_EQ(delay, 260);
    played.flow.releaseDeveloperKey(DeveloperKey::End);
    played.flow.releaseDeveloperKey(DeveloperKey::NumpadPlus);
    EXPECT_EQ(delay, 0);
    played.frontEnd.onInput = [](const std::string&) { return "718KESTR"; };
    played.flow.askDeveloperPassword();
    EXPECT_FALSE(played.state().developerMode);
}

/// Guards against a board that eats the memory: all of one letter, with words that are runs of it.
TEST(WholeGame, AFailureIsToldAndTheGameGoesOn)
{
    PlayedGame played("EE\r\nEEEEEEEEEEEEEEEEEEEE\r\n");
    played.start(Arrangement::Square, presetOf(""));
    played.state().YourScore.Caption = "100";
    played.flow.getHint();
    EXPECT_EQ(played.frontEnd.count("message There are too many ways to spell one word on this board"), 1);
    EXPECT_FALSE(played.flow.isBusy());
    EXPECT_FALSE(played.frontEnd.busyPointer);
    played.click({1, 2});
    played.flow.enterWord();
    EXPECT_EQ(played.state().WordsMade.Rows(), 2);
}

/// Guards against a game that goes on with a dictionary that could not be read.
TEST(WholeGame, AnUnreadableDictionaryEndsTheProgram)
{
    PlayedGame played(words);
    std::filesystem::remove(played.folder.file("L2Ascii.txt"));
    played.flow.startGame();
    EXPECT_TRUE(played.flow.ended());
    EXPECT_EQ(played.frontEnd.count("message Error while reading dictionary:\r\n" + played.folder.file("L2Ascii.txt") +
                                    "\r\nProgram cannot continue"),
              1);
}

} // namespace
} // namespace lexigrove
