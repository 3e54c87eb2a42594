#pragma once

#include <array>
#include <string>
#include <string_view>

namespace lexigrove
{

/// Statistics of the current game for the player and the computer: a table of 17 entries and a counter for each letter
/// used in words. `reset` clears everything at the start of a game.
class Statistics
{
public:
    /// Where the entries of each side begin: the player's are 1 to 8, the computer's 9 to 16.
    static constexpr int playerBase = 0;
    static constexpr int computerBase = 8;

    /// Offsets of the entries from a base.
    static constexpr int wordsMade = 1;
    static constexpr int fiveOrMoreLetters = 5; ///< 2, 3 and 4 are the words of that many letters
    static constexpr int hintsUsed = 6;         ///< player only
    static constexpr int longestLength = 7;
    static constexpr int longestWord = 8; ///< the word, followed by one blank

    static constexpr int entryCount = 17; ///< entry 0 stays empty

    /// Counts a word made, with `playerBase` or `computerBase`. A later word as long as the longest replaces it.
    void recordWord(std::string_view word, int base);

    /// Sets the player's number of hints used so far.
    void setHintsUsed(int count);

    void reset();

    /// Entry 0 to 16 as a number; 0 for the longest words.
    [[nodiscard]] int number(int index) const { return numbers_.at(static_cast<std::size_t>(index)); }

    /// Entry 0 to 16 as text; empty for a number that is 0.
    [[nodiscard]] std::string entry(int index) const;

    /// Letters used in words: 1 to 26 for A to Z; 0 stays 0.
    [[nodiscard]] const std::array<int, 27>& lettersUsed() const { return lettersUsed_; }
    [[nodiscard]] int totalLettersUsed() const;

    friend bool operator==(const Statistics&, const Statistics&) = default;

private:
    int& at(int index) { return numbers_.at(static_cast<std::size_t>(index)); }

    std::array<int, entryCount> numbers_{};
    std::array<std::string, 2> longestWords_; ///< the player's and the computer's
    std::array<int, 27> lettersUsed_{};
};

} // namespace lexigrove
