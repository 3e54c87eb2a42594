#include "record/daily.hpp"

#include "dictionary/letter_tables.hpp"
#include "game/board.hpp"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace lexigrove
{

namespace
{

/// The generator of docs/daily.md. It is a promise to other programs: it never changes.
class DailyGenerator
{
public:
    explicit DailyGenerator(std::uint64_t seed) : state_(seed) {}

    std::uint64_t next()
    {
        state_ += 0x9E3779B97F4A7C15U;
        std::uint64_t z = state_;
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9U;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBU;
        return z ^ (z >> 31);
    }

private:
    std::uint64_t state_;
};

std::string lettersOfTheDay(Day day)
{
    const LetterTables tables; // as they stand before any dictionary is read
    std::string letters(tables.pool.begin() + 1, tables.pool.end());
    DailyGenerator generator(static_cast<std::uint64_t>(day.time_since_epoch().count()));
    for (std::size_t count = letters.size(); count > 1; --count)
        std::swap(letters[count - 1], letters[generator.next() % count]);
    return letters;
}

std::string counted(std::size_t number, const std::string& one)
{
    return std::to_string(number) + ' ' + one + (number == 1 ? "" : "s");
}

/// White for 2 and 3 letters, yellow 4, green 5, blue 6, purple for more.
const char* squareOf(std::size_t length)
{
    constexpr const char* squares[] = {"\xE2\xAC\x9C", "\xF0\x9F\x9F\xA8", "\xF0\x9F\x9F\xA9", "\xF0\x9F\x9F\xA6",
                                       "\xF0\x9F\x9F\xAA"};
    return squares[std::clamp<std::size_t>(length, 3, 7) - 3];
}

} // namespace

BoardPosition boardOfTheDay(Day day, int level)
{
    BoardPosition board;
    board.arrangement = day.time_since_epoch().count() % 2 == 0 ? Arrangement::Square : Arrangement::Staggered;
    board.level = level == 0 ? 2 : level;
    const std::string letters = lettersOfTheDay(day);
    auto letter = letters.begin();
    for (int tile = 1; tile <= Board::tileCount; ++tile) {
        if (Board::row(tile) <= Board::columnHeight(board.arrangement, Board::col(tile)))
            board.cells[static_cast<std::size_t>(tile)].letter = *letter++;
    }
    for (std::size_t col = 1; col < board.waiting.size(); ++col)
        board.waiting[col] = *letter++;
    board.queue.assign(letter, letters.end());
    return board;
}

std::string dailySummary(const GameRecord& record)
{
    constexpr std::size_t mostSquares = 30;
    std::size_t words = 0;
    std::size_t longest = 0;
    std::string squares;
    for (const Turn& turn : record.turns) {
        if (turn.maker != Maker::Player)
            continue;
        if (++words <= mostSquares)
            squares += squareOf(turn.word.size());
        longest = std::max(longest, turn.word.size());
    }
    if (words > mostSquares)
        squares += " +" + std::to_string(words - mostSquares);

    const bool onePoint = record.yourScore == 1;
    return "LexiGrove " + record.begun.substr(0, 10) + ", level " + std::to_string(record.start.level) + "\n" +
           std::to_string(record.yourScore) + (onePoint ? " point in " : " points in ") + counted(words, "word") +
           "\nLongest word: " + counted(longest, "letter") + "\n" + squares;
}

} // namespace lexigrove
