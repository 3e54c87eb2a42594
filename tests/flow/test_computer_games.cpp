#include "platform/text_file.hpp"
#include "record/saved_game.hpp"
#include "tests/support/random_play.hpp"

namespace lexigrove
{
namespace
{

/// One game until the clock ends it; the player enters any word, and passes now and then.
void playUntilTheClockEndsIt(PlayedGame& played, Choice OptionsForm::*strategy, unsigned seed)
{
    const GameState& state = played.state;
    const Dc& clock = played.flow.view().clock;
    std::mt19937 random(seed);
    int yourScore = 0;
    int computersScore = 0;
    int computersWords = 0;
    played.screen.onWait = [&] { // the computer's word is in the path
        expectSoundBoard(played);
        const std::string word = played.path.word();
        EXPECT_EQ(played.path.wordTried(), word);
        EXPECT_NE(played.flow.view().dictionary.words.findWord(word), -1);
        EXPECT_EQ(played.status.Label1, "Press any key to continue");
        EXPECT_TRUE(state.showsEnterWord() && state.computerTurnInProgress);
        EXPECT_FALSE(played.status.Warn || clock.running());
        ++computersWords;
        computersScore += letterSum(word);
    };
    played.clock.seconds = seed;
    played.choose(strategy);
    played.choose(&OptionsForm::Check1);
    played.start(seed % 2 == 0 ? Arrangement::Square : Arrangement::Staggered);
    for (int move = 0; !played.flow.ended(); ++move) {
        expectSoundBoard(played);
        for (int col = 1; col <= Board::columns; ++col)
            EXPECT_TRUE(played.board.isVisible(Board::Grid(1, col))) << "the board is full at every move";
        EXPECT_TRUE(state.showsEnterWord() && clock.running() && played.path.isEmpty());
        EXPECT_FALSE(state.computerTurnInProgress);
        EXPECT_EQ(state.statistics.number(Statistics::computerBase + Statistics::wordsMade), computersWords);
        EXPECT_EQ(state.compScore, computersScore);
        EXPECT_EQ(state.yourScore, yourScore);
        ASSERT_FALSE(testing::Test::HasFailure());
        if (move % 5 != 4)
            played.click(anyWord(played, random));
        yourScore += state.currScore.value_or(WordScore{}).score;
        played.flow.perform(Command::EnterWord);
        for (int second = 0; second < 61 && !played.flow.ended(); ++second)
            played.flow.tick(Timer::Clock);
    }
    EXPECT_EQ(played.dialogs.messages.back(), "Game over\r\n5 minutes have elapsed");
    EXPECT_EQ(played.dialogs.questions, std::vector<std::string>{"Another game?"}) << "the score is not offered";
    EXPECT_GE(computersWords, 5);
}

/// Guards against state of a turn that is left behind, words that are not there, and boards that are not refilled.
TEST(ComputerGames, ThirtyWithEachStrategy)
{
    const std::string words = readFile(LEXIGROVE_DATA "/L1Ascii.txt");
    for (Choice OptionsForm::*strategy : {&OptionsForm::Option12, &OptionsForm::Option13, &OptionsForm::Option14}) {
        for (unsigned seed = 1; seed <= 30; ++seed) {
            SCOPED_TRACE("seed " + std::to_string(seed));
            PlayedGame played(words);
            playUntilTheClockEndsIt(played, strategy, seed);
            ASSERT_FALSE(HasFailure());
        }
    }
}

/// Guards a draw that takes the first word twice as often as others and the last one never, and letters outside of A
/// to Z, which score nothing and make no candidate the best.
TEST(ComputerGames, AnyWordAndWordsWithoutScore)
{
    PlayedGame played("EE\r\nEEE\r\nEEEE\r\n");
    played.choose(&OptionsForm::Option14);
    played.choose(&OptionsForm::Check1);
    played.start(Arrangement::Square);
    std::map<std::string, int> words;
    played.screen.onWait = [&] { ++words[played.path.word()]; };
    for (int i = 0; i < 90; ++i)
        played.flow.perform(Command::EnterWord);
    EXPECT_NEAR(words["EE"], 60, 15);
    EXPECT_EQ(words["EE"] + words["EEE"], 90);

    PlayedGame other("it's\r\n");
    other.choose(&OptionsForm::Check1);
    other.start(Arrangement::Square, presetOf("IT'S"));
    other.study.editWaiting(2, ""); // the first drop brings down one letter
    other.flow.perform(Command::EnterWord);
    EXPECT_TRUE(other.board.isVisible(1));
    EXPECT_EQ(other.state.WordsMade.text(1, WordsGrid::wordColumn), "IT'S");
}

// Guards an opponent who knows more than was chosen, or than the player's dictionary, also after the game was kept.
TEST(ComputerGames, TheComputerKnowsNoMoreThanWasChosen)
{
    PlayedGame played("EE\r\nEEE\r\nEEEE\r\n");
    played.folder.write("L1Ascii.txt", "EE\r\nEEEEE\r\n");
    played.choose(&OptionsForm::Check1);
    played.choose(&OptionsForm::Option13);
    std::vector<std::string> words;
    played.screen.onWait = [&] { words.push_back(played.path.word()); };
    for (const Vocabulary vocabulary : {Vocabulary::Every, Vocabulary::Common, Vocabulary::Simple}) {
        played.study.chooseOptions([=](OptionsForm& form) { form.settings.vocabulary = vocabulary; });
        played.start(Arrangement::Square);
        played.flow.perform(Command::EnterWord);
    }
    EXPECT_EQ(words, (std::vector<std::string>{"EEEE", "EEEE", "EE"}));
    const SavedGame kept = savedGameOf(textOf(SavedGame{"2026-11-23 04:15", played.flow.position()}));
    EXPECT_EQ(kept.position.vocabulary, Vocabulary::Simple);
    EXPECT_EQ(kept.position, played.flow.position());
}

// Guards a dead board, a stopped clock and a price for nothing after a search with too many ways, and a window that
// cannot be left while a search takes long.
TEST(ComputerGames, ASearchThatFailsOrTakesLongIsNoTrap)
{
    PlayedGame played("EE\r\nEEEEEEEE\r\nEEEEEEEEX\r\n" + std::string(24, 'E') + "\r\n");
    played.choose(&OptionsForm::Check1);
    played.start(Arrangement::Square);
    played.study.set(&GameState::yourScore, 100);
    played.dialogs.messages.clear();
    played.flow.perform(Command::EnterWord);
    played.flow.perform(Command::GetHint);
    const std::string failure = "There are too many ways to spell one word on this board";
    EXPECT_EQ(played.dialogs.messages, (std::vector<std::string>{failure, failure}));
    EXPECT_FALSE(played.state.computerTurnInProgress);
    EXPECT_EQ(played.state.prompt, Prompt::YourMove);
    EXPECT_EQ(played.state.yourScore, 100);
    EXPECT_FALSE(played.state.redTileHold);
    EXPECT_GT(played.screen.yields, 10);

    played.screen.onYield = [&] {
        if (played.state.computerTurnInProgress)
            throw Leaving{};
    };
    played.flow.perform(Command::EnterWord);
    EXPECT_TRUE(played.flow.ended());
}

// Guards the quiet of a relaxed game: no red tile, no push, no score, no record.
TEST(ComputerGames, ARelaxedGameIsQuiet)
{
    PlayedGame played;
    played.study.chooseOptions([](OptionsForm& form) { form.settings.pressure = Pressure::Relaxed; });
    played.start(Arrangement::Square, "CAT");
    EXPECT_EQ(played.state.kind, GameKind::Preset) << "a preset board stays one";
    played.start(Arrangement::Square);
    played.study.editTile(1, "C", multiplier::doubled);
    played.study.setRedThreshold(1);
    for (const Timer timer : {Timer::Red, Timer::Push})
        played.flow.tick(timer);
    EXPECT_EQ(played.state.redTilesOnBoard, 0);
    EXPECT_EQ(played.board.letter(1), "C") << "not pushed";
    played.study.editTile(9, "A", multiplier::plain);
    played.study.editTile(17, "T", multiplier::plain);
    played.click({1, 9, 17});
    played.flow.perform(Command::EnterWord);
    played.dialogs.answers = {"yes"};
    played.flow.perform(Command::NewGame);
    EXPECT_EQ(played.dialogs.questions, std::vector<std::string>{"Do you wish to reset?"}) << "no name is asked";
    EXPECT_FALSE(std::filesystem::exists(played.folder.file("Games")));
}

} // namespace
} // namespace lexigrove
