#pragma once

#include "controls/multiplier.hpp"

namespace lexigrove
{

/// What a word over a path is worth.
struct WordScore {
    int score = 0;                   ///< best multiplier times the letter sum
    int bonusCount = 0;              ///< tiles that raised the running best, in path order
    Colour best = multiplier::plain; ///< the multiplier that counts: 1 to 4

    friend bool operator==(const WordScore&, const WordScore&) = default;
};

} // namespace lexigrove
