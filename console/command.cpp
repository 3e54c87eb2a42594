#include "console/command.hpp"

#include <algorithm>
#include <iterator>

namespace lexigrove
{

CommandTable::CommandTable()
{
    for (auto* const theme : {&setUpCommands, &positionCommands, &playCommands, &lookingCommands, &wordsCommands}) {
        std::vector<Command> commands = theme();
        std::move(commands.begin(), commands.end(), std::back_inserter(commands_));
    }
}

const Command* CommandTable::find(std::string_view name) const
{
    const auto found =
        std::find_if(commands_.begin(), commands_.end(), [name](const Command& entry) { return entry.name == name; });
    return found == commands_.end() ? nullptr : &*found;
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
