#pragma once

#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>

namespace lexigrove::tools
{

/// Words whose first meaning WordNet marks as a slur, a disparagement or an obscenity, in lower case.
class OffensiveWords
{
public:
    using Words = std::unordered_set<std::string>;

    OffensiveWords() = default;
    /// `verbs` are those of the words that are verbs too.
    OffensiveWords(Words words, Words verbs) : words_(std::move(words)), verbs_(std::move(verbs)) {}

    /// Whether the word is one of them, a plural of one, or a form of a verb among them.
    bool contains(const std::string& word) const;

private:
    bool isPlural(std::string_view word) const;
    bool isVerbForm(std::string_view word) const;

    Words words_;
    Words verbs_;
};

/// Reads the database in a folder such as Debian's /usr/share/wordnet. Throws std::runtime_error if it is missing.
OffensiveWords readOffensiveWords(const std::string& folder);

} // namespace lexigrove::tools
