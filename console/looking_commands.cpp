#include "console/command.hpp"
#include "platform/ascii.hpp"

#include <algorithm>

namespace lexigrove
{

namespace
{

/// A tile as `show` prints it: its letter, lower-case in the path, "_" for none, "." for a hidden tile, and behind it
/// the multiplier of a tile that is not plain.
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
    const Board& board = context.flow.game.board;
    std::string dropRow;
    for (std::size_t col = 1; col <= Board::columns; ++col)
        dropRow += (col > 1 ? " " : "") + cell(board.TopDrop[col]);
    Lines lines{dropRow, std::string(2 * Board::columns - 1, '-')};
    for (int row = 1; row <= 8; ++row) {
        std::string text;
        for (int col = 1; col <= Board::columns; ++col)
            text += (col > 1 ? " " : "") + cell(board.tile(board.Grid(row, col)));
        lines.push_back(text);
    }
    return lines;
}

Lines describeTile(CommandContext& context, int tile)
{
    return {context.flow.game.board.description(tile)};
}

Lines hoverTile(CommandContext& context, int tile)
{
    const Board& board = context.flow.game.board;
    if (!board.isVisible(tile))
        throw CommandError("tile " + std::to_string(tile) + " is not on the board");
    context.flow.hoverTile(tile);
    return {board.hoverCaption(tile)};
}

Lines neighbours(CommandContext& context, int tile)
{
    return {context.flow.game.board.Neibors(tile)};
}

/// A caption or a number of the game that `value` prints.
struct Value {
    std::string_view name;
    std::string (*text)(const CommandContext&);
};

const GameState& stateOf(const CommandContext& context)
{
    return context.flow.game.state;
}

using Context = CommandContext;

constexpr Value values[] = {
    {"WordTried", [](const Context& c) { return stateOf(c).WordTried.Caption; }},
    {"CurrScore", [](const Context& c) { return stateOf(c).CurrScore.Caption; }},
    {"YourScore", [](const Context& c) { return stateOf(c).YourScore.Caption; }},
    {"CompScore", [](const Context& c) { return stateOf(c).CompScore.Caption; }},
    {"TilesLeft", [](const Context& c) { return stateOf(c).TilesLeft.Caption; }},
    {"Label1", [](const Context& c) { return c.status.Label1; }},
    {"EnterWord", [](const Context& c) { return stateOf(c).EnterWord.Caption; }},
    {"caption", [](const Context& c) { return c.flow.caption(); }},
    {"ticks", [](const Context& c) { return std::to_string(stateOf(c).tickCount); }},
    {"pressure", [](const Context& c) { return std::to_string(stateOf(c).pressure); }},
    {"last_pressure", [](const Context& c) { return std::to_string(stateOf(c).lastPressure); }},
    {"red_threshold", [](const Context& c) { return std::to_string(c.flow.dictionary.redThreshold()); }},
    {"red_tiles", [](const Context& c) { return std::to_string(stateOf(c).redTilesOnBoard); }},
    {"red_tiles_used", [](const Context& c) { return std::to_string(stateOf(c).redTilesUsed); }},
    {"bonus_tiles", [](const Context& c) { return std::to_string(stateOf(c).bonusTilesOnBoard); }},
    {"hints_used", [](const Context& c) { return std::to_string(stateOf(c).hintsUsed); }},
    {"words_made", [](const Context& c) { return std::to_string(stateOf(c).wordsMade); }},
    {"delay", [](const Context& c) { return std::to_string(c.flow.options.settings.dropDelay); }},
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

Lines printValue(CommandContext& context, const Value* value)
{
    return {value->text(context)};
}

Lines path(CommandContext& context)
{
    const Selection& selection = context.flow.game.selection;
    std::string tiles;
    for (int place = 1; place <= selection.length(); ++place)
        tiles += (place > 1 ? " " : "") + std::to_string(selection.tileAt(place));
    return {tiles};
}

Lines queue(CommandContext& context)
{
    std::string letters;
    for (const std::string& letter : context.flow.game.supply.RandomLetters)
        letters += letter;
    return {letters};
}

Lines pool(CommandContext& context)
{
    const auto& letters = context.flow.dictionary.letters.pool;
    return {std::string(letters.begin() + 1, letters.end())};
}

/// Entries 1 to 26 on one line.
std::string letterNumbers(const std::array<int, 27>& numbers)
{
    std::string text;
    for (std::size_t letter = 1; letter < numbers.size(); ++letter)
        text += (letter > 1 ? " " : "") + std::to_string(numbers[letter]);
    return text;
}

Lines letterCounts(CommandContext& context)
{
    return {letterNumbers(context.flow.dictionary.letters.letterCounts)};
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

Lines showStatistics(CommandContext& context)
{
    context.flow.showStatistics();
    return {};
}

/// A digit that shows no figure is "-".
Lines clockFace(CommandContext& context)
{
    const Dc& Dc1 = context.flow.Dc1;
    const auto digit = [&](int place) {
        const int figure = Dc1.shownDigit(place);
        return figure < 0 ? std::string("-") : std::to_string(figure);
    };
    const auto dot = [&](int line) { return !Dc1.lin2(line).visible ? 'h' : Dc1.lit(line) ? 'l' : 'd'; };
    return {digit(0) + digit(1) + ":" + digit(2) + digit(3) + " colon=" + dot(Dc::upperDot) + dot(Dc::lowerDot) +
            " timer=" + (Dc1.running() ? "on" : "off")};
}

} // namespace

std::vector<Command> lookingCommands()
{
    return {
        command("show", Needs::Game, showBoard),
        command("tile", Needs::Game, tileArgument, describeTile),
        command("hover", Needs::Game, tileArgument, hoverTile),
        command("neighbours", Needs::Game, tileArgument, neighbours),
        command("value", Needs::Nothing, valueArgument, printValue),
        command("path", Needs::Game, path),
        command("queue", Needs::Game, queue),
        command("pool", Needs::Nothing, pool),
        command("letter_counts", Needs::Nothing, letterCounts),
        command("words_made", Needs::Game, wordsMade),
        command("statistics", Needs::Game, statistics),
        command("show_statistics", Needs::Play, showStatistics),
        command("clock", Needs::Nothing, clockFace),
    };
}

} // namespace lexigrove
