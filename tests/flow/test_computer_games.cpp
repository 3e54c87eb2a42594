#include "tests/flow/played_words.hpp"

#include <gtest/gtest.h>
#include <set>

namespace lexigrove
{
namespace
{

/// Plays one game against the computer until the clock ends it; the player enters any word, and passes now and then.
class ComputerGame
{
public:
    ComputerGame(PlayedGame& game, Choice& strategy, Arrangement arrangement, unsigned seed)
        : game_(game), random_(seed)
    {
        OptionsForm& options = game_.flow.options;
        options.select(strategy);
        options.Check1.Value = true;
        game_.frontEnd.timeOfDay = seed;
        game_.start(arrangement);
        game_.frontEnd.onWait = [this] { watchComputersWord(); };
        game_.frontEnd.onConfirm = [](const std::string& question) {
            EXPECT_EQ(question, "Another game?");
            return false;
        };
    }

    void playUntilTheClockEndsIt()
    {
        for (int move = 0; !game_.flow.ended(); ++move) {
            expectPlayersMove();
            if (move % 5 != 4)
                game_.click(anyWordOnTheBoard(game_.flow, random_));
            yourScore_ += numberOf(game_.state().CurrScore.Caption);
            game_.flow.enterWord();
            EXPECT_EQ(game_.yourScore(), yourScore_);
            EXPECT_EQ(numberOf(game_.state().CompScore.Caption), computersScore_);
            for (int second = 0; second < 61 && !game_.flow.ended(); ++second)
                game_.flow.clockTimerTick();
            ASSERT_FALSE(testing::Test::HasFailure());
        }
        EXPECT_EQ(game_.frontEnd.count("message Game over\r\n5 minutes have elapsed"), 1);
        EXPECT_EQ(game_.frontEnd.count("window top ten " + std::to_string(yourScore_)), 0);
        EXPECT_GE(computersWords_, 5);
    }

private:
    void expectPlayersMove()
    {
        const GameState& state = game_.state();
        expectSoundBoard(game_.flow.game);
        for (int col = 1; col <= Board::columns; ++col)
            EXPECT_EQ(game_.board().emptyCells(col), 0) << "the board is full at every move of the player";
        EXPECT_FALSE(state.computerTurnInProgress);
        EXPECT_TRUE(state.EnterWord.Visible && state.Picture1.Enabled && state.Frame3.Enabled);
        EXPECT_EQ(game_.flow.game.selection.length(), 0);
        EXPECT_EQ(state.WordTried.backColor, GameState::ownBack);
        EXPECT_TRUE(game_.flow.Dc1.running());
        EXPECT_FALSE(game_.frontEnd.busyPointer);
    }

    /// The computer waits: its word is shown selected, and nobody else can act.
    void watchComputersWord()
    {
        const GameState& state = game_.state();
        const std::string word = state.WordTried.Caption;
        EXPECT_EQ(game_.frontEnd.Label1, "Press any key to continue");
        EXPECT_FALSE(state.Picture1.Enabled);
        EXPECT_FALSE(game_.flow.Dc1.running());
        EXPECT_NE(game_.flow.dictionary.words.findWord(word), -1);
        EXPECT_EQ(game_.flow.game.selection.word(), word);
        const Selection& path = game_.flow.game.selection;
        std::set<int> tiles;
        for (int place = 1; place <= path.length(); ++place) {
            tiles.insert(path.tileAt(place));
            if (place > 1) {
                EXPECT_TRUE(game_.board().neighbours(path.tileAt(place - 1)).contains(path.tileAt(place)));
            }
        }
        EXPECT_EQ(tiles.size(), word.size());
        game_.flow.clickTile(1, MouseButton::Left, false); // refused
        game_.flow.enterWord();
        EXPECT_EQ(state.WordTried.Caption, word);
        ++computersWords_;
        computersScore_ += letterSum(word);
    }

    PlayedGame& game_;
    std::mt19937 random_;
    int yourScore_ = 0;
    int computersScore_ = 0;
    int computersWords_ = 0;
};

/// Guards against state of a turn that is left behind, words that are not there, and boards that are not refilled.
TEST(ComputerGames, FiftyWithEachStrategy)
{
    const std::string words = levelOneWords();
    for (Choice OptionsForm::*strategy : {&OptionsForm::Option12, &OptionsForm::Option13, &OptionsForm::Option14}) {
        for (unsigned seed = 1; seed <= 50; ++seed) {
            SCOPED_TRACE("seed " + std::to_string(seed));
            PlayedGame game(words);
            const Arrangement arrangement = seed % 2 == 0 ? Arrangement::Square : Arrangement::Staggered;
            ComputerGame(game, game.flow.options.*strategy, arrangement, seed).playUntilTheClockEndsIt();
            ASSERT_FALSE(HasFailure());
        }
    }
}

/// What a game against the computer shows in the words list after one turn on a board with CAT (5) and QI (11).
std::string computersWord(Choice OptionsForm::*strategy, const std::string& words)
{
    PlayedGame game(words);
    game.flow.options.select(game.flow.options.*strategy);
    game.flow.options.Check1.Value = true;
    game.start(Arrangement::Square, presetOf("CATEEEEEEEEEEEEEQI"));
    game.board().tile(1).MaskColor(3); // multipliers play no part
    game.flow.enterWord();
    const WordsGrid& grid = game.state().WordsMade;
    EXPECT_EQ(game.state().WordTried.Caption, "Your move");
    return grid.Rows() == 1 ? game.frontEnd.Label1 : grid.text(1, 1) + " " + grid.text(1, 3);
}

TEST(ComputerGames, StrategiesChooseAsTheySay)
{
    EXPECT_EQ(computersWord(&OptionsForm::Option13, "CAT\r\nQI\r\n"), "5 CAT");
    EXPECT_EQ(computersWord(&OptionsForm::Option12, "CAT\r\nQI\r\n"), "11 QI");
    EXPECT_EQ(computersWord(&OptionsForm::Option12, "AT\r\nTA\r\n"), "2 AT") << "ties go to the earlier word";
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(computersWord(&OptionsForm::Option14, "CAT\r\nQI\r\n"), "5 CAT") << "never the last of several";
    EXPECT_EQ(computersWord(&OptionsForm::Option12, "ZZZ\r\n"), "Computer has no move to make!");
}

/// Guards against a wrong price, a list whose rows lose their paths when sorted, and a path that stays on the board.
TEST(Hints, APriceAListAndAWordTaken)
{
    PlayedGame game("AT\r\nCAT\r\nTEE\r\n");
    game.flow.options.select(game.flow.options.Option3); // level 1: 10 points
    game.start(Arrangement::Square, presetOf("CAT"));
    GameState& state = game.state();
    state.YourScore.Caption = "9";
    game.flow.getHint();
    EXPECT_EQ(game.frontEnd.Label1, "your score must be at least10 to get a hint");
    EXPECT_EQ(game.yourScore(), 9);

    state.YourScore.Caption = "10";
    game.frontEnd.onHints = [&](HintsForm& form) {
        EXPECT_EQ(form.Caption, "3 hints");
        EXPECT_TRUE(state.redTileHold);
        form.pickRow(1);
        form.headingClicked(500); // by score, ascending
        form.headingClicked(500);
        EXPECT_EQ(form.WordsMade.text(1, 3), "CAT");
        form.pickRow(1);
        EXPECT_EQ(form.shownPath(), (std::vector<int>{1, 2, 3}));
        EXPECT_EQ(game.board().tile(1).BorderStyle(), 1);
        game.flow.clickTile(9, MouseButton::Left, false); // refused while the window is open
        EXPECT_EQ(game.flow.game.selection.length(), 0);
        form.pressClose();
    };
    game.flow.getHint();
    EXPECT_EQ(game.yourScore(), 0);
    EXPECT_EQ(state.hintsUsed, 1);
    EXPECT_FALSE(state.redTileHold);
    EXPECT_EQ(game.board().tile(1).BorderStyle(), 0);
    EXPECT_EQ(state.WordsMade.Rows(), 1);

    state.YourScore.Caption = "15";
    game.frontEnd.onHints = [&](HintsForm& form) {
        EXPECT_EQ(form.WordsMade.text(2, 3), "CAT") << "dictionary order again";
        form.pickRow(2);
        form.pressSelect();
    };
    game.flow.getHint();
    EXPECT_EQ(game.yourScore(), 5 + 5);
    EXPECT_EQ(state.WordsMade.text(1, 3), "CAT");
    EXPECT_EQ(state.hintsUsed, 2);

    game.start(Arrangement::Square, presetOf("EEEEEEEEEEEEEEEEEEEEE"));
    state.developerMode = true;
    state.YourScore.Caption = "4";
    game.flow.getHint();
    EXPECT_EQ(game.yourScore(), 0) << "in developer mode the rest of the score is the price";
    EXPECT_EQ(game.frontEnd.Label1, "There are no valid hints");
    EXPECT_TRUE(state.redTileHold) << "until the next word";
}

} // namespace
} // namespace lexigrove
