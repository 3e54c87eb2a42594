#include "console/command.hpp"
#include "game/board.hpp"
#include "game/game_state.hpp"
#include "platform/ascii.hpp"
#include "settings/options_form.hpp"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace lexigrove
{

namespace
{

/// A letter for a tile and its multiplier; without a letter the tile is hidden.
struct TileEdit {
    int place = 0; ///< the tile, or the column of a waiting one
    std::string letter;
    Colour maskcolor = multiplier::plain;
};

std::string letterArgument(Arguments& arguments)
{
    const std::string text = arguments.required("letter");
    if (text == ".")
        return {};
    if (text.size() != 1 || !ascii::isLetter(text[0]))
        throw CommandError("letter must be A to Z or .: " + text);
    return ascii::upperCase(text);
}

TileEdit tileEdit(Arguments& arguments)
{
    TileEdit edit;
    edit.place = tileArgument(arguments);
    edit.letter = letterArgument(arguments);
    if (edit.letter.empty())
        return edit;
    if (const auto typed = arguments.next()) {
        constexpr std::string_view multipliers[] = {"1", "2", "3", "4", "9"};
        choiceOf("multiplier", *typed, multipliers);
        edit.maskcolor = static_cast<Colour>(typed->front() - '0');
    }
    return edit;
}

TileEdit waitingTileEdit(Arguments& arguments)
{
    TileEdit edit;
    edit.place = columnArgument(arguments);
    edit.letter = letterArgument(arguments);
    return edit;
}

void editTile(CommandContext& context, const TileEdit& edit)
{
    if (!context.flow.view().board.isInPlay(edit.place))
        throw CommandError("tile " + std::to_string(edit.place) + " is not in play");
    context.study.editTile(edit.place, edit.letter, edit.maskcolor);
}

void editWaitingTile(CommandContext& context, const TileEdit& edit)
{
    context.study.editWaiting(edit.place, edit.letter);
}

void pressPresetBoard(CommandContext& context)
{
    context.study.chooseOptions([](OptionsForm& form) { form.presetBoard(); });
}

/// A number of the game that a command may set.
struct Setting {
    std::string_view name;
    int lowest;
    int highest;
    int GameState::*number; ///< null for those that are set differently
};

constexpr int maxPoints = 1'000'000'000; // adding a word's score is then far from overflowing
constexpr int max16 = std::numeric_limits<std::int16_t>::max();
constexpr int min16 = std::numeric_limits<std::int16_t>::min();

constexpr Setting numbersToSet[] = {
    {"YourScore", -maxPoints, maxPoints, &GameState::yourScore},
    {"CompScore", -maxPoints, maxPoints, &GameState::compScore},
    {"TilesLeft", min16, max16, nullptr},
    {"ticks", 0, max16, &GameState::tickCount},
    {"hints_used", 0, max16, &GameState::hintsUsed},
    {"red_threshold", min16, max16, nullptr},
    {"last_pressure", -maxPoints, maxPoints, &GameState::lastPressure},
    {"bonus_tiles", 0, max16, &GameState::bonusTilesOnBoard},
    {"red_tiles_used", 0, max16, &GameState::redTilesUsed},
};

struct NewValue {
    const Setting* setting = nullptr;
    std::optional<int> number; ///< nothing for the text "NONE"
};

NewValue newValue(Arguments& arguments)
{
    const std::string name = arguments.required("name");
    const auto* const setting = std::find_if(std::begin(numbersToSet), std::end(numbersToSet),
                                             [&](const Setting& entry) { return entry.name == name; });
    if (setting == std::end(numbersToSet))
        throw CommandError("unknown name: " + name);
    const std::string value = arguments.required("value");
    if (name == "TilesLeft" && value == "NONE")
        return {setting, {}};
    return {setting, numberIn(name, value, setting->lowest, setting->highest)};
}

void setValue(CommandContext& context, const NewValue& value)
{
    if (value.setting->number != nullptr)
        context.study.set(value.setting->number, *value.number);
    else if (value.setting->name == "TilesLeft")
        context.study.setTilesLeft(value.number);
    else
        context.study.setRedThreshold(*value.number);
}

Lines printPosition(CommandContext& context)
{
    return {textOf(context.flow.position().board)};
}

Lines setPosition(CommandContext& context, const std::string& text)
{
    try {
        context.flow.playPosition(boardPositionOf(text));
    } catch (const PositionError& error) {
        throw CommandError(error.what());
    }
    return {};
}

} // namespace

std::vector<ConsoleCommand> positionCommands()
{
    return {
        command("edit", When::InGame, tileEdit, editTile),
        command("edit_top", When::InGame, waitingTileEdit, editWaitingTile),
        command("position", When::InGame, printPosition),
        command("set_position", When::Always, restArgument, setPosition),
        command("preset", When::Always, pressPresetBoard),
        command("set", When::InGame, newValue, setValue),
    };
}

} // namespace lexigrove
