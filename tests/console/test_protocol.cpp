#include "console/command_line.hpp"
#include "tests/console/console_run.hpp"

namespace lexigrove
{
namespace
{

/// Guards against a script that loses step with its answers.
TEST(ConsoleProtocol, AnswersAreFramed)
{
    ConsoleRun run;
    EXPECT_EQ(run.output("\n# a comment\n   \nname\n7 name\r\n007   protocol_version \n12\n9 foo bar\nshow\n"
                         "known_command show\nknown_command Show\nquit\nname\n"),
              "= LexiGrove\n\n=7 LexiGrove\n\n=007 1\n\n?12 missing argument: command\n\n?9 unknown command: foo\n\n"
              "? no game\n\n= true\n\n= false\n\n= \n\n");
    EXPECT_EQ(run.output("5 name"),
              "=5 LexiGrove\n\n! message Scores File not found - will create a new one\n! sound thanks.wav\n! exit\n")
        << "the input ends";
}

/// Guards against a first start whose events come too late, or are lost.
TEST(ConsoleProtocol, TheStartIsToldBeforeTheFirstAnswer)
{
    ConsoleRun run;
    std::filesystem::remove(run.folder.file("Lexigrove.cfg"));
    EXPECT_EQ(run.output("name\nquit\n"), "! message Configuration file:\\r\\n" + run.folder.path() +
                                              "Lexigrove.cfg\\r\\nnot found, default file will be created\n"
                                              "= LexiGrove\n\n= \n\n");
}

/// Guards against bytes that break a line, and blanks that a text loses.
TEST(ConsoleProtocol, TextsAreEscapedBothWays)
{
    std::string all;
    for (int code = 1; code < 256; ++code)
        all += static_cast<char>(code);
    EXPECT_EQ(unescaped(escaped(all)), all);
    EXPECT_EQ(escaped(all).find_first_of("\r\n\t"), std::string::npos);
    EXPECT_EQ(escaped("\\n"), "\\\\n");
    EXPECT_EQ(unescaped("\\x\\"), "\\x\\") << "no escape";

    ConsoleRun run;
    EXPECT_EQ(run.play({"encipher KESTR 129"}).last().text, "7A776A");
    for (const std::string& text : {std::string("  a b "), std::string("tab\\tcr\\r\\\\n"), std::string("\xE9t\xE9")}) {
        const std::string cipher = run.play({"encipher KESTR " + text}).last().text;
        EXPECT_EQ(run.play({"decipher KESTR " + cipher}).last().text, text) << cipher;
    }
    EXPECT_EQ(run.play({"decipher KESTR  A"}).last().text, "A") << "the second blank is text";
    EXPECT_EQ(run.play({"encipher KESTR"}).last().text, "");
}

/// Guards against a bad command that does half its work.
TEST(ConsoleProtocol, ABadCommandNamesTheFaultAndChangesNothing)
{
    const std::pair<const char*, const char*> cases[] = {
        {"tile 65", "tile must be 1 to 64: 65"},
        {"tile", "missing argument: tile"},
        {"tile 1x", "tile must be 1 to 64: 1x"},
        {"tile 1 2", "unexpected argument: 2"},
        {"click 8", "tile 8 is not on the board"},
        {"click 1 middle", "unexpected argument: middle"},
        {"click 1 right shift x", "unexpected argument: x"},
        {"hover 8", "tile 8 is not on the board"},
        {"drop 9", "column must be 1 to 8: 9"},
        {"drop 1", "no letter waits over column 1"},
        {"edit 8 A", "tile 8 is not in play"},
        {"edit 1 AB", "letter must be A to Z or .: AB"},
        {"edit 1 A 5", "multiplier must be 1, 2, 3, 4 or 9: 5"},
        {"edit 1 . 2", "unexpected argument: 2"},
        {"set YourScore ten", "YourScore must be -1000000000 to 1000000000: ten"},
        {"set YourScore NONE", "YourScore must be -1000000000 to 1000000000: NONE"},
        {"set ticks 32768", "ticks must be 0 to 32767: 32768"},
        {"set tick 1", "unknown name: tick"},
        {"value ticks x", "unexpected argument: x"},
        {"value Label2", "unknown name: Label2"},
        {"red_tick 0", "ticks must be 1 to 1000000: 0"},
        {"clock_click middle", "button must be left or right: middle"},
        {"developer yes", "developer must be on or off: yes"},
        {"meaning 1", "no word has been made: 1"},
        {"word 250001", "entry must be 0 to 250000: 250001"},
        {"top10 x", "code must be -1 to 1000000000: x"},
        {"encipher", "missing argument: key"},
        {"options dictionary=1 sound=loud", "sound must be on or off: loud"},
        {"options dictionary=1 strategy=x", "strategy must be any, longest or highest: x"},
        {"options dictionary=1 colour=x", "unknown option: colour"},
        {"options dictionary=1 sound", "missing value: sound"},
        {"options dictionary=1 preset=A1", "preset must be up to 100 letters A to Z: A1"},
    };
    const std::vector<std::string> look{"show", "options", "value YourScore", "value ticks", "words_made", "clock"};
    ConsoleRun run;
    std::vector<std::string> lines{"new_game", "edit_top 1 ."};
    lines.insert(lines.end(), look.begin(), look.end());
    for (const auto& [command, reason] : cases)
        lines.emplace_back(command);
    lines.insert(lines.end(), look.begin(), look.end());
    const Output output = run.play(lines);
    ASSERT_EQ(output.answers.size(), lines.size());
    std::size_t i = 2 + look.size();
    for (const auto& [command, reason] : cases) {
        EXPECT_FALSE(output.answers[i].ok) << command;
        EXPECT_EQ(output.answers[i].text, reason) << command;
        EXPECT_TRUE(output.answers[i].events.empty()) << command;
        ++i;
    }
    for (std::size_t k = 0; k < look.size(); ++k)
        EXPECT_EQ(output.answers[2 + k].text, output.answers[i + k].text) << look[k];
}

/// Guards against a command that crashes, hangs or answers twice on arguments that nobody thought of.
TEST(ConsoleProtocol, EveryCommandStandsAnyArguments)
{
    const char* const arguments[] = {"",   " 1",   " -1",          " 99999999999999999999",
                                     " =", " A\\", " 1 2 3 4 5 6", " \xFF\\t"};
    const CommandTable table;
    for (const Command& command : table.all()) {
        ConsoleRun run;
        for (const char* const start : {"name", "new_game"}) {
            for (const char* const argument : arguments) {
                const Output output = run.play({start, "4 " + std::string(command.name) + argument, "5 quit"});
                ASSERT_GE(output.answers.size(), 2U) << command.name << argument;
                EXPECT_EQ(output.answers[1].id, "4") << command.name << argument;
                if (output.answers.size() > 2) {
                    EXPECT_EQ(output.last().id, "5") << command.name << argument;
                }
            }
        }
    }
}

TEST(ConsoleProtocol, TheCommandLineIsRead)
{
    const auto read = [](std::vector<std::string> arguments) {
        std::vector<char*> argv{arguments.front().data()};
        for (std::string& argument : arguments)
            argv.push_back(argument.data());
        return readCommandLine(static_cast<int>(argv.size()), argv.data());
    };
    const CommandLine line = read({"--time-of-day", "45240.5", "--folder=a b", "--version"});
    EXPECT_EQ(line.timeOfDay, 45240.5);
    EXPECT_EQ(line.folder, "a b");
    EXPECT_TRUE(line.version);
    EXPECT_FALSE(line.help);
    for (const auto& bad : std::vector<std::vector<std::string>>{{"--folders"},
                                                                 {"--folder"},
                                                                 {"x"},
                                                                 {"--time-of-day", "86400"},
                                                                 {"--time-of-day", "-1"},
                                                                 {"--time-of-day", "nan"},
                                                                 {"--time-of-day", "1h"}})
        EXPECT_THROW(read(bad), BadOption) << bad.back();
}

} // namespace
} // namespace lexigrove
