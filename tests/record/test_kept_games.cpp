#include "platform/text_file.hpp"
#include "record/daily.hpp"
#include "tests/support/random_play.hpp"

namespace lexigrove
{
namespace
{

constexpr const char* savedGame = "LexigroveGame.txt";

std::string keptText(PlayedGame& played)
{
    played.flow.saveIfChanged();
    return played.folder.read(savedGame);
}

/// Guards against anything that decides how a game goes on and is not in its position, or is lost in its text: a game
/// that was kept goes on as if it had never been left.
TEST(KeptGames, GoOnAsIfNeverLeft)
{
    const std::string words = readFile(LEXIGROVE_DATA "/L1Ascii.txt");
    for (unsigned seed = 1; seed <= 40; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        PlayedGame left(words);
        if (seed % 2 == 0)
            left.study.chooseOptions([](OptionsForm& form) { form.setValue(form.Check1, true); });
        left.start(seed % 4 < 2 ? Arrangement::Square : Arrangement::Staggered);
        for (unsigned i = 0; i < seed && !left.flow.ended(); ++i)
            step(left, 1000 * seed + i);
        if (left.flow.ended())
            continue; // lost
        PlayedGame continued(words);
        continued.folder.write(savedGame, keptText(left));
        continued.flow.continueGame();
        ASSERT_EQ(continued.flow.position(), left.flow.position());
        continued.random = left.random;
        for (unsigned i = 0; i < 40 && !left.flow.ended(); ++i) {
            for (PlayedGame* const played : {&left, &continued})
                step(*played, 2000 * seed + i);
            ASSERT_EQ(continued.flow.ended(), left.flow.ended());
            ASSERT_EQ(continued.flow.position(), left.flow.position()) << "after step " << i;
        }
    }
}

/// Guards against a file that is half read: 1,000 damaged texts are refused, set aside and said so, and a new game
/// starts.
TEST(KeptGames, RefuseWhatIsDamaged)
{
    PlayedGame played(readFile(LEXIGROVE_DATA "/L1Ascii.txt"));
    played.start(Arrangement::Staggered);
    std::mt19937 random(20'050'101);
    for (int words = 0; words < 3; ++words) {
        played.click(anyWord(played, random));
        played.flow.perform(Command::EnterWord);
    }
    const std::string text = keptText(played);
    std::vector<std::string> damaged{"",
                                     "Hello",
                                     "LexiGrove record 1\n",
                                     text + "\n",
                                     "LexiGrove game 2" + text.substr(text.find('\n')),
                                     std::string(2'000'000, 'x')};
    while (damaged.size() < 1'000) {
        std::string other = text;
        const std::size_t place = random() % text.size();
        if (damaged.size() % 3 == 0)
            other.resize(place);
        else if (damaged.size() % 3 == 1)
            other.erase(place, 1 + random() % 40);
        else
            other[place] = static_cast<char>(other[place] ^ (1 << random() % 8));
        damaged.push_back(other);
    }
    const Position before = played.flow.position();
    for (const std::string& other : damaged) {
        played.folder.write(savedGame, other);
        played.flow.continueGame();
        ASSERT_TRUE(played.dialogs.messages.back().starts_with("The last game cannot be continued (")) << other;
        ASSERT_EQ(played.folder.read("LexigroveGame-damaged.txt"), other);
        ASSERT_FALSE(std::filesystem::exists(played.folder.file(savedGame)));
        ASSERT_EQ(played.flow.position(), before);
    }
}

/// Guards against a line of a board that is read as another board: 1,000 damaged lines name the field and the place.
TEST(BoardPositions, AreReadBackOrRefused)
{
    std::mt19937 random(20'050'101);
    for (int i = 0; i < 1'000; ++i) {
        const BoardPosition board =
            boardOfTheDay(Day(std::chrono::days(random() % 50'000)), 1 + static_cast<int>(random() % 3));
        const std::string line = textOf(board);
        ASSERT_EQ(boardPositionOf(line), board);
        EXPECT_THROW(boardPositionOf(line + std::string(1'000, 'E')), PositionError);
        std::string other = line;
        const std::size_t place = random() % (line.rfind(' ') + 2);
        if (i % 2 == 0)
            other.resize(std::min(place, line.rfind(' ')));
        else
            other.insert(place, 1, "!5/#"[random() % 4]);
        try {
            boardPositionOf(other);
            FAIL() << other;
        } catch (const PositionError& error) {
            const std::string reason = error.what();
            const auto names = {"arrangement", "level", "board", "drop row", "queue", "after the queue"};
            EXPECT_TRUE(std::ranges::any_of(names, [&](const char* name) { return reason.starts_with(name); }))
                << reason;
        }
    }
}

/// Guards against a game that is lost at the end of the program, or comes back after it was given up.
TEST(KeptGames, StayUntilTheyAreGivenUp)
{
    PlayedGame first;
    const auto isKept = [&] { return std::filesystem::exists(first.folder.file(savedGame)); };
    first.start(Arrangement::Square, presetOf("CAT"));
    first.click({1, 2, 3});
    first.flow.perform(Command::EnterWord);
    const Position kept = first.flow.position();
    first.flow.perform(Command::KeepForLater);
    EXPECT_TRUE(first.flow.ended() && isKept());
    EXPECT_TRUE(first.dialogs.questions.empty() && first.windows.shown.empty()) << "nothing is asked";

    GameFlow beside(first.ports(), first.folder.path(), SystemPalette()); // while the first is still open
    beside.setKeeping(GameFlow::Keeping::Off);
    beside.startUp();
    beside.startGame();
    beside.perform(Command::KeepForLater);
    EXPECT_EQ(first.dialogs.messages.back(), "This game cannot be kept: LexiGrove is open a second time");
    beside.perform(Command::Exit);

    const auto startAgain = [&](bool accepted, auto onOptions) {
        GameFlow flow(first.ports(), first.folder.path(), SystemPalette());
        first.windows.onContinue = [=](ContinueForm& form) { form.accepted = accepted; };
        first.windows.onOptions = onOptions;
        flow.startUp();
        flow.continueGame();
        if (!flow.inGame())
            flow.openOptionsAndStart();
        return flow.ended() ? Position() : flow.position();
    };
    const auto start = [](OptionsForm& form) { form.pressStart(); };
    EXPECT_EQ(startAgain(true, start), kept);
    EXPECT_TRUE(isKept());
    startAgain(false, [](OptionsForm& form) { form.pressExit(); });
    EXPECT_TRUE(isKept()) << "no other game has begun";
    EXPECT_EQ(startAgain(false, start).state.yourScore, 0);
    EXPECT_FALSE(isKept());
    EXPECT_EQ(RecordFolder(first.folder.path()).list().records.size(), 1U) << "it can be looked back on";

    PlayedGame last;
    last.start(Arrangement::Square);
    last.flow.saveIfChanged();
    EXPECT_TRUE(std::filesystem::exists(last.folder.file(savedGame)));
    last.flow.perform(Command::Exit);
    EXPECT_FALSE(std::filesystem::exists(last.folder.file(savedGame)));
}

} // namespace
} // namespace lexigrove
