#pragma once

#include "tools/word_lists/offensive_words.hpp"
#include "tools/word_lists/scowl.hpp"
#include "tools/word_lists/word_counts.hpp"

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace lexigrove::tools
{

/// The words of the three levels, in upper case and in ascending order of their bytes; each level contains the previous
/// one.
using Levels = std::array<std::vector<std::string>, 3>;

constexpr std::array<std::size_t, 3> levelSizes{2'500, 20'000, 200'000};

/// Levels 1 and 2 hold exactly their number of the most common words. Level 3 holds all words of a huge dictionary,
/// except the longer ones of its rarest class, to come close to the level's size. Throws std::runtime_error if the
/// lists are too small for a level, or a level is more than 5 % off its size.
Levels makeLevels(const Scowl& scowl, const WordCounts& counts, const OffensiveWords& offensive);

} // namespace lexigrove::tools
