#pragma once

#include "game/board_position.hpp"

#include <optional>
#include <stdexcept>
#include <string>

namespace lexigrove
{

/// What the command line asks for.
struct StartOptions {
    std::optional<std::string> answer;      ///< to --help and --version: printed instead of a game
    std::optional<std::string> folder;      ///< the program folder
    std::optional<Arrangement> arrangement; ///< presets the options dialog
    std::optional<BoardPosition> position;  ///< begins with this board, without the options dialog
    bool daily = false;                     ///< begins with the board of the day
    bool startAtOnce = false;               ///< a game with the stored options, without the options dialog
};

/// An option that is unknown or incomplete. `what()` says which.
class StartOptionError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Reads the command line, the program's name first. Needs no display. Throws StartOptionError.
StartOptions readStartOptions(int argc, char** argv);

} // namespace lexigrove
