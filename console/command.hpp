#pragma once

#include "console/arguments.hpp"
#include "console/line_channel.hpp"
#include "flow/study.hpp"
#include "platform/status_line.hpp"

#include <functional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace lexigrove
{

class CommandTable;

/// What the commands work on.
struct CommandContext {
    GameFlow& flow;
    Study study;
    const StatusLine& status;
    const CommandTable& commands;
    bool quitting = false; ///< set by `quit`
};

/// A command of the protocol: its name, when it is accepted, and how it reads its arguments and runs. `run` returns the
/// answer's lines, or throws CommandError before changing anything.
struct ConsoleCommand {
    std::string_view name;
    When when;
    std::function<Lines(CommandContext&, Arguments&)> run;
};

/// What a command answers: its lines, its one line, or none if it returns nothing.
template <typename Run, typename... Parsed>
Lines answerOf(const Run& run, CommandContext& context, const Parsed&... parsed)
{
    using Answer = std::invoke_result_t<Run, CommandContext&, const Parsed&...>;
    if constexpr (std::is_void_v<Answer>) {
        run(context, parsed...);
        return {};
    } else if constexpr (std::is_convertible_v<Answer, std::string_view>) {
        return {std::string(run(context, parsed...))};
    } else {
        return run(context, parsed...);
    }
}

/// A command that takes no arguments.
template <typename Run>
ConsoleCommand command(std::string_view name, When when, Run run)
{
    return {name, when, [run](CommandContext& context, Arguments& arguments) {
                arguments.expectEnd();
                return answerOf(run, context);
            }};
}

/// A command whose arguments `parse` reads: `run` gets them once the whole line has been parsed.
template <typename Parse, typename Run>
ConsoleCommand command(std::string_view name, When when, Parse parse, Run run)
{
    return {name, when, [parse, run](CommandContext& context, Arguments& arguments) {
                const auto parsed = parse(arguments);
                arguments.expectEnd();
                return answerOf(run, context, parsed);
            }};
}

/// A command of the game that takes no arguments and prints nothing.
ConsoleCommand command(std::string_view name, Command input);

/// All commands, in the order in which they are documented.
class CommandTable
{
public:
    CommandTable();

    /// The command of this name, or null.
    [[nodiscard]] const ConsoleCommand* find(std::string_view name) const;
    [[nodiscard]] const std::vector<ConsoleCommand>& all() const { return commands_; }

private:
    std::vector<ConsoleCommand> commands_;
};

// The commands by theme.

std::vector<ConsoleCommand> setUpCommands();
std::vector<ConsoleCommand> positionCommands(); ///< that set up a position to study
std::vector<ConsoleCommand> playCommands();
std::vector<ConsoleCommand> lookingCommands();
std::vector<ConsoleCommand> recordCommands(); ///< past games, and boards that are shared
std::vector<ConsoleCommand> wordsCommands();

// Arguments that several commands share.

int tileArgument(Arguments& arguments);   ///< 1 to 64
int columnArgument(Arguments& arguments); ///< 1 to 8
std::string restArgument(Arguments& arguments);

} // namespace lexigrove
