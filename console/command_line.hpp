#pragma once

#include "game/board_position.hpp"

#include <optional>
#include <stdexcept>
#include <string>

namespace lexigrove
{

/// An option of the command line that there is not, or with a value that it cannot have. `what()` says which.
class BadOption : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

struct CommandLine {
    std::optional<std::string> folder;
    std::optional<BoardPosition> position; ///< to begin with
    std::optional<double> timeOfDay;       ///< seconds since midnight, 0 up to 86,400, without the latter
    bool help = false;
    bool version = false;
};

/// Reads the command line, the program's name first. Throws BadOption.
CommandLine readCommandLine(int argc, char* const* argv);

/// What `--help` prints.
extern const char* const helpText;

} // namespace lexigrove
