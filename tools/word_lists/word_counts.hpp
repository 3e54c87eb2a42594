#pragma once

#include <string>
#include <unordered_map>

namespace lexigrove::tools
{

/// Word: the natural logarithm of how often it stands among all words of a large body of English talk and news.
using WordCounts = std::unordered_map<std::string, double>;

/// Reads the one-word part of a Sphinx language model ("Trie Language Model", as in Debian's pocketsphinx-en-us).
/// Throws std::runtime_error where the file is missing or is no such model.
WordCounts readWordCounts(const std::string& path);

} // namespace lexigrove::tools
