#include "console/command_line.hpp"

#include <charconv>
#include <string_view>

namespace lexigrove
{

const char* const helpText =
    "LexiGrove without a window: commands come in line by line, answers and events go out.\n"
    "\n"
    "usage: lexigrove-console [--folder DIR] [--time-of-day SECONDS] [--help] [--version]\n"
    "\n"
    "  --folder DIR           the program folder: word lists, options, scores\n"
    "  --time-of-day SECONDS  freezes the clock at this time and fixes the random letters,\n"
    "                         so that a run can be repeated exactly\n"
    "\n"
    "\"list_commands\" lists the commands; a game starts with \"new_game\" and is shown by \"show\".\n";

namespace
{

double secondsOfDay(std::string_view text)
{
    constexpr double day = 24 * 60 * 60;
    double seconds = 0;
    const auto [end, failure] =
        std::from_chars(text.data(), text.data() + text.size(), seconds, std::chars_format::fixed);
    const bool inRange = seconds >= 0 && seconds < day; // false for "nan" as well
    if (failure != std::errc{} || end != text.data() + text.size() || !inRange)
        throw BadOption("--time-of-day must be 0 or more and less than 86400: " + std::string(text));
    return seconds;
}

} // namespace

CommandLine readCommandLine(std::span<const char* const> arguments)
{
    CommandLine line;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string_view option = arguments[i];
        const auto value = [&]() -> std::string {
            if (i + 1 == arguments.size())
                throw BadOption("missing value: " + std::string(option));
            return arguments[++i];
        };
        if (option == "--folder")
            line.folder = value();
        else if (option == "--time-of-day")
            line.timeOfDay = secondsOfDay(value());
        else if (option == "--help")
            line.help = true;
        else if (option == "--version")
            line.version = true;
        else
            throw BadOption("unknown option: " + std::string(option));
    }
    return line;
}

} // namespace lexigrove
