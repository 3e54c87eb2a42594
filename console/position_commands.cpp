#include "console/command.hpp"
#include "game/board.hpp"
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
    const char letter =
        static_cast<char>(text.size() == 1 && text[0] >= 'a' && text[0] <= 'z' ? text[0] - 'a' + 'A' : text[0]);
    if (text.size() != 1 || letter < 'A' || letter > 'Z')
        throw CommandError("letter must be A to Z or .: " + text);
    return {letter};
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

Lines editTile(CommandContext& context, const TileEdit& edit)
{
    if (!context.flow.board().isInPlay(edit.place))
        throw CommandError("tile " + std::to_string(edit.place) + " is not in play");
    context.study.editTile(edit.place, edit.letter, edit.maskcolor);
    return {};
}

Lines editWaitingTile(CommandContext& context, const TileEdit& edit)
{
    context.study.editWaiting(edit.place, edit.letter);
    return {};
}

Lines pressPresetBoard(CommandContext& context)
{
    context.study.chooseOptions([](OptionsForm& form) { form.presetBoard(); });
    return {};
}

/// A number of the game that a command may set.
struct Setting {
    std::string_view name;
    Study::Number number;
    int lowest;
    int highest;
};

constexpr int mostPoints = 1'000'000'000; // far from where adding a word's score would overflow
constexpr int most16 = std::numeric_limits<std::int16_t>::max();
constexpr int least16 = std::numeric_limits<std::int16_t>::min();

constexpr Setting settings[] = {
    {"YourScore", Study::Number::YourScore, -mostPoints, mostPoints},
    {"CompScore", Study::Number::CompScore, -mostPoints, mostPoints},
    {"TilesLeft", Study::Number::TilesLeft, least16, most16},
    {"ticks", Study::Number::Ticks, 0, most16},
    {"hints_used", Study::Number::HintsUsed, 0, most16},
    {"red_threshold", Study::Number::RedThreshold, least16, most16},
    {"last_pressure", Study::Number::LastPressure, -mostPoints, mostPoints},
    {"bonus_tiles", Study::Number::BonusTiles, 0, most16},
    {"red_tiles_used", Study::Number::RedTilesUsed, 0, most16},
};

struct NewValue {
    const Setting* setting = nullptr;
    int number = 0;
    bool none = false; ///< the text "NONE" in place of a number
};

NewValue newValue(Arguments& arguments)
{
    const std::string name = arguments.required("name");
    const auto* const setting = std::find_if(std::begin(settings), std::end(settings),
                                             [&](const Setting& entry) { return entry.name == name; });
    if (setting == std::end(settings))
        throw CommandError("unknown name: " + name);
    const std::string value = arguments.required("value");
    if (name == "TilesLeft" && value == "NONE")
        return {setting, 0, true};
    return {setting, numberIn(name, value, setting->lowest, setting->highest), false};
}

Lines setValue(CommandContext& context, const NewValue& value)
{
    if (value.none)
        context.study.endLetters();
    else
        context.study.set(value.setting->number, value.number);
    return {};
}

} // namespace

std::vector<ConsoleCommand> positionCommands()
{
    return {
        command("edit", When::InGame, tileEdit, editTile),
        command("edit_top", When::InGame, waitingTileEdit, editWaitingTile),
        command("preset", When::Always, pressPresetBoard),
        command("set", When::InGame, newValue, setValue),
    };
}

} // namespace lexigrove
