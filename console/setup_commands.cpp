#include "console/command.hpp"
#include "console/option_settings.hpp"
#include "settings/options_form.hpp"

#include <algorithm>

namespace lexigrove
{

namespace
{

Lines guide()
{
    return {"new_game      starts a game; daily is the board of the day",
            "show          shows the letters that wait, and the board: its tiles are 1 to 64, down the columns",
            "type WORD     spells a word on the board; click N selects tiles one by one",
            "enter         makes the word: its tiles leave, and what lies above slides down",
            "drop COLUMN   drops the letter that waits over a column, 1 to 8",
            "hint          shows words that are on the board",
            "value NAME    shows YourScore, TilesLeft and more; words_made and scores are lists",
            "options       shows the choices; options KEY=VALUE makes one for the next game",
            "keep          leaves the game and keeps it; quit just stops",
            "list_commands lists all commands; docs/console.md and the manual page say more"};
}

Lines commandNames(CommandContext& context)
{
    Lines names;
    for (const ConsoleCommand& entry : context.commands.all())
        names.emplace_back(entry.name);
    return names;
}

Lines setOptions(CommandContext& context, const std::vector<OptionSetting>& settings)
{
    context.study.chooseOptions([&](OptionsForm& form) {
        for (const OptionSetting& setting : settings)
            applyOption(form, setting);
    });
    return optionLines(context.flow.view().options, context.flow.view().scheme.currentName);
}

} // namespace

std::vector<ConsoleCommand> setUpCommands()
{
    const auto name = [](Arguments& arguments) { return arguments.required("name"); };
    const auto onOff = [](Arguments& arguments) { return arguments.choice("developer", {"on", "off"}) == 0; };
    const auto knows = [](CommandContext& context, const std::string& known) {
        return context.commands.find(known) != nullptr ? "true" : "false";
    };
    return {
        command("name", When::Always, [](CommandContext&) { return "LexiGrove"; }),
        command("version", When::Always, [](CommandContext&) { return LEXIGROVE_VERSION; }),
        command("protocol_version", When::Always, [](CommandContext&) { return "1"; }),
        command("list_commands", When::Always, commandNames),
        command("known_command", When::Always, name, knows),
        command("help", When::Always, [](CommandContext&) { return guide(); }),
        command("quit", When::Always, [](CommandContext& context) { context.quitting = true; }),
        command("options", When::Always, readOptions, setOptions),
        command("new_game", When::Always, [](CommandContext& context) { context.flow.startGame(); }),
        command("menu_new_game", Command::NewGame),
        command("exit", Command::Exit),
        command("developer", When::Always, onOff,
                [](CommandContext& context, bool on) { context.study.setDeveloperMode(on); }),
    };
}

} // namespace lexigrove
