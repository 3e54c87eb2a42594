#include "scores/statistics.hpp"

#include "controls/label.hpp"
#include "dictionary/letter_tables.hpp"

#include <algorithm>
#include <numeric>

namespace lexigrove
{

void Statistics::recordWord(std::string_view word, int base)
{
    addOne(base + wordsMade);
    const int length = static_cast<int>(word.size());
    if (length >= 2) // shorter ones, from a player's own list, have no row of their own
        addOne(base + std::min(length, fiveOrMoreLetters));
    if (length >= number(base + longestLength)) {
        at(base + longestLength) = std::to_string(length);
        at(base + longestWord) = std::string(word) + " ";
    }
    for (const char letter : word) {
        if (const int index = letterIndex(letter))
            ++lettersUsed_.at(static_cast<std::size_t>(index));
    }
}

void Statistics::setHintsUsed(int count)
{
    at(playerBase + hintsUsed) = count == 0 ? "" : std::to_string(count);
}

void Statistics::reset()
{
    table_.fill({});
    lettersUsed_.fill(0);
}

int Statistics::number(int index) const
{
    return numberOf(entry(index));
}

int Statistics::totalLettersUsed()
{
    return lettersUsed_[0] = std::accumulate(lettersUsed_.begin() + 1, lettersUsed_.end(), 0);
}

void Statistics::addOne(int index)
{
    at(index) = std::to_string(number(index) + 1);
}

} // namespace lexigrove
