#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

namespace lexigrove::tools
{

/// The word lists of SCOWL, which sort English words by how widely they are known: class 10 holds what everybody
/// writes, 35 the words of a small dictionary, 70 of a large one, 80 of a huge one. All texts consist of lower-case
/// letters a to z; accents are left out.
struct Scowl {
    std::unordered_map<std::string, int> classes;  ///< by word, the smallest class that lists it, American or British
    std::unordered_set<std::string> variants;      ///< other spellings, "donut"; some are in the classes, too
    std::unordered_map<std::string, int> names;    ///< names of people, places and things, and their smallest class
    std::unordered_set<std::string> abbreviations; ///< in lower case
    std::unordered_set<std::string> bareContractions; ///< contractions without their apostrophe: "cant", "id"
};

constexpr int largestClass = 80; ///< beyond it are words that only a very large dictionary has, and misprints

/// Reads the lists of a folder, such as Debian's /usr/share/dict/scowl. Throws std::runtime_error if a list is missing.
Scowl readScowl(const std::string& folder);

/// Two letters or more, a to z only.
bool isPlainWord(std::string_view text);

} // namespace lexigrove::tools
