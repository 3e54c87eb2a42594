#pragma once

#include "tools/word_lists/coarse_words.hpp"
#include "tools/word_lists/scowl.hpp"
#include "tools/word_lists/word_counts.hpp"
#include "tools/word_lists/word_net.hpp"

#include <array>
#include <cstddef>
#include <string>
#include <unordered_set>
#include <vector>

namespace lexigrove::tools
{

/// What the lists are made from.
struct Sources {
    Scowl scowl;
    WordCounts counts;
    WordNet wordNet;
    std::vector<std::string> themes;       ///< everyday words that a child knows
    std::vector<std::string> coarse;       ///< words that nobody is shown unasked
    std::unordered_set<std::string> names; ///< words that are above all names
};

/// The words of the three levels, in upper case and in ascending order of their bytes; each level contains the previous
/// one.
using Levels = std::array<std::vector<std::string>, 3>;

constexpr std::array<std::size_t, 3> levelSizes{2'500, 20'000, 200'000};

/// Levels 1 and 2 hold exactly their number of words: the themes and their commonest inflections; what is common or
/// stands for a thing. Level 3 holds the words of a huge dictionary, but of its rarest class only those that another
/// source confirms and the shorter ones. Throws std::runtime_error if the lists are too small for a level, a theme's
/// word is unknown, or a level is more than 5 % off its size.
Levels makeLevels(Sources sources);

} // namespace lexigrove::tools
