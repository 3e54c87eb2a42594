#include "tests/support/played_game.hpp"

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace lexigrove
{
namespace
{

/// Guards against a clock that stands still after a pause or runs behind a question, and a pause that outlasts its
/// game.
TEST(WholeGame, TheClockOfAGameAgainstTheComputer)
{
    PlayedGame played;
    const Dc& clock = played.flow.view().clock;
    const auto tick = [&] {
        played.flow.tick(Timer::Clock);
        return clock.currentValue();
    };
    played.clock.seconds += 60;
    tick();
    EXPECT_EQ(clock.shownDigit(3), 1) << "the time of day goes on";

    played.choose(&OptionsForm::Check1);
    played.start(Arrangement::Square);
    EXPECT_EQ(tick(), 599);
    played.flow.perform(Command::Pause);
    EXPECT_EQ(played.flow.pauseCaption(), "Paused");
    played.flow.tick(Timer::Pause);
    EXPECT_EQ(played.flow.pauseCaption(), "");
    EXPECT_EQ(tick(), 599);
    played.flow.perform(Command::Pause);
    EXPECT_EQ(tick(), 598);
    played.flow.perform(Command::Pause);
    played.flow.startGame();
    EXPECT_FALSE(played.flow.isPaused());
    EXPECT_EQ(tick(), 599);

    const std::pair<int, const char*> leads[] = {{2, "You won by 2 points"},
                                                 {1, "You won by 1 point"},
                                                 {0, "A draw: you and the computer have the same score"},
                                                 {-1, "The computer won by 1 point"}};
    for (const auto& [lead, text] : leads) {
        played.study.set(&GameState::yourScore, 7 + lead);
        played.study.set(&GameState::compScore, 7);
        played.dialogs.answers = {"yes"};
        played.dialogs.at["Another game?"] = [&, expected = text] {
            tick();
            EXPECT_GE(tick(), 599) << "it stands still behind a question";
            EXPECT_EQ(played.status.Label1, expected);
        };
        played.windows.onOptions = [&](OptionsForm& form) {
            EXPECT_EQ(clock.shownDigit(1), 2) << "it shows the time of day";
            EXPECT_FALSE(played.board.isVisible(64)) << "over the board of a game that is done";
            form.pressStart();
        };
        played.flow.clockGotFocus();
    }
}

TEST(WholeGame, DeveloperModeHasAPasswordAndKeys)
{
    PlayedGame played;
    played.choose(&OptionsForm::Option10);
    played.start(Arrangement::Square);
    std::vector<int> delays;
    const auto press = [&](DeveloperKey key) {
        played.flow.releaseDeveloperKey(key);
        delays.push_back(played.flow.view().options.settings.dropDelay);
    };
    press(DeveloperKey::End);
    played.dialogs.answers = {"718kestr", "718KESTR"};
    played.flow.perform(Command::AskPassword);
    for (const auto key : {DeveloperKey::NumpadMinus, DeveloperKey::Home, DeveloperKey::End, DeveloperKey::NumpadPlus})
        press(key);
    EXPECT_EQ(delays, (std::vector<int>{250, 260, 250, 0, 0}));
    for (int i = 0; i < 4'000; ++i)
        press(DeveloperKey::NumpadMinus);
    EXPECT_EQ(delays.back(), 32'767) << "16 bits";
    played.flow.perform(Command::AskPassword);
    EXPECT_FALSE(played.state.developerMode);
}

// Guards the ways out of a list that cannot be played: accepted, the very game that begins has its words; declined, it
// goes on as it is, and one's own list is not asked about again.
TEST(WholeGame, ListsThatCannotBePlayedAreMended)
{
    PlayedGame played;
    const WordList& words = played.flow.view().dictionary.words;
    const auto wordsAfter = [&](bool accepted, std::size_t offers) {
        played.dialogs.acceptsOffers = accepted;
        played.start(Arrangement::Square);
        EXPECT_EQ(played.dialogs.offers.size(), offers);
        return words.count() == 0 ? "" : std::string(words.entry(words.count()));
    };
    wordsAfter(false, 0);
    ASSERT_TRUE(played.study.maintain(Study::Maintenance::AddWord, "ZEBRA"));
    played.dialogs.messages.clear();
    EXPECT_NE(wordsAfter(false, 1), "ZEBRA");
    EXPECT_EQ(wordsAfter(true, 2), "ZEBRA");
    EXPECT_TRUE(played.dialogs.messages.empty());

    played.folder.write("UsrDict.txt", "quiz\r\nCAT\r\n");
    played.choose(&OptionsForm::Option2);
    EXPECT_EQ(wordsAfter(false, 3), "CAT");
    EXPECT_EQ(wordsAfter(true, 3), "CAT");
    EXPECT_TRUE(played.status.News.starts_with("Line 1 of UsrDict.txt is in lower case"));
    played.folder.write("Mine.txt", "quiz\r\nCAT\r\n");
    played.study.chooseOptions([](OptionsForm& form) { form.typeUserDictName("Mine.txt"); });
    EXPECT_EQ(wordsAfter(true, 4), "QUIZ");
    EXPECT_EQ(wordsAfter(true, 4), "QUIZ") << "the copy stays chosen";
}

/// Puts something else into the place of a file.
void put(const std::string& kind, const std::filesystem::path& path)
{
    std::filesystem::remove(path);
    if (kind == "folder")
        std::filesystem::create_directory(path);
    else if (kind == "pipe")
        ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
    else if (kind == "loop")
        std::filesystem::create_symlink(path.filename(), path);
    else if (kind == "device")
        std::filesystem::create_symlink("/dev/zero", path);
    else
        std::filesystem::resize_file((std::ofstream(path), path), std::uintmax_t{2} << 30);
}

/// Reads and writes all that a game keeps.
void playWith(QuietWorld& world, bool canPlay)
{
    world.dialogs.answers = {"Ada", "yes", "yes", "no"};
    GameFlow flow(world.ports(), world.folder.path(), SystemPalette());
    Study study(flow);
    flow.startUp();
    flow.continueGame();
    study.loadScheme("Night.sch");
    flow.startGame();
    ASSERT_EQ(flow.inGame(), canPlay);
    flow.saveIfChanged();
    study.maintain(Study::Maintenance::AddWord, "EMU");
    study.saveConfiguration();
    study.showTopTen(500);
    flow.perform(Command::PastGames);
    flow.perform(Command::ExportWords);
    flow.perform(Command::Exit);
    EXPECT_TRUE(flow.ended());
}

// Guards against a game that hangs or eats the memory because something else stands where it keeps a file.
TEST(WholeGame, WhatIsNoFileStopsNoGame)
{
    for (const char* name :
         {"Lexigrove.cfg", "Lexigrove.cfg.new", "LexigroveScores.txt", "LexigroveScores.txt.new",
          "LexigroveScores.txt.lock", "LexigroveGame.txt", "LexigroveGame.txt.new", "Games", "Night.sch", "Default.sch",
          "MeaningServices.txt", "L2Ascii.txt", "L2Ascii.txt.new", "L2Ascii.txt.lock", "SysDik2Backup.txt"}) {
        for (const char* kind : {"folder", "pipe", "loop", "device", "giant"}) {
            SCOPED_TRACE(std::string(name) + " is a " + kind);
            QuietWorld world("CAT\r\nQUIZ\r\n");
            put(kind, world.folder.file(name));
            const pid_t child = ::fork();
            if (child == 0) {
                ::alarm(10);
                playWith(world, std::string(name) != "L2Ascii.txt");
                ::_exit(HasFailure() ? 1 : 0);
            }
            int status = 0;
            ASSERT_EQ(::waitpid(child, &status, 0), child);
            EXPECT_EQ(status, 0);
        }
    }
}

} // namespace
} // namespace lexigrove
