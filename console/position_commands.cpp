#include "console/command.hpp"
#include "platform/ascii.hpp"

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

/// The counts and lists that follow from the tiles.
void takeBoardAsItStands(Game& game)
{
    std::int16_t red = 0;
    std::int16_t bonus = 0;
    for (int tile = 1; tile <= Board::tileCount; ++tile) {
        if (!game.board.isVisible(tile))
            continue;
        if (game.board.maskcolor(tile) == multiplier::red)
            ++red;
        else if (game.board.isBonus(tile))
            ++bonus;
    }
    game.state.redTilesOnBoard = red;
    game.state.bonusTilesOnBoard = bonus;
    game.board.rebuildNeighbours();
    game.refreshLooks();
}

Lines editTile(CommandContext& context, const TileEdit& edit)
{
    GameFlow& flow = context.flow;
    Board& board = flow.game.board;
    if (board.row(edit.place) > board.columnHeight(board.col(edit.place)))
        throw CommandError("tile " + std::to_string(edit.place) + " is not in play");
    flow.asInput([&] {
        flow.letterSwap.cancel();
        BoxControl& tile = board.tile(edit.place);
        if (tile.Tag() == "X")
            flow.game.selection.clear(); // the path holds the letter that it was clicked with
        tile.Caption(edit.letter);
        tile.MaskColor(edit.maskcolor);
        tile.Visible(!edit.letter.empty());
        takeBoardAsItStands(flow.game);
    });
    return {};
}

Lines editWaitingTile(CommandContext& context, const TileEdit& edit)
{
    GameFlow& flow = context.flow;
    flow.asInput([&] {
        flow.letterSwap.cancel();
        BoxControl& waiting = flow.game.board.TopDrop[static_cast<std::size_t>(edit.place)];
        waiting.Caption(edit.letter);
        waiting.Left(flow.game.board.homeLeft(edit.place));
        waiting.Top(layout::dropRowTop);
        waiting.Visible(!edit.letter.empty());
        takeBoardAsItStands(flow.game);
    });
    return {};
}

Lines pressPresetBoard(CommandContext& context)
{
    GameFlow& flow = context.flow;
    flow.asInput([&] {
        if (flow.options.presetBoard())
            context.windows.presetLettersWait = true;
    });
    return {};
}

/// A number of the game that a command may set.
struct Setting {
    std::string_view name;
    int lowest;
    int highest;
    void (*set)(GameFlow&, int);
};

constexpr int mostPoints = 1'000'000'000; // far from where adding a word's score would overflow
constexpr int most16 = std::numeric_limits<std::int16_t>::max();
constexpr int least16 = std::numeric_limits<std::int16_t>::min();

constexpr Setting settings[] = {
    {"YourScore", -mostPoints, mostPoints,
     [](GameFlow& flow, int value) { flow.game.state.YourScore.Caption = std::to_string(value); }},
    {"CompScore", -mostPoints, mostPoints,
     [](GameFlow& flow, int value) { flow.game.state.CompScore.Caption = std::to_string(value); }},
    {"TilesLeft", least16, most16,
     [](GameFlow& flow, int value) { flow.game.state.TilesLeft.Caption = std::to_string(value); }},
    {"ticks", 0, most16,
     [](GameFlow& flow, int value) { flow.game.state.tickCount = static_cast<std::int16_t>(value); }},
    {"hints_used", 0, most16,
     [](GameFlow& flow, int value) { flow.game.state.hintsUsed = static_cast<std::int16_t>(value); }},
    {"red_threshold", least16, most16, [](GameFlow& flow, int value) { flow.dictionary.setRedThreshold(value); }},
    {"last_pressure", -mostPoints, mostPoints, [](GameFlow& flow, int value) { flow.game.state.lastPressure = value; }},
    {"bonus_tiles", 0, most16,
     [](GameFlow& flow, int value) { flow.game.state.bonusTilesOnBoard = static_cast<std::int16_t>(value); }},
    {"red_tiles_used", 0, most16,
     [](GameFlow& flow, int value) { flow.game.state.redTilesUsed = static_cast<std::int16_t>(value); }},
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
        context.flow.game.state.TilesLeft.Caption = "NONE";
    else
        value.setting->set(context.flow, value.number);
    return {};
}

} // namespace

std::vector<Command> positionCommands()
{
    return {
        command("edit", Needs::Game, tileEdit, editTile),
        command("edit_top", Needs::Game, waitingTileEdit, editWaitingTile),
        command("preset", Needs::Nothing, pressPresetBoard),
        command("set", Needs::Game, newValue, setValue),
    };
}

} // namespace lexigrove
