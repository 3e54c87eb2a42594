#include "console/option_settings.hpp"
#include "platform/leaving.hpp"
#include "tests/console/console_run.hpp"

namespace lexigrove
{
namespace
{

using Events = std::vector<std::string>;

const std::string nameBox = "input LexiGrove Top 10 List: You have made TOP 10 list, Enter your name";

/// A game of 30 points that the next column push loses, and the push.
std::vector<std::string> lostGame()
{
    return {"options sound=off arrangement=Square", "new_game", "set YourScore 30", "edit 64 E 9", "push_tick"};
}

Output playOn(ConsoleRun& run, std::vector<std::string> lines, const std::vector<std::string>& replies)
{
    lines.insert(lines.end(), replies.begin(), replies.end());
    return run.play(lines);
}

/// Guards against replies that are lost, taken twice or taken for commands.
TEST(ConsoleQuestions, ALossAsksItsWayToTheNextGame)
{
    ConsoleRun run;
    run.play({"scores", "quit"});
    const Output output = playOn(
        run, lostGame(),
        {"",        "# 1\\\\",         "close",         "# a comment", "Close",        "maybe",       "yes",
         "NewGame", "Close",           "dictionary=1",  "size=3",      "computer=yes", "# a comment", "scheme=Blue.sch",
         "start",   "value YourScore", "value caption", "options",     "scores",       "quit"});
    ASSERT_EQ(output.answers.size(), 10U);
    EXPECT_EQ(output.answers[4].events,
              (Events{"status A red tile was pushed out. Game over.", nameBox, nameBox, "top10 30", "top10 30",
                      "confirm Another game?", "confirm Another game?", "top10 -1", "top10 -1", "options", "options",
                      "status Reading Dictionary...", "status "}));
    EXPECT_EQ(output.answers[5].text, "0");
    EXPECT_EQ(output.answers[6].text, "Lexigrove - Level 1");
    EXPECT_EQ(output.answers[7].text, "arrangement=Square\ndictionary=1\nuser_dictionary=UsrDict.txt\ncomputer=yes\n"
                                      "strategy=highest\nsound=off\nanimation=off\nmeanings=2\nscheme=Blue.sch\n"
                                      "preset=x");
    EXPECT_TRUE(output.answers[8].text.starts_with("00030\\t# 1\\\\\n00019\\tYelka\n")) << output.answers[8].text;
}

TEST(ConsoleQuestions, ThePlayersButtonsEndTheGame)
{
    for (const std::vector<std::string>& replies :
         {std::vector<std::string>{"Ann", "ExitProgram"}, {"Ann", "Close", "no"}, {"Ann", "NewGame", "exit"}}) {
        ConsoleRun run;
        run.play({"scores", "quit"});
        std::vector<std::string> more = replies;
        more.emplace_back("name");
        const Output output = playOn(run, lostGame(), more);
        EXPECT_EQ(output.answers.size(), 5U) << "the console has ended";
        EXPECT_EQ(output.last().events.back(), "exit");
        EXPECT_TRUE(output.leaving.empty());
    }
}

/// Guards against an end of the input that hangs, asks on, or loses what closing the window would keep.
TEST(ConsoleQuestions, TheEndOfTheInputLeavesInTheMiddleOfAnything)
{
    const std::vector<std::vector<std::string>> beginnings{
        {},
        {"Ann"},
        {"Ann", "Close"},
        {"Ann", "Close", "yes"},
        {"Ann", "Close", "yes", "Close"},
        {"Ann", "Close", "yes", "Close", "sound=on"},
    };
    for (const auto& replies : beginnings) {
        ConsoleRun run;
        run.play({"scores", "quit"});
        std::filesystem::remove(run.folder.file("Lexigrove.cfg"));
        const Output output = playOn(run, lostGame(), replies);
        ASSERT_EQ(output.answers.size(), 5U) << replies.size();
        EXPECT_EQ(output.last().events.back(), "exit") << replies.size();
        EXPECT_EQ(output.last().text, "");
        EXPECT_TRUE(output.leaving.empty());
        EXPECT_NE(run.folder.read("Lexigrove.cfg"), "") << "the options are saved";
        const std::string best = run.play({"scores", "quit"}).answers[0].text.substr(0, 8);
        EXPECT_EQ(best, replies.empty() ? "00019\\tY" : "00030\\tA") << "recorded once, or not at all";
    }

    ConsoleRun run;
    EXPECT_EQ(run.play({"options sound=on", "new_game", "set YourScore 30"}).leaving,
              (Events{"message Scores File not found - will create a new one", nameBox, "sound thanks.wav", "exit"}));
    EXPECT_EQ(run.play({"menu_new_game"}).last().events,
              (Events{"sound cnqmenu.wav", "options", "sound thanks.wav", "exit"}));
    EXPECT_EQ(run.play({"preset"}).last().events.back(), "exit");
}

/// Guards against a hint that is another than the one that was picked.
TEST(ConsoleQuestions, HintsAreListedAndTaken)
{
    ConsoleRun run;
    const std::vector<std::string> start{ConsoleRun::presetBoard("CATSQUIZ"), "new_game", "set YourScore 40", "hint"};
    const Output output = playOn(run, start,
                                 {"select 5", "select", "take 1", "select 4", "words_made", "value YourScore", "hint",
                                  "close", "value hints_used", "path", "quit"});
    const Events told{"hints 4", "hint 1 2 2 AT", "hint 2 5 3 CAT", "hint 3 6 4 CATS", "hint 4 22 4 QUIZ"};
    Events expected;
    for (int i = 0; i < 4; ++i)
        expected.insert(expected.end(), told.begin(), told.end());
    EXPECT_EQ(output.answers[3].events, expected) << "three replies mean nothing";
    EXPECT_EQ(output.answers[4].text, "1\\t22\\t4\\tQUIZ");
    EXPECT_EQ(output.answers[5].text, "47");
    EXPECT_EQ(output.answers[6].events, (Events{"hints 3", "hint 1 2 2 AT", "hint 2 5 3 CAT", "hint 3 6 4 CATS"}));
    EXPECT_EQ(output.answers[7].text, "2");
    EXPECT_EQ(output.answers[8].text, "");
    EXPECT_EQ(playOn(run, start, {}).last().events.back(), "exit") << "the input ends in the window";
}

/// Guards against preset letters that fill a second game, or that a cancelled box takes away.
TEST(ConsoleQuestions, PresetLettersCountForOneGame)
{
    ConsoleRun run;
    const std::string letters = ConsoleRun::repeated("quiz", 25);
    const Output output =
        run.play({"options arrangement=Square", "preset", "quiz", "a b", letters, "new_game", "show", "preset", "",
                  "new_game", "show", "options preset=" + letters, "new_game", "show", "quit"});
    ASSERT_EQ(output.answers.size(), 11U);
    EXPECT_EQ(output.answers[1].events,
              (Events{"input Preset Letters: Enter 100 letters A to Z in any sequence", "message enter 96 more letters",
                      "input Preset Letters: Enter 100 letters A to Z in any sequence",
                      "input Preset Letters: Enter 100 letters A to Z in any sequence",
                      "message Tiles preset, press Start to commence game"}));
    const std::string board = "Q I Q I Q I Q I\n---------------\nQ Q Q Q Q Q Q Q\nU U U U U U U U\nI I I I I I I I\n";
    EXPECT_TRUE(output.answers[3].text.starts_with(board)) << output.answers[3].text;
    EXPECT_FALSE(output.answers[6].text.starts_with(board)) << "dealt at random";
    EXPECT_TRUE(output.answers[9].text.starts_with(board)) << "given anew, the same letters count again";
}

/// No command opens the file dialog, but the rules may.
TEST(ConsoleQuestions, AFileDialogAndAnInputBoxTakeTheNextLineAsItStands)
{
    std::istringstream in("# a\\\\b.txt\n\nx\\ty \n");
    std::ostringstream out;
    LineChannel channel(in, out);
    ConsoleDialogs dialogs(channel);
    EXPECT_EQ(dialogs.openFile({"Select", "", ""}), "# a\\b.txt");
    EXPECT_EQ(dialogs.openFile({"Select", "", ""}), "");
    EXPECT_EQ(dialogs.input("T", "P\nQ", "default"), "x\ty ");
    EXPECT_THROW(dialogs.openFile({"Select", "", ""}), Leaving);
    EXPECT_EQ(out.str(), "! open Select\n! open Select\n! input T: P\\nQ\n! open Select\n");
}

} // namespace
} // namespace lexigrove
