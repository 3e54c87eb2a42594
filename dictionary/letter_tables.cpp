#include "dictionary/letter_tables.hpp"

#include <algorithm>
#include <limits>
#include <numeric>
#include <stdexcept>

namespace lexigrove
{

namespace
{

/// The letter counts before any dictionary is read. Six U, because there is no blank tile.
constexpr std::array<int, 27> startUpCounts{0, 9, 2, 2, 4, 12, 2, 3, 2, 9, 1, 1, 4, 2,
                                            6, 8, 2, 1, 6, 4,  6, 6, 2, 2, 1, 2, 1};

using Histogram = std::array<std::uint32_t, 256>;

/// Counts each byte in at most 4 GiB of text. Four tables, so that the increments for a run of one letter do not wait
/// for one another.
Histogram countBytes(std::string_view text)
{
    std::array<Histogram, 4> tables{};
    std::size_t i = 0;
    for (; i + 4 <= text.size(); i += 4)
        for (std::size_t table = 0; table < 4; ++table)
            ++tables[table][static_cast<unsigned char>(text[i + table])];
    for (; i < text.size(); ++i)
        ++tables[0][static_cast<unsigned char>(text[i])];
    for (std::size_t table = 1; table < 4; ++table)
        for (std::size_t byte = 0; byte < 256; ++byte)
            tables[0][byte] += tables[table][byte];
    return tables[0];
}

} // namespace

LetterFrequencies countLetters(std::string_view text)
{
    if (text.size() > std::numeric_limits<std::uint32_t>::max())
        throw std::length_error("The dictionary is larger than 4 GiB");
    const Histogram bytes = countBytes(text);
    LetterFrequencies frequencies;
    for (std::size_t letter = 1; letter <= 26; ++letter)
        frequencies.letters[letter] = bytes['A' + letter - 1];
    frequencies.characters = static_cast<std::int64_t>(text.size()) - bytes['\r'] - bytes['\n'];
    return frequencies;
}

void LetterTables::buildStartUp()
{
    letterCounts = startUpCounts;
    fillPool(startUpCounts);
}

void LetterTables::derive(const LetterFrequencies& frequencies, Random& random, const Clock& clock)
{
    if (frequencies.characters == 0)
        throw std::domain_error("The dictionary holds no characters");

    std::array<int, 27> counts{};
    std::size_t largest = 1;
    for (std::size_t letter = 1; letter <= 26; ++letter) {
        const std::int64_t product = frequencies.letters[letter] * poolSize;
        if (product > std::numeric_limits<std::int32_t>::max())
            throw std::overflow_error("A letter occurs too often in the dictionary");
        counts[letter] = static_cast<int>(product / frequencies.characters);
        if (frequencies.letters[letter] > 0 && counts[letter] == 0)
            counts[letter] = 1;
        if (counts[letter] > counts[largest])
            largest = letter;
    }

    const int sum = std::accumulate(counts.begin(), counts.end(), 0);
    for (int missing = sum; missing < poolSize; ++missing)
        ++counts[static_cast<std::size_t>(placeFromDraw(random.reseedAndDraw(clock), 26))];
    if (sum > poolSize)
        counts[largest] -= sum - poolSize;

    fillPool(counts);
    letterCounts = counts;
}

void LetterTables::fillPool(const std::array<int, 27>& counts)
{
    std::array<char, poolSize + 1> filled{};
    int last = 0;
    for (std::size_t letter = 1; letter <= 26; ++letter)
        for (int copy = 0; copy < counts[letter]; ++copy) {
            if (last == poolSize)
                throw std::length_error("The letters need more than 100 places in the pool");
            filled[static_cast<std::size_t>(++last)] = static_cast<char>('A' + letter - 1);
        }
    pool = filled;
}

} // namespace lexigrove
