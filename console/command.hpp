#pragma once

#include "console/arguments.hpp"
#include "console/console_windows.hpp"
#include "console/line_channel.hpp"
#include "flow/game_flow.hpp"

#include <functional>
#include <string_view>
#include <type_traits>
#include <vector>

namespace lexigrove
{

class CommandTable;

/// What the commands reach.
struct CommandContext {
    GameFlow& flow;
    StatusLine& status;
    ConsoleWindows& windows;
    const CommandTable& commands;
    bool quitting = false; ///< set by `quit`
};

/// When a command can be given.
enum class Needs {
    Nothing,
    Game, ///< from the first game on
    Play, ///< while a game is not paused
};

/// A command: its name, and how its arguments are read and it is carried out. `run` gives the answer's lines, or throws
/// CommandError before anything has changed.
struct Command {
    std::string_view name;
    Needs needs;
    std::function<Lines(CommandContext&, Arguments&)> run;
};

/// A command that takes no arguments.
template <typename Run>
Command command(std::string_view name, Needs needs, Run run)
{
    return {name, needs, [run](CommandContext& context, Arguments& arguments) -> Lines {
                arguments.expectEnd();
                return run(context);
            }};
}

/// A command whose arguments `parse` reads: `run` sees them when the whole line was understood.
template <typename Parse, typename Run>
Command command(std::string_view name, Needs needs, Parse parse, Run run)
{
    return {name, needs, [parse, run](CommandContext& context, Arguments& arguments) -> Lines {
                const auto parsed = parse(arguments);
                arguments.expectEnd();
                return run(context, parsed);
            }};
}

/// All commands, in the order in which they are documented.
class CommandTable
{
public:
    CommandTable();

    /// The command of this name, or null.
    [[nodiscard]] const Command* find(std::string_view name) const;
    [[nodiscard]] const std::vector<Command>& all() const { return commands_; }

private:
    std::vector<Command> commands_;
};

// The commands by theme.

std::vector<Command> setUpCommands();
std::vector<Command> positionCommands(); ///< that set up a position, for studying it
std::vector<Command> playCommands();
std::vector<Command> lookingCommands();
std::vector<Command> wordsCommands();

// Arguments that several commands share.

int tileArgument(Arguments& arguments);   ///< 1 to 64
int columnArgument(Arguments& arguments); ///< 1 to 8
std::string restArgument(Arguments& arguments);

} // namespace lexigrove
