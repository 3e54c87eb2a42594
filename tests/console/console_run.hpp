#pragma once

#include "console/console.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

namespace lexigrove
{

/// One command's part of the output.
struct Answer {
    std::vector<std::string> events; ///< without their "! "
    bool ok = false;
    std::string id;
    std::string text;
};

/// A run's output, taken apart. Anything that is neither an event nor an answer fails the test.
struct Output {
    std::vector<Answer> answers;
    std::vector<std::string> leaving; ///< events behind the last answer

    [[nodiscard]] const Answer& last() const { return answers.back(); }
};

inline Output takeApart(const std::string& text)
{
    Output output;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("! ")) {
            output.leaving.push_back(line.substr(2));
            continue;
        }
        const std::size_t blank = line.find(' ');
        if ((!line.starts_with('=') && !line.starts_with('?')) || blank == std::string::npos) {
            ADD_FAILURE() << "neither an event nor an answer: " << line << "\nin\n" << text;
            return output;
        }
        Answer answer{std::move(output.leaving), line[0] == '=', line.substr(1, blank - 1), line.substr(blank + 1)};
        output.leaving.clear();
        while (std::getline(lines, line) && !line.empty())
            answer.text += "\n" + line;
        EXPECT_TRUE(lines.good()) << "no empty line closes the answer " << answer.text;
        output.answers.push_back(std::move(answer));
    }
    return output;
}

/// A program folder with a few words at every level, in which the console is run.
class ConsoleRun
{
public:
    static constexpr double timeOfDay = 45240; ///< 12:34:00

    ConsoleRun()
    {
        for (const char* name : {"L1Ascii.txt", "L2Ascii.txt", "L3Ascii.txt"})
            folder.write(name, "AT\r\nCAT\r\nCATS\r\nQUIZ\r\n");
        std::string scheme;
        for (int i = 0; i < 13; ++i)
            scheme += std::to_string(i) + ";\r\n";
        folder.write("Default.sch", scheme);
        folder.write("Blue.sch", "0;0;255\r\n0;1;255\r\n" + repeated("1;2;3\r\n", 11));
        output("quit\n"); // the first start tells that there was no configuration
    }

    /// What the console writes for this input.
    std::string output(const std::string& input, std::optional<double> time = timeOfDay)
    {
        std::istringstream in(input);
        std::ostringstream out;
        Console console(folder.path(), time, in, out);
        console.run();
        return out.str();
    }

    /// The same for a line each.
    Output play(const std::vector<std::string>& lines)
    {
        std::string input;
        for (const std::string& line : lines)
            input += line + "\n";
        return takeApart(output(input));
    }

    static std::string repeated(const std::string& text, int times)
    {
        std::string result;
        for (int i = 0; i < times; ++i)
            result += text;
        return result;
    }

    /// The command that presets a square board: these letters down the first columns, "E" elsewhere.
    static std::string presetBoard(std::string letters)
    {
        letters.resize(100, 'E');
        return "options arrangement=Square sound=off preset=" + letters;
    }

    TemporaryFolder folder;
};

} // namespace lexigrove
