#include "console/command.hpp"
#include "controls/dc.hpp"
#include "dictionary/dictionary.hpp"
#include "game/board.hpp"
#include "game/game_state.hpp"
#include "game/letter_supply.hpp"
#include "game/selection.hpp"
#include "platform/ascii.hpp"
#include "settings/options_form.hpp"

#include <algorithm>

namespace lexigrove
{

namespace
{

/// A tile as `show` prints it: its letter, lower-case in the path, "_" for none, "." for a hidden tile, followed by the
/// multiplier of a tile that is not plain.
std::string cell(const BoxControl& tile)
{
    if (!tile.Visible())
        return ".";
    std::string text = tile.Caption().empty() ? "_" : tile.Caption();
    if (tile.Tag() == "X")
        text[0] = ascii::toLower(text[0]);
    return tile.MaskColor() == multiplier::plain ? text : text + std::to_string(tile.MaskColor());
}

Lines showBoard(CommandContext& context)
{
    const Board& board = context.flow.view().board;
    std::string dropRow;
    for (int col = 1; col <= Board::columns; ++col)
        dropRow += (col > 1 ? " " : "") + cell(board.waiting(col));
    Lines lines{dropRow, std::string(2 * Board::columns - 1, '-')};
    for (int row = 1; row <= Board::rows; ++row) {
        std::string text;
        for (int col = 1; col <= Board::columns; ++col)
            text += (col > 1 ? " " : "") + cell(board.tile(row, col));
        lines.push_back(text);
    }
    return lines;
}

std::string hoverTile(CommandContext& context, int tile)
{
    const Board& board = context.flow.view().board;
    if (!board.isVisible(tile))
        throw CommandError("tile " + std::to_string(tile) + " is not on the board");
    context.flow.hoverTile(tile);
    return board.hoverCaption(tile);
}

/// A caption or a number of the game that `value` prints.
struct Value {
    std::string_view name;
    std::string (*text)(const CommandContext&);
};

const GameState& stateOf(const CommandContext& context)
{
    return context.flow.view().state;
}

using Context = CommandContext;

constexpr Value values[] = {
    {"WordTried", [](const Context& c) { return c.flow.view().selection.wordTried(); }},
    {"CurrScore", [](const Context& c) { return stateOf(c).currScoreText(); }},
    {"YourScore", [](const Context& c) { return std::to_string(stateOf(c).yourScore); }},
    {"CompScore", [](const Context& c) { return std::to_string(stateOf(c).compScore); }},
    {"TilesLeft", [](const Context& c) { return stateOf(c).tilesLeftText(); }},
    {"Label1", [](const Context& c) { return c.status.Label1; }},
    {"EnterWord", [](const Context&) { return std::string("Enter Word"); }},
    {"caption", [](const Context& c) { return c.flow.view().dictionary.caption(); }},
    {"ticks", [](const Context& c) { return std::to_string(stateOf(c).tickCount); }},
    {"pressure", [](const Context& c) { return std::to_string(stateOf(c).pressure); }},
    {"last_pressure", [](const Context& c) { return std::to_string(stateOf(c).lastPressure); }},
    {"red_threshold", [](const Context& c) { return std::to_string(c.flow.view().dictionary.redThreshold()); }},
    {"red_tiles", [](const Context& c) { return std::to_string(stateOf(c).redTilesOnBoard); }},
    {"red_tiles_used", [](const Context& c) { return std::to_string(stateOf(c).redTilesUsed); }},
    {"bonus_tiles", [](const Context& c) { return std::to_string(stateOf(c).bonusTilesOnBoard); }},
    {"hints_used", [](const Context& c) { return std::to_string(stateOf(c).hintsUsed); }},
    {"words_made", [](const Context& c) { return std::to_string(stateOf(c).wordsMade); }},
    {"delay", [](const Context& c) { return std::to_string(c.flow.view().options.settings.dropDelay); }},
    {"hold", [](const Context& c) { return std::string(stateOf(c).redTileHold ? "1" : "0"); }},
};

const Value* valueArgument(Arguments& arguments)
{
    const std::string name = arguments.required("name");
    const auto* const value =
        std::find_if(std::begin(values), std::end(values), [&](const Value& entry) { return entry.name == name; });
    if (value == std::end(values))
        throw CommandError("unknown name: " + name);
    return value;
}

std::string path(CommandContext& context)
{
    std::string tiles;
    for (const int tile : context.flow.view().selection.tiles())
        tiles += (tiles.empty() ? "" : " ") + std::to_string(tile);
    return tiles;
}

std::string queue(CommandContext& context)
{
    std::string letters;
    for (const std::string& letter : context.flow.view().supply.RandomLetters)
        letters += letter;
    return letters;
}

std::string pool(CommandContext& context)
{
    const auto& letters = context.flow.view().dictionary.letters.pool;
    return {letters.begin() + 1, letters.end()};
}

/// Entries 1 to 26 on one line.
std::string letterNumbers(const std::array<int, 27>& numbers)
{
    std::string text;
    for (std::size_t letter = 1; letter < numbers.size(); ++letter)
        text += (letter > 1 ? " " : "") + std::to_string(numbers[letter]);
    return text;
}

Lines wordsMade(CommandContext& context)
{
    const WordsGrid& WordsMade = stateOf(context).WordsMade;
    Lines rows;
    for (int row = 1; row < WordsMade.Rows(); ++row) {
        std::string cells;
        for (int column = 0; column < WordsGrid::columnCount; ++column)
            cells += (column > 0 ? "\t" : "") + WordsMade.text(row, column);
        rows.push_back(cells);
    }
    return rows;
}

Lines statistics(CommandContext& context)
{
    const Statistics& table = stateOf(context).statistics;
    Lines lines;
    for (int i = 1; i < Statistics::entryCount; ++i)
        lines.push_back(std::to_string(i) + " " + table.entry(i));
    lines.push_back("letters_used " + letterNumbers(table.lettersUsed()));
    return lines;
}

/// A digit that shows no figure is "-".
std::string clockFace(CommandContext& context)
{
    const Dc& Dc1 = context.flow.view().clock;
    const auto digit = [&](int place) {
        const int figure = Dc1.shownDigit(place);
        return figure < 0 ? std::string("-") : std::to_string(figure);
    };
    const auto dot = [&](int line) { return !Dc1.lin2(line).visible ? 'h' : Dc1.lit(line) ? 'l' : 'd'; };
    return digit(0) + digit(1) + ":" + digit(2) + digit(3) + " colon=" + dot(Dc::upperDot) + dot(Dc::lowerDot) +
           " timer=" + (Dc1.running() ? "on" : "off");
}

} // namespace

std::vector<ConsoleCommand> lookingCommands()
{
    const auto describe = [](CommandContext& context, int tile) { return context.flow.view().board.description(tile); };
    const auto neighbours = [](CommandContext& context, int tile) { return context.flow.view().board.Neibors(tile); };
    const auto printed = [](CommandContext& context, const Value* value) { return value->text(context); };
    const auto letterCounts = [](CommandContext& context) {
        return letterNumbers(context.flow.view().dictionary.letters.letterCounts);
    };
    return {
        command("show", When::InGame, showBoard),
        command("tile", When::InGame, tileArgument, describe),
        command("hover", When::InGame, tileArgument, hoverTile),
        command("neighbours", When::InGame, tileArgument, neighbours),
        command("value", When::Always, valueArgument, printed),
        command("path", When::InGame, path),
        command("queue", When::InGame, queue),
        command("pool", When::Always, pool),
        command("letter_counts", When::Always, letterCounts),
        command("words_made", When::InGame, wordsMade),
        command("statistics", When::InGame, statistics),
        command("show_statistics", Command::Statistics),
        command("clock", When::Always, clockFace),
    };
}

} // namespace lexigrove
