#pragma once

#include "controls/words_grid.hpp"
#include "game/turn.hpp"

#include <cstdint>
#include <limits>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// The texts of games that are kept: a first line with the kind of text and its version, then a line a field, "name
/// value". One visitor names the fields in their order; the writer and the reader both follow it.
namespace lexigrove
{

namespace field
{
inline constexpr std::string_view noText = "-"; ///< stands for an empty value
inline constexpr std::string_view kindNames[] = {"normal", "preset", "position", "shared", "daily", "relaxed"};
inline constexpr std::string_view strategyNames[] = {"highest", "longest", "any"};
inline constexpr std::string_view vocabularyNames[] = {"every", "common", "simple"};
inline constexpr std::string_view makerNames[] = {"player", "computer"};
inline constexpr std::string_view yesNo[] = {"no", "yes"};

inline constexpr int most16 = std::numeric_limits<std::int16_t>::max();
inline constexpr int mostPoints = 2'000'000'000;
} // namespace field

class LineWriter
{
public:
    static constexpr bool reads = false;

    explicit LineWriter(std::string_view firstLine) { text_.append(firstLine) += '\n'; }

    void number(std::string_view name, int value, int lowest, int highest);
    void numbers(std::string_view name, std::span<const int> values, int lowest, int highest);
    void list(std::string_view name, const std::vector<int>& values, int lowest, int highest);
    void text(std::string_view name, std::string_view value);
    void hash(std::string_view name, std::uint64_t value);
    void board(std::string_view name, const BoardPosition& value);
    template <typename Enum>
    void choice(std::string_view name, Enum value, std::span<const std::string_view> names)
    {
        line(name, names[static_cast<std::size_t>(value)]);
    }
    /// A field that came with a later version: the first choice, which the earlier ones made, has no line.
    template <typename Enum>
    void choiceUnlessFirst(std::string_view name, Enum value, std::span<const std::string_view> names)
    {
        if (value != Enum{})
            choice(name, value, names);
    }

    /// The whole text, each line ended by a line feed: last comes "check" with the hash of all lines above.
    [[nodiscard]] std::string finished();

private:
    void line(std::string_view name, std::string_view value);

    std::string text_;
};

/// Every function throws PositionError, which names the line, when the next line is not that field or its value is out
/// of range.
class LineReader
{
public:
    static constexpr bool reads = true;

    /// The first line ends with the version, a number. The text outlives the reader.
    LineReader(std::string_view text, std::string_view firstLine);

    void number(std::string_view name, int& value, int lowest, int highest);
    /// Exactly so many numbers.
    void numbers(std::string_view name, std::span<int> values, int lowest, int highest);
    void list(std::string_view name, std::vector<int>& values, int lowest, int highest);
    void text(std::string_view name, std::string& value);
    void hash(std::string_view name, std::uint64_t& value);
    void board(std::string_view name, BoardPosition& value);
    template <typename Enum>
    void choice(std::string_view name, Enum& value, std::span<const std::string_view> names)
    {
        value = static_cast<Enum>(choiceIn(name, names));
    }
    template <typename Enum>
    void choiceUnlessFirst(std::string_view name, Enum& value, std::span<const std::string_view> names)
    {
        value = isNext(name) ? static_cast<Enum>(choiceIn(name, names)) : Enum{};
    }
    /// "check" is the last line.
    void expectEnd();
    /// The text is what the game would write for what was read from it: its check is right, and there is nothing in it
    /// that was passed over.
    void expectWritten(std::string_view written) const;

    /// Says what is wrong with the line that was read last.
    [[noreturn]] void fail(const std::string& what) const;

private:
    std::string_view take(std::string_view name);
    [[nodiscard]] bool isNext(std::string_view name) const;
    [[nodiscard]] int numberIn(std::string_view text, int lowest, int highest) const;
    std::size_t choiceIn(std::string_view name, std::span<const std::string_view> names);

    std::string_view text_;
    std::vector<std::string_view> lines_;
    std::size_t place_ = 0; ///< of the line read last
};

/// The words of a game: how many, and then the fields of each.
template <typename Fields, typename Turns>
void visitTurns(Fields& fields, Turns& turns)
{
    int count = static_cast<int>(turns.size());
    fields.number("turns", count, 0, field::most16);
    if constexpr (Fields::reads)
        turns.clear(); // grows with the lines that are there, whatever the count says
    for (int i = 0; i < count; ++i) {
        if constexpr (Fields::reads)
            turns.emplace_back();
        auto& turn = turns[static_cast<std::size_t>(i)];
        fields.board("before", turn.before);
        fields.text("word", turn.word);
        fields.list("tiles", turn.path, 1, BoardPosition::tileCount);
        fields.number("points", turn.score, -field::mostPoints, field::mostPoints);
        fields.choice("maker", turn.maker, field::makerNames);
        fields.number("hints", turn.hintsUsed, 0, field::most16);
        fields.number("reds", turn.redTilesMade, 0, field::most16);
        fields.number("pushed", turn.pushes, 0, field::most16);
    }
}

} // namespace lexigrove
