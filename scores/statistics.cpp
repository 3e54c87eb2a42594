#include "scores/statistics.hpp"

#include "dictionary/letter_tables.hpp"

#include <algorithm>
#include <numeric>

namespace lexigrove
{

void Statistics::recordWord(std::string_view word, int base)
{
    ++at(base + wordsMade);
    const int length = static_cast<int>(word.size());
    if (length >= 2) // shorter words, from a user dictionary, have no row
        ++at(base + std::min(length, fiveOrMoreLetters));
    if (length >= number(base + longestLength)) {
        at(base + longestLength) = length;
        longestWords_[base == playerBase ? 0 : 1] = word;
    }
    for (const char letter : word) {
        if (const int index = letterIndex(letter))
            ++lettersUsed_.at(static_cast<std::size_t>(index));
    }
}

void Statistics::setHintsUsed(int count)
{
    at(playerBase + hintsUsed) = count;
}

void Statistics::reset()
{
    *this = {};
}

std::string Statistics::entry(int index) const
{
    if (index == playerBase + longestWord || index == computerBase + longestWord) {
        const std::string& word = longestWords_[index == playerBase + longestWord ? 0 : 1];
        return word.empty() ? "" : word + " ";
    }
    return number(index) == 0 ? "" : std::to_string(number(index));
}

int Statistics::totalLettersUsed() const
{
    return std::accumulate(lettersUsed_.begin(), lettersUsed_.end(), 0);
}

} // namespace lexigrove
