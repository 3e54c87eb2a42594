#include "console/command_line.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <getopt.h>
#include <string_view>

namespace lexigrove
{

const char* const helpText = "LexiGrove without a window: commands come in line by line, answers and events go out.\n"
                             "\n"
                             "usage: lexigrove-console [--folder DIR] [--time-of-day SECONDS] [--position TEXT]\n"
                             "                         [--help] [--version]\n"
                             "\n"
                             "  --folder DIR           the program folder: word lists, options, scores\n"
                             "  --time-of-day SECONDS  freezes the clock at this time and fixes the random letters,\n"
                             "                         so that a run can be repeated exactly\n"
                             "  --position TEXT        begins with this board, as \"position\" prints one\n"
                             "\n"
                             "A game starts with \"new_game\" and is shown by \"show\"; \"help\" says more.\n";

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

BoardPosition positionIn(std::string_view text)
{
    try {
        return boardPositionOf(text);
    } catch (const PositionError& error) {
        throw BadOption(std::string("--position: ") + error.what());
    }
}

} // namespace

CommandLine readCommandLine(int argc, char* const* argv)
{
    static constexpr std::array<option, 6> options{{
        {"folder", required_argument, nullptr, 'f'},
        {"time-of-day", required_argument, nullptr, 't'},
        {"position", required_argument, nullptr, 'p'},
        {"help", no_argument, nullptr, 'h'},
        {"version", no_argument, nullptr, 'v'},
        {}, // the end
    }};
    CommandLine line;
    optind = 0; // from the beginning, however often
    for (;;) {
        const int place = std::max(optind, 1);
        switch (getopt_long(argc, argv, "+:", options.data(), nullptr)) { // stops at what is no option; prints nothing
        case 'f':
            line.folder = optarg;
            break;
        case 't':
            line.timeOfDay = secondsOfDay(optarg);
            break;
        case 'p':
            line.position = positionIn(optarg);
            break;
        case 'h':
            line.help = true;
            break;
        case 'v':
            line.version = true;
            break;
        case ':':
            throw BadOption(std::string("missing value: ") + argv[place]);
        case -1:
            if (optind >= argc)
                return line;
            [[fallthrough]];
        default:
            throw BadOption(std::string("unknown option: ") + argv[place]);
        }
    }
}

} // namespace lexigrove
