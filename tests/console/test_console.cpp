#include "console/console.hpp"
#include "tests/support/temporary_folder.hpp"

#include <cstdlib>
#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <regex>
#include <sstream>

namespace lexigrove
{
namespace
{

/// What the console writes for this input, in a folder that holds only a dictionary.
std::string output(const std::string& input, std::optional<double> timeOfDay = 45240)
{
    const TemporaryFolder folder;
    folder.write("L2Ascii.txt", "AT\r\nCAT\r\n");
    std::istringstream in(input);
    std::ostringstream out;
    Console(folder.path(), timeOfDay, in, out).run();
    return out.str();
}

/// Guards against a command that is missing, or that nobody can read about.
TEST(Console, TheCommandsAreTheDocumentedOnes)
{
    std::ifstream page(DOCS_FOLDER "console.md");
    std::string documented;
    bool inCommands = false;
    for (std::string line; std::getline(page, line);) {
        inCommands = inCommands || line == "## Commands";
        if (inCommands && line.starts_with("| `"))
            documented += (documented.empty() ? "= " : "\n") + line.substr(3, line.find_first_of(" `", 3) - 3);
    }
    EXPECT_NE(output("list_commands").find(documented + "\n\n"), std::string::npos) << documented;
}

/// Guards against a command that crashes, hangs or answers twice on arguments that nobody thought of.
TEST(Console, EveryCommandStandsAnyArguments)
{
    const char* const arguments[] = {"",   " 1",   " -1",          " 99999999999999999999",
                                     " =", " A\\", " 1 2 3 4 5 6", " \xFF\\t"};
    const CommandTable table;
    for (const ConsoleCommand& command : table.all()) {
        for (const char* const argument : arguments) {
            const std::string line = std::string(command.name) + argument;
            for (const char* const start : {"name\n", "new_game\n"}) {
                const std::string answers = output(start + ("4 " + line) + "\n5 quit\n");
                EXPECT_TRUE(std::regex_search(answers, std::regex("\n[=?]4 "))) << line;
                EXPECT_FALSE(std::regex_search(answers, std::regex("\n[=?]4 [^]*\n[=?]4 "))) << line;
            }
        }
    }
}

TEST(Console, WithoutATimeOfDayEveryGameIsAnother)
{
    EXPECT_NE(output("new_game\nshow\nquit", std::nullopt), output("new_game\nshow\nquit", std::nullopt));
}

/// Guards against bytes that break a line, and against a text losing its blanks.
TEST(Console, AnyTextPassesBothWays)
{
    EXPECT_TRUE(rc::check([](const std::string& text) {
        RC_ASSERT(escaped(text).find_first_of("\r\n\t") == std::string::npos);
        RC_ASSERT(unescaped(escaped(text)) == text);
    }));
    EXPECT_EQ(unescaped("\\x\\"), "\\x\\") << "no escape";

    std::istringstream in("# a\\\\b.txt\n\nx\\ty \n"); // in a file dialog and an input box every line is an answer
    std::ostringstream out;
    LineChannel channel(in, out);
    ConsoleDialogs dialogs(channel);
    EXPECT_EQ(dialogs.openFile({"Select", "", ""}), "# a\\b.txt");
    EXPECT_EQ(dialogs.openFile({"Select", "", ""}), "");
    EXPECT_EQ(dialogs.input("T", "P\nQ", "default"), "x\ty ");
    EXPECT_EQ(out.str(), "! open Select\n! open Select\n! input T: P\\nQ\n");
}

TEST(Console, BadOptionsEndWithTwo)
{
    const TemporaryFolder folder;
    folder.write("input", "clock\nquit\n");
    const auto status = [&](const std::string& options) {
        const std::string command = "'" LEXIGROVE_CONSOLE "' " + options + " <'" + folder.file("input") + "' >'" +
                                    folder.file("output") + "' 2>&1";
        return std::system(command.c_str()) >> 8;
    };
    for (const char* bad : {"--folders", "--folder", "--folder /nowhere/at/all", "x", "--time-of-day 86400",
                            "--time-of-day -1", "--time-of-day nan", "--time-of-day 1h", "--time-of-day"})
        EXPECT_EQ(status(bad), 2) << bad;
    EXPECT_EQ(status("--time-of-day 45240.5 --folder '" + folder.path() + "'"), 0);
    EXPECT_NE(folder.read("output").find("= 12:34 colon=lh timer=on\n"), std::string::npos) << folder.read("output");
    EXPECT_EQ(status("--version"), 0);
    EXPECT_EQ(folder.read("output"), "LexiGrove " LEXIGROVE_VERSION "\n");
    EXPECT_EQ(status("--help --folder /nowhere/at/all"), 0);
}

} // namespace
} // namespace lexigrove
