#pragma once

#include "platform/ascii.hpp"
#include "platform/clock.hpp"
#include "platform/random.hpp"

#include <array>
#include <cstdint>
#include <string_view>

namespace lexigrove
{

/// How often each letter occurs in the words of a dictionary.
struct LetterFrequencies {
    std::array<std::int64_t, 27> letters{}; ///< 1 to 26 for A to Z; lower-case letters do not count
    std::int64_t characters = 0;            ///< all characters except line ends
};

/// Counts the letters in the text of a whole file.
LetterFrequencies countLetters(std::string_view text);

/// The scores of the letters and the pool of 100 letters that a game deals from.
class LetterTables
{
public:
    static constexpr int poolSize = 100;

    /// The score of each letter, 1 to 26 for A to Z; entry 0 is the score of everything else.
    static constexpr std::array<std::int16_t, 27> value{0, 1, 3, 3,  2, 1, 4, 2, 4, 1, 8, 5, 1, 3,
                                                        1, 1, 3, 10, 1, 1, 1, 1, 4, 4, 8, 4, 10};

    /// The tables before any dictionary is read.
    LetterTables() { buildStartUp(); }

    /// Build letter tables: the counts and the pool of the start-up table.
    void buildStartUp();

    /// Gives each letter its share of the 100 places, at least one for each letter that occurs, and fills the pool.
    /// Places left over go to letters drawn at random; excess places are taken from the letter with the largest share.
    /// Throws std::domain_error if there are no characters, std::overflow_error if a count times 100 exceeds 32 bits,
    /// and std::length_error if the shares need a 101st place; the tables then stay unchanged.
    void derive(const LetterFrequencies& frequencies, Random& random, const Clock& clock);

    /// How many of the 100 places each letter has, 1 to 26 for A to Z; entry 0 is unused. A derived share may be
    /// negative if too many places had to be taken from one letter.
    std::array<int, 27> letterCounts{};

    /// Entries 1 to 100 hold letters, in alphabetical runs until they are shuffled. Entry 0 holds no letter.
    std::array<char, poolSize + 1> pool{};

private:
    void fillPool(const std::array<int, 27>& counts);
};

/// The place of a letter in the alphabet, 1 to 26, and 0 for anything but A to Z.
constexpr int letterIndex(char letter)
{
    return ascii::isUpper(letter) ? letter - 'A' + 1 : 0;
}

/// The score of a letter; 0 for anything but A to Z.
constexpr int letterValue(char letter)
{
    return LetterTables::value[static_cast<std::size_t>(letterIndex(letter))];
}

/// The sum of the scores of a word's letters.
constexpr int letterSum(std::string_view word)
{
    int sum = 0;
    for (const char letter : word)
        sum += letterValue(letter);
    return sum;
}

} // namespace lexigrove
