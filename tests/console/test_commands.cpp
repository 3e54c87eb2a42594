#include "tests/console/console_run.hpp"

#include <algorithm>

namespace lexigrove
{
namespace
{

using Events = std::vector<std::string>;

/// Commands in one run, each with the text of its answer; "?" before the reason of a failure.
void expectAnswers(ConsoleRun& run, const std::vector<std::pair<std::string, std::string>>& script)
{
    std::vector<std::string> lines;
    lines.reserve(script.size() + 1);
    for (const auto& [command, text] : script)
        lines.push_back(command);
    lines.emplace_back("quit");
    const Output output = run.play(lines);
    ASSERT_EQ(output.answers.size(), lines.size());
    for (std::size_t i = 0; i < script.size(); ++i) {
        const Answer& answer = output.answers[i];
        EXPECT_EQ((answer.ok ? "" : "?") + answer.text, script[i].second) << "line " << i << ": " << script[i].first;
    }
}

/// Guards against a command that is missing, or that nobody can read about.
TEST(ConsoleCommands, TheListIsTheDocumentedOne)
{
    std::ifstream page(DOCS_FOLDER "console.md");
    std::string documented;
    bool inCommands = false;
    for (std::string line; std::getline(page, line);) {
        inCommands = inCommands || line == "## Commands";
        if (inCommands && line.starts_with("| `"))
            documented += (documented.empty() ? "" : "\n") + line.substr(3, line.find_first_of(" `", 3) - 3);
    }
    ConsoleRun run;
    EXPECT_EQ(run.play({"list_commands"}).last().text, documented);
    EXPECT_GE(std::count(documented.begin(), documented.end(), '\n'), 50);
}

/// Guards against a run that cannot be repeated, and against games that are always the same.
TEST(ConsoleCommands, AFrozenClockRepeatsARun)
{
    std::string script = "options computer=yes strategy=any\nnew_game\nshow\n";
    for (int tile = 1; tile <= 64; ++tile)
        script += "click " + std::to_string(tile) + " right\n" + (tile % 3 == 0 ? "enter\n" : "");
    script += "enter\nshow\nqueue\nquit\n";
    const auto played = [&](std::optional<double> time) { return ConsoleRun().output(script, time); };
    EXPECT_EQ(played(1), played(1));
    EXPECT_NE(played(1), played(2));
    EXPECT_NE(played({}), played({})) << "without it every game is another";
}

TEST(ConsoleCommands, ASoloGame)
{
    ConsoleRun run;
    expectAnswers(
        run, {
                 {ConsoleRun::presetBoard("CATSQUIZ"),
                  "arrangement=Square\ndictionary=2\nuser_dictionary=UsrDict.txt\ncomputer=no\nstrategy=highest\n"
                  "sound=off\nanimation=off\nmeanings=2\nscheme=Default.sch\npreset=" +
                      std::string("CATSQUIZ") + std::string(92, 'E')},
                 {"new_game", ""},
                 {"tile 1", "index=1, seq=1<C> row=1, col=1, Neibors=2,9,10,A,E,E,, value=3, maskcolor=1, tag= "},
                 {"hover 5", "Letter Q - score =10"},
                 {"value Label1", "Letter Q - score =10"},
                 {"neighbours 64", "63,56,55,"},
                 {"edit 3 t 3", ""},
                 {"edit 40 E 9", ""},
                 {"edit 41 .", ""},
                 {"neighbours 42", "43,35,49,34,50,33,51,"},
                 {"value bonus_tiles", "1"},
                 {"value red_tiles", "1"},
                 {"click 1", "C 3"},
                 {"click 2", "CA 4"},
                 {"click 3", "CAT 15"},
                 {"path", "1 2 3"},
                 {"show", "E E E E E E E E\n---------------\nc E E E E . E E\na E E E E E E E\nt3 E E E E E E E\n"
                          "S E E E E E E E\nQ E E E E E E E\nU E E E E E E E\nI E E E E E E E\nZ E E E E9 E E E"},
                 {"value WordTried", "CAT"},
                 {"value CurrScore", "15"},
                 {"check", ""},
                 {"value Label1", "CAT\\r\\nFound"},
                 {"enter", ""},
                 {"words_made", "1\\t15\\t3\\tCAT"},
                 {"value YourScore", "15"},
                 {"value words_made", "1"},
                 {"value bonus_tiles", "0"},
                 {"click 1", "?tile 1 is not on the board"},
                 {"edit_top 1 .", ""},
                 {"drop 1", "?no letter waits over column 1"},
                 {"edit_top 1 X", ""},
                 {"drop 1", ""},
                 {"tile 3", "index=3, seq=3<X> row=3, col=1, Neibors=2,4,10,11,12,E,S,E,E,E,, value=8, maskcolor=1, "
                            "tag= "},
                 {"value TilesLeft", "21"},
                 {"click 3", "X 8"},
                 {"click 3", ""},
                 {"click 3 right", "X 8"},
                 {"click 3 right", "X 8"},
                 {"click 3 shift", ""},
                 {"value Label1", "Now click the waiting letter to swap it with"},
                 {"drop 8", ""},
                 {"value YourScore", "5"},
                 {"statistics", "1 1\n2 \n3 1\n4 \n5 \n6 \n7 3\n8 CAT \n9 \n10 \n11 \n12 \n13 \n14 \n15 \n16 \n"
                                "letters_used 1 0 1 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 1 0 0 0 0 0 0"},
                 {"developer on", ""},
                 {"click 4", "S 1"},
                 {"click 5", "SQ 11"},
                 {"enter", ""},
                 {"developer off", ""},
                 {"meaning 3", "?row must be 1 to 2: 3"},
                 {"pause", "paused"},
                 {"enter", "?the game is paused"},
                 {"red_tick", ""},
                 {"pause", "playing"},
                 {"set last_pressure -1000", ""},
                 {"red_tick 2", ""},
                 {"value ticks", "2"},
                 {"value pressure", "11"},
                 {"value last_pressure", "10"},
                 {"value red_threshold", "499"},
                 {"value red_tiles", "2"},
                 {"value hold", "0"},
                 {"show_statistics", ""},
                 {"value hold", "1"},
                 {"meaning 2", ""},
                 {"push_tick", ""},
                 {"set red_tiles_used 7", ""},
                 {"value red_tiles_used", "7"},
                 {"set TilesLeft NONE", ""},
                 {"value TilesLeft", "NONE"},
                 {"value hints_used", "0"},
                 {"value delay", "0"},
                 {"value EnterWord", "Enter Word"},
                 {"value caption", "Lexigrove - Level 2"},
                 {"queue", std::string(25, 'E')},
                 {"sound", "Sound is on"},
             });
}

/// Guards against a meaning, sound or status that is told late, or to nobody.
TEST(ConsoleCommands, WhatHappensIsToldBeforeTheAnswer)
{
    ConsoleRun run;
    const Output output =
        run.play({ConsoleRun::presetBoard("CATS") + " sound=on meanings=4", "new_game", "click 2", "click 3", "enter",
                  "meaning 1", "click 3 shift", "drop 1", "set YourScore 9", "hint", "menu_new_game", "no", "quit"});
    ASSERT_EQ(output.answers.size(), 12U);
    EXPECT_EQ(output.answers[2].events, (Events{"sound beep3.wav"}));
    EXPECT_EQ(output.answers[4].events, (Events{"sound beep4.wav", "sound beep4.wav"}));
    EXPECT_EQ(output.answers[5].events,
              (Events{"sound cnqmenu.wav", "meaning https://foldoc.org/foldoc/foldoc.cgi?query=AT&action=Search"}));
    EXPECT_EQ(output.answers[6].events,
              (Events{"sound err3.wav", "status your score must be at least 10 to swap a letter"}));
    EXPECT_EQ(output.answers[7].events, (Events{"sound click.wav", "sound click.wav"}));
    EXPECT_EQ(output.answers[9].events,
              (Events{"sound err3.wav", "status your score must be at least15 to get a hint"}));
    EXPECT_EQ(output.answers[10].events, (Events{"sound cnqmenu.wav", "confirm Do you wish to reset?"}));
}

TEST(ConsoleCommands, AGameAgainstTheComputer)
{
    ConsoleRun run;
    expectAnswers(run, {
                           {"clock", "12:34 colon=lh timer=on"},
                           {"clock_tick", ""},
                           {"clock", "12:34 colon=lh timer=on"},
                           {"options arrangement=Square computer=yes preset=CATSQUIZ" + std::string(92, 'E'),
                            "arrangement=Square\ndictionary=2\nuser_dictionary=UsrDict.txt\ncomputer=yes\n"
                            "strategy=highest\nsound=on\nanimation=off\nmeanings=2\nscheme=Default.sch\n"
                            "preset=CATSQUIZ" +
                                std::string(92, 'E')},
                           {"new_game", ""},
                           {"trace catx", "3\n010203CAT"},
                           {"trace X", "0"},
                           {"sweep", "4 4 3\n0002 0203AT\n0005 010203CAT\n0006 01020304CATS\n0022 05060708QUIZ"},
                           {"clock_tick 61", ""},
                           {"clock", "08:59 colon=dd timer=on"},
                           {"clock_click right", ""},
                           {"clock", "--:-- colon=ll timer=on"},
                           {"enter", ""},
                           {"value Label1", "Press any key to continue"},
                           {"value CompScore", "22"},
                           {"value WordTried", "Your move"},
                           {"words_made", "1\\t22\\t4\\tQUIZ"},
                           {"computer_turn", ""},
                           {"value CompScore", "28"},
                           {"red_tick 5", ""},
                           {"value ticks", "0"},
                           {"set CompScore 3", ""},
                           {"value CompScore", "3"},
                           {"new_game", ""},
                           {"value CompScore", "0"},
                       });
}

TEST(ConsoleCommands, WordsAndTheirMaintenance)
{
    ConsoleRun run;
    const std::string level1 = run.folder.file("L1Ascii.txt");
    std::vector<std::string> lines{"pool",
                                   "letter_counts",
                                   "word_count",
                                   "options dictionary=1",
                                   "new_game",
                                   "word_count",
                                   "word 2",
                                   "find QUIZ",
                                   "find quiz",
                                   "find",
                                   "spell_check cat",
                                   "show_dictionary",
                                   "spell_check  cat ",
                                   "add_word dog",
                                   "word 4",
                                   "remove_word cat",
                                   "word_count",
                                   "word 4",
                                   "export",
                                   "new_game",
                                   "quit"};
    const Output output = run.play(lines);
    ASSERT_EQ(output.answers.size(), lines.size());
    const char* const texts[] = {
        "AAAAAAAAABBCCDDDDEEEEEEEEEEEEFFGGGHHIIIIIIIIIJKLLLLMMNNNNNNOOOOOOOOPPQRRRRRRSSSSTTTTTTUUUUUUVVWWXYYZ",
        "9 2 2 4 12 2 3 2 9 1 1 4 2 6 8 2 1 6 4 6 6 2 2 1 2 1",
        "0",
        nullptr,
        "",
        "4",
        "CAT",
        "4",
        "-1",
        "0",
        "",
        "4",
        "",
        "",
        "DOG",
        "",
        "4",
        "QUIZ",
    };
    for (std::size_t i = 0; i < std::size(texts); ++i) {
        if (texts[i] != nullptr) {
            EXPECT_EQ(output.answers[i].text, texts[i]) << lines[i];
        }
    }
    EXPECT_EQ(output.answers[10].events, (Events{"message Load Dictionary first"}));
    EXPECT_EQ(output.answers[12].events, (Events{"message CAT found"}));
    EXPECT_EQ(output.answers[13].events.back(), "message Word DOG added to " + level1);
    EXPECT_EQ(output.answers[15].events.back(), "message Word CAT removed from " + level1);
    EXPECT_EQ(output.answers[19].events.back(),
              "status Level 1 holds the maintained format; convert it in Dictionary Maintenance");
    EXPECT_TRUE(run.folder.read("L1Ascii.txt").starts_with("7A776A\t")) << "129, enciphered";

    run.folder.write("my words.txt", "ZOO\r\nant\r\n");
    const Output user =
        run.play({"options dictionary=0 user_dictionary=my words.txt", "new_game", "value caption", "add_word x",
                  "export", "word 1", "options user_dictionary=none", "new_game", "name"});
    EXPECT_EQ(user.answers[2].text, "Lexigrove - User Dictionary (my words.txt)");
    EXPECT_EQ(user.answers[3].text, "Cannot add words to user dictionary through this option");
    EXPECT_EQ(user.answers[5].text, "ANT");
    EXPECT_EQ(user.last().events,
              (Events{"status Reading Dictionary...",
                      "message Error while reading dictionary:\\r\\nnone\\r\\nProgram cannot continue", "exit"}))
        << "no game goes on without its dictionary";
}

TEST(ConsoleCommands, FilesOfTheFolder)
{
    ConsoleRun run;
    const std::string colours = "\n16711680\n16711936" + ConsoleRun::repeated("\n197121", 11);
    expectAnswers(run, {
                           {"version", LEXIGROVE_VERSION},
                           {"load_scheme Blue.sch", "Blue.sch" + colours},
                           {"load_scheme None.sch", "Default.sch" + colours},
                           {"load_scheme", "Default.sch\n0\n1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n11\n12"},
                           {"clock_click left", ""},
                           {"options scheme=Blue.sch animation=on", "arrangement=Staggered\ndictionary=2\n"
                                                                    "user_dictionary=UsrDict.txt\ncomputer=no\n"
                                                                    "strategy=highest\nsound=on\nanimation=on\n"
                                                                    "meanings=2\nscheme=Blue.sch\npreset="},
                           {"save_config", ""},
                       });
    EXPECT_NE(run.folder.read("Lexigrove.cfg").find(" 12:34:00\r\nBlue.sch\r\n4\r\n"), std::string::npos);
    std::string saved = run.folder.read("Lexigrove.cfg");
    run.folder.write("Lexigrove.cfg", saved.replace(saved.find("Blue.sch"), 8, "Reed.sch"));
    const Output output = run.play({"options animation=off", "load_config", "options", "scores", "top10 -1", "NewGame",
                                    "Close", "top10 12", "Ann", "NewGame", "scores", "quit"});
    EXPECT_EQ(output.answers[0].events,
              (Events{"message Color Scheme File:Reed.sch not found, defaults will be used"}));
    EXPECT_NE(output.answers[2].text.find("animation=on\nmeanings=2\nscheme=Reed.sch"), std::string::npos);
    EXPECT_EQ(output.answers[3].events, (Events{"message Scores File not found - will create a new one"}));
    EXPECT_EQ(output.answers[4].events, (Events{"top10 -1", "top10 -1"}));
    EXPECT_EQ(output.answers[4].text, "");
    EXPECT_EQ(output.answers[5].text, "NOGAME");
    EXPECT_TRUE(output.answers[6].text.ends_with("\n00012\\tYelka\n00012\\tAnn\n00011\\tYelka"))
        << output.answers[6].text;
}

} // namespace
} // namespace lexigrove
