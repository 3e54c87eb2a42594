#pragma once

#include "tools/word_lists/word_net.hpp"

#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace lexigrove::tools
{

/// The words that nobody is shown unasked: those of the project's own list, those that WordNet marks, and their forms.
class CoarseWords
{
public:
    CoarseWords(const std::vector<std::string>& words, const WordNet& wordNet);

    /// Whether the word is one of them, a plural of one, or a form of a verb among them.
    bool contains(const std::string& word) const;

private:
    bool isListed(const std::string& word) const;
    bool isPlural(std::string_view word) const;
    bool isVerbForm(std::string_view word) const;

    std::unordered_set<std::string> words_;
    const WordNet& wordNet_;
};

} // namespace lexigrove::tools
