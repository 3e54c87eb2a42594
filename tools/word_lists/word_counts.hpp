#pragma once

#include <string>
#include <unordered_map>

namespace lexigrove::tools
{

/// By word, the natural logarithm of its share of all words in a large body of English speech and news.
using WordCounts = std::unordered_map<std::string, double>;

/// Reads the one-word part of a Sphinx language model ("Trie Language Model", as in Debian's pocketsphinx-en-us).
/// Throws std::runtime_error if the file is missing or is not such a model.
WordCounts readWordCounts(const std::string& path);

} // namespace lexigrove::tools
