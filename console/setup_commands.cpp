#include "console/command.hpp"
#include "console/option_settings.hpp"
#include "console/version.hpp"

#include <algorithm>

namespace lexigrove
{

namespace
{

Lines commandNames(CommandContext& context)
{
    Lines names;
    for (const Command& entry : context.commands.all())
        names.emplace_back(entry.name);
    return names;
}

Lines knownCommand(CommandContext& context, const std::string& name)
{
    return {context.commands.find(name) != nullptr ? "true" : "false"};
}

Lines quit(CommandContext& context)
{
    context.quitting = true;
    return {};
}

Lines setOptions(CommandContext& context, const std::vector<OptionSetting>& settings)
{
    GameFlow& flow = context.flow;
    flow.asInput([&] {
        for (const OptionSetting& setting : settings) {
            applyOption(flow.options, setting);
            if (setting.key == "preset")
                context.windows.presetLettersWait = true;
        }
        flow.game.refreshLooks();
    });
    return optionLines(flow.options, flow.scheme.currentName);
}

Lines newGame(CommandContext& context)
{
    if (!std::exchange(context.windows.presetLettersWait, false))
        context.flow.options.settings.presetLetters.clear(); // a game was dealt from them, or they mark one
    context.flow.startGame();
    return {};
}

Lines menuNewGame(CommandContext& context)
{
    if (context.flow.isPaused())
        throw CommandError("the game is paused");
    context.flow.menuNewGame();
    return {};
}

Lines exitGame(CommandContext& context)
{
    context.flow.exit();
    return {};
}

Lines setDeveloperMode(CommandContext& context, std::size_t choice)
{
    context.flow.game.state.developerMode = choice == 0;
    return {};
}

} // namespace

std::vector<Command> setUpCommands()
{
    const auto name = [](Arguments& arguments) { return arguments.required("name"); };
    const auto onOff = [](Arguments& arguments) { return arguments.choice("developer", {"on", "off"}); };
    return {
        command("name", Needs::Nothing, [](CommandContext&) -> Lines { return {"LexiGrove"}; }),
        command("version", Needs::Nothing, [](CommandContext&) -> Lines { return {gameVersion()}; }),
        command("protocol_version", Needs::Nothing, [](CommandContext&) -> Lines { return {"1"}; }),
        command("list_commands", Needs::Nothing, commandNames),
        command("known_command", Needs::Nothing, name, knownCommand),
        command("quit", Needs::Nothing, quit),
        command("options", Needs::Nothing, readOptions, setOptions),
        command("new_game", Needs::Nothing, newGame),
        command("menu_new_game", Needs::Nothing, menuNewGame),
        command("exit", Needs::Nothing, exitGame),
        command("developer", Needs::Nothing, onOff, setDeveloperMode),
    };
}

} // namespace lexigrove
