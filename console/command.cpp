#include "console/command.hpp"

#include "game/board.hpp"

#include <algorithm>
#include <iterator>

namespace lexigrove
{

CommandTable::CommandTable()
{
    for (auto* const theme :
         {&setUpCommands, &positionCommands, &playCommands, &lookingCommands, &recordCommands, &wordsCommands}) {
        std::vector<ConsoleCommand> commands = theme();
        std::move(commands.begin(), commands.end(), std::back_inserter(commands_));
    }
}

const ConsoleCommand* CommandTable::find(std::string_view name) const
{
    const auto found = std::find_if(commands_.begin(), commands_.end(),
                                    [name](const ConsoleCommand& entry) { return entry.name == name; });
    return found == commands_.end() ? nullptr : &*found;
}

ConsoleCommand command(std::string_view name, Command input)
{
    return command(name, GameFlow::timeOf(input), [input](CommandContext& context) { context.flow.perform(input); });
}

int tileArgument(Arguments& arguments)
{
    return arguments.number("tile", 1, Board::tileCount);
}

int columnArgument(Arguments& arguments)
{
    return arguments.number("column", 1, Board::columns);
}

std::string restArgument(Arguments& arguments)
{
    return arguments.rest();
}

} // namespace lexigrove
