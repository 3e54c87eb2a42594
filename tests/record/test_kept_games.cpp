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

/// What a player or a timer may do next. The same number does the same in two games that are the same.
void step(PlayedGame& played, unsigned seed)
{
    std::mt19937 random(seed);
    GameFlow& flow = played.flow;
    const auto anyOf = [&](int count) { return 1 + static_cast<int>(random() % static_cast<unsigned>(count)); };
    played.windows.onHints = [&, row = random()](HintsForm& form) {
        form.pickRow(1 + static_cast<int>(row % static_cast<unsigned>(form.WordsMade.Rows() - 1)));
        form.pressSelect();
    };
    switch (random() % 12) {
    case 0:
        for (int ticks = anyOf(300); ticks > 0; --ticks)
            flow.tick(Timer::Red);
        return;
    case 1:
        return flow.tick(Timer::Push);
    case 2:
    case 3:
    case 4:
        flow.perform(Command::ClearWord);
        played.click(anyWord(played, random));
        if (random() % 4 != 0)
            flow.perform(Command::EnterWord);
        return;
    case 5:
    case 6:
        return flow.drop(anyOf(8));
    case 7:
        return flow.clickTile(anyOf(64), random() % 2 == 0 ? MouseButton::Left : MouseButton::Right, random() % 2 == 0);
    case 8:
        return flow.typeLetter(static_cast<char>('A' + random() % 26));
    case 9:
        return flow.perform(Command::GetHint);
    case 10:
        return flow.perform(random() % 2 == 0 ? Command::TakeBack : Command::Statistics);
    default:
        flow.sortWordsMade(anyOf(2500));
        return flow.tick(Timer::Clock);
    }
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
