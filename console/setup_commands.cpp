#include "console/command.hpp"
#include "console/option_settings.hpp"
#include "settings/options_form.hpp"

#include <algorithm>

namespace lexigrove
{

namespace
{

Lines commandNames(CommandContext& context)
{
    Lines names;
    for (const ConsoleCommand& entry : context.commands.all())
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
    context.study.chooseOptions([&](OptionsForm& form) {
        for (const OptionSetting& setting : settings)
            applyOption(form, setting);
    });
    return optionLines(context.flow.view().options, context.flow.view().scheme.currentName);
}

Lines newGame(CommandContext& context)
{
    context.flow.startGame();
    return {};
}

Lines setDeveloperMode(CommandContext& context, std::size_t choice)
{
    context.study.setDeveloperMode(choice == 0);
    return {};
}

} // namespace

std::vector<ConsoleCommand> setUpCommands()
{
    const auto name = [](Arguments& arguments) { return arguments.required("name"); };
    const auto onOff = [](Arguments& arguments) { return arguments.choice("developer", {"on", "off"}); };
    return {
        command("name", When::Always, [](CommandContext&) -> Lines { return {"LexiGrove"}; }),
        command("version", When::Always, [](CommandContext&) -> Lines { return {LEXIGROVE_VERSION}; }),
        command("protocol_version", When::Always, [](CommandContext&) -> Lines { return {"1"}; }),
        command("list_commands", When::Always, commandNames),
        command("known_command", When::Always, name, knownCommand),
        command("quit", When::Always, quit),
        command("options", When::Always, readOptions, setOptions),
        command("new_game", When::Always, newGame),
        command("menu_new_game", Command::NewGame),
        command("exit", Command::Exit),
        command("developer", When::Always, onOff, setDeveloperMode),
    };
}

} // namespace lexigrove
