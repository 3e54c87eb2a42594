#include "record/saved_game.hpp"

#include "platform/text_file.hpp"

#include <algorithm>
#include <charconv>
#include <limits>
#include <span>
#include <vector>

namespace lexigrove
{

namespace
{

constexpr std::string_view firstLine = "LexiGrove game 1";
constexpr std::string_view noText = "-";

constexpr std::string_view kindNames[] = {"normal", "preset", "position", "shared", "daily"};
constexpr std::string_view opponentNames[] = {"highest", "longest", "any"};
constexpr std::string_view drawNames[] = {"not-dealt", "going", "ended"};
constexpr std::string_view sortNames[] = {"no", "ascending", "descending"};
constexpr std::string_view promptNames[] = {"none", "your-move"};
constexpr std::string_view makerNames[] = {"player", "computer"};
constexpr std::string_view yesNo[] = {"no", "yes"};

constexpr int most16 = std::numeric_limits<std::int16_t>::max();
constexpr int least16 = std::numeric_limits<std::int16_t>::min();
constexpr int mostPoints = 2'000'000'000;

enum class Sorted { No, Ascending, Descending };

/// What a saved game keeps of things that otherwise follow from its words.
struct Kept {
    std::vector<int> wordScore; ///< score, bonus count and multiplier of the word being built, empty for none
    int hintsShown = 0;         ///< the entry of the statistics, written when they are shown
    std::vector<int> rows;      ///< of `WordsMade` in their order: the numbers of the words
    int currentRow = 0;
    Sorted sorted = Sorted::No;
};

std::string joined(std::span<const int> numbers)
{
    std::string text;
    for (const int number : numbers)
        text += (text.empty() ? "" : " ") + std::to_string(number);
    return text.empty() ? std::string(noText) : text;
}

/// Writes the fields of a game, a line each.
class FieldWriter
{
public:
    static constexpr bool reads = false;

    void number(std::string_view name, int value, int /*lowest*/, int /*highest*/)
    {
        line(name, std::to_string(value));
    }
    void numbers(std::string_view name, std::span<const int> values, int /*lowest*/, int /*highest*/)
    {
        line(name, joined(values));
    }
    void list(std::string_view name, const std::vector<int>& values, int /*lowest*/, int /*highest*/)
    {
        line(name, joined(values));
    }
    void text(std::string_view name, const std::string& value) { line(name, value.empty() ? noText : value); }
    template <typename Enum>
    void choice(std::string_view name, Enum value, std::span<const std::string_view> names)
    {
        line(name, names[static_cast<std::size_t>(value)]);
    }
    void hash(std::string_view name, std::uint64_t value) { line(name, std::to_string(value)); }
    void board(std::string_view name, const BoardPosition& value) { line(name, textOf(value)); }

    std::string result{firstLine};

private:
    void line(std::string_view name, std::string_view value)
    {
        result.append("\n").append(name).append(" ").append(value);
    }
};

/// Reads the fields back in the same order.
class FieldReader
{
public:
    static constexpr bool reads = true;

    explicit FieldReader(std::string_view text) : lines_(splitLines(text))
    {
        if (lines_.empty() || !lines_[0].starts_with("LexiGrove game "))
            throw PositionError("line 1: this is no saved game");
        if (lines_[0] != firstLine)
            throw PositionError("line 1: a later version of the game has saved this");
    }

    void number(std::string_view name, int& value, int lowest, int highest)
    {
        value = numberIn(take(name), lowest, highest);
    }
    void numbers(std::string_view name, std::span<int> values, int lowest, int highest)
    {
        std::vector<int> read;
        list(name, read, lowest, highest);
        if (read.size() != values.size())
            fail(std::to_string(read.size()) + " numbers instead of " + std::to_string(values.size()));
        std::copy(read.begin(), read.end(), values.begin());
    }
    void list(std::string_view name, std::vector<int>& values, int lowest, int highest)
    {
        std::string_view rest = take(name);
        values.clear();
        while (rest != noText && !rest.empty()) {
            const std::size_t end = std::min(rest.find(' '), rest.size());
            values.push_back(numberIn(rest.substr(0, end), lowest, highest));
            rest.remove_prefix(std::min(end + 1, rest.size()));
        }
    }
    void text(std::string_view name, std::string& value)
    {
        const std::string_view read = take(name);
        value = read == noText ? std::string_view{} : read;
    }
    template <typename Enum>
    void choice(std::string_view name, Enum& value, std::span<const std::string_view> names)
    {
        const std::string_view read = take(name);
        for (std::size_t i = 0; i < names.size(); ++i) {
            if (read == names[i]) {
                value = static_cast<Enum>(i);
                return;
            }
        }
        fail("'" + std::string(read) + "' is not known");
    }
    void hash(std::string_view name, std::uint64_t& value)
    {
        const std::string_view read = take(name);
        const auto [end, failure] = std::from_chars(read.data(), read.data() + read.size(), value);
        if (failure != std::errc{} || end != read.data() + read.size())
            fail("'" + std::string(read) + "' is no number");
    }
    void board(std::string_view name, BoardPosition& value)
    {
        const std::string_view read = take(name);
        try {
            value = boardPositionOf(read);
        } catch (const PositionError& error) {
            fail(error.what());
        }
    }
    void expectEnd()
    {
        if (place_ + 1 < lines_.size()) {
            ++place_;
            fail("nothing is expected here");
        }
    }
    [[noreturn]] void fail(const std::string& what) const
    {
        throw PositionError("line " + std::to_string(place_ + 1) + ": " + what);
    }

private:
    std::string_view take(std::string_view name)
    {
        if (++place_ >= lines_.size())
            fail(std::string(name) + " is missing");
        const std::string_view line = lines_[place_];
        if (!line.starts_with(name) || line.size() <= name.size() || line[name.size()] != ' ')
            fail(std::string(name) + " is expected here");
        return line.substr(name.size() + 1);
    }
    int numberIn(std::string_view text, int lowest, int highest) const
    {
        int value = 0;
        const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), value);
        if (failure != std::errc{} || end != text.data() + text.size() || value < lowest || value > highest)
            fail("'" + std::string(text) + "' is no number from " + std::to_string(lowest) + " to " +
                 std::to_string(highest));
        return value;
    }

    std::vector<std::string_view> lines_;
    std::size_t place_ = 0;
};

/// A number that follows from the length of a list, and the list's items.
template <typename Fields, typename Items, typename Visit>
void items(Fields& fields, std::string_view name, Items& list, int most, Visit visit)
{
    int count = static_cast<int>(list.size());
    fields.number(name, count, 0, most);
    if constexpr (Fields::reads)
        list.resize(static_cast<std::size_t>(count));
    for (auto& item : list)
        visit(item);
}

/// Every field of a game in its order, for the writer and for the reader alike.
template <typename Fields, typename Game, typename KeptFields>
void visitFields(Fields& fields, Game& game, KeptFields& kept)
{
    auto& position = game.position;
    auto& state = position.state;
    fields.text("saved", game.date);
    fields.board("board", position.board);
    fields.text("user-dictionary", position.userDictionary);
    fields.hash("words", position.words);
    fields.choice("kind", state.kind, kindNames);
    fields.choice("against-computer", state.computerGame, yesNo);
    fields.choice("computer-plays", position.strategy, opponentNames);
    fields.number("score", state.yourScore, -mostPoints, mostPoints);
    fields.number("computer-score", state.compScore, -mostPoints, mostPoints);
    fields.choice("letters", state.letterDraw, drawNames);
    fields.number("tiles-left", state.tilesLeft, least16, most16);
    fields.choice("prompt", state.prompt, promptNames);
    fields.list("word-score", kept.wordScore, 0, mostPoints);
    fields.choice("hold", state.redTileHold, yesNo);
    fields.number("bonus-tiles", state.bonusTilesOnBoard, least16, most16);
    fields.number("red-tiles", state.redTilesOnBoard, least16, most16);
    fields.number("red-tiles-used", state.redTilesUsed, 0, most16);
    fields.number("red-tiles-made", state.redTilesMade, 0, most16);
    fields.number("pushes", state.pushes, 0, most16);
    fields.number("hints-used", state.hintsUsed, 0, most16);
    fields.number("ticks", state.tickCount, 0, most16);
    fields.number("pressure", state.pressure, -mostPoints, mostPoints);
    fields.number("last-pressure", state.lastPressure, -mostPoints, mostPoints);
    fields.number("red-threshold", position.redThreshold, least16, most16);
    fields.number("seconds-left", position.secondsLeft, least16, most16);
    fields.number("seconds-played", state.secondsPlayed, 0, mostPoints);
    fields.numbers("letter-counts", std::span(position.letterCounts), -1000, 1000);
    fields.text("pool", position.pool);
    fields.list("path", position.path, 1, BoardPosition::tileCount);
    fields.choice("entry-pending", position.entryPending, yesNo);
    fields.number("swap", position.swapTile, 0, BoardPosition::tileCount);
    fields.number("hints-shown", kept.hintsShown, 0, most16);
    fields.text("begun", state.begun);
    fields.text("start", state.start);
    fields.list("rows", kept.rows, 1, most16);
    fields.number("current-row", kept.currentRow, 0, most16);
    fields.choice("sorted", kept.sorted, sortNames);
    items(fields, "turns", state.turns, most16, [&](auto& turn) {
        fields.board("before", turn.before);
        fields.text("word", turn.word);
        fields.list("tiles", turn.path, 1, BoardPosition::tileCount);
        fields.number("points", turn.score, -mostPoints, mostPoints);
        fields.choice("maker", turn.maker, makerNames);
        fields.number("hints", turn.hintsUsed, 0, most16);
        fields.number("reds", turn.redTilesMade, 0, most16);
        fields.number("pushed", turn.pushes, 0, most16);
    });
}

/// What follows from the words of the game: statistics, the rows of the words made in the order kept, their number.
void deriveFromTurns(const Kept& kept, GameState& state)
{
    const int count = static_cast<int>(state.turns.size());
    for (const Turn& turn : state.turns) {
        const bool players = turn.maker == Maker::Player;
        state.statistics.recordWord(turn.word, players ? Statistics::playerBase : Statistics::computerBase);
        state.wordsMade += players ? 1 : 0;
    }
    state.statistics.setHintsUsed(kept.hintsShown);
    if (const auto& score = kept.wordScore; score.size() == 3)
        state.currScore = WordScore{score[0], score[1], static_cast<Colour>(score[2])};
    else if (!score.empty())
        throw PositionError("word-score: " + std::to_string(score.size()) + " numbers instead of 3");

    std::vector<int> sorted = kept.rows;
    std::sort(sorted.begin(), sorted.end());
    for (int i = 0; i < std::max(count, static_cast<int>(sorted.size())); ++i) {
        if (i >= count || i >= static_cast<int>(sorted.size()) || sorted[static_cast<std::size_t>(i)] != i + 1)
            throw PositionError("rows: they are not the numbers of the " + std::to_string(count) + " words");
    }
    std::vector<WordsRow> rows;
    for (const int number : kept.rows) {
        const Turn& turn = state.turns[static_cast<std::size_t>(number - 1)];
        rows.push_back({.number = number, .score = turn.score, .word = turn.word, .maker = turn.maker});
    }
    state.WordsMade.assign(std::move(rows));
    if (kept.currentRow >= state.WordsMade.Rows())
        throw PositionError("current-row: there are " + std::to_string(count) + " rows");
    state.WordsMade.setCurrent(kept.currentRow);
    constexpr const char* marks[] = {"", "A", "D"};
    state.WordsMade.Tag = marks[static_cast<std::size_t>(kept.sorted)];
}

} // namespace

std::string textOf(const SavedGame& game)
{
    const WordsGrid& grid = game.position.state.WordsMade;
    Kept kept;
    if (const auto& score = game.position.state.currScore)
        kept.wordScore = {score->score, score->bonusCount, static_cast<int>(score->best)};
    kept.hintsShown = game.position.state.statistics.number(Statistics::hintsUsed);
    for (int row = 1; row < grid.Rows(); ++row)
        kept.rows.push_back(grid.row(row).number);
    kept.currentRow = grid.Row();
    kept.sorted = grid.Tag == "A" ? Sorted::Ascending : grid.Tag == "D" ? Sorted::Descending : Sorted::No;
    FieldWriter writer;
    visitFields(writer, game, kept);
    return writer.result + "\n";
}

SavedGame savedGameOf(std::string_view text)
{
    FieldReader reader(text);
    SavedGame game;
    Kept kept;
    visitFields(reader, game, kept);
    reader.expectEnd();
    deriveFromTurns(kept, game.position.state);
    return game;
}

} // namespace lexigrove
