#include "tools/word_lists/coarse_words.hpp"

#include <algorithm>

namespace lexigrove::tools
{

namespace
{

bool hasEnding(std::string_view word, std::string_view ending)
{
    return word.size() > ending.size() + 2 && word.ends_with(ending);
}

} // namespace

CoarseWords::CoarseWords(const std::vector<std::string>& words, const WordNet& wordNet)
    : words_(words.begin(), words.end()), wordNet_(wordNet)
{
}

bool CoarseWords::isListed(const std::string& word) const
{
    return words_.contains(word) || wordNet_.isOffensive(word);
}

bool CoarseWords::isPlural(std::string_view word) const
{
    const auto without = [&](std::size_t letters) { return std::string(word.substr(0, word.size() - letters)); };
    return (hasEnding(word, "s") && isListed(without(1))) || (hasEnding(word, "ies") && isListed(without(3) + "y")) ||
           ((hasEnding(word, "shes") || hasEnding(word, "ches") || hasEnding(word, "sses") ||
             hasEnding(word, "zzes")) &&
            isListed(without(2)));
}

bool CoarseWords::isVerbForm(std::string_view word) const
{
    const auto isVerb = [&](const std::string& stem) {
        return wordNet_.use(stem, Part::Verb).defined && isListed(stem);
    };
    for (const std::string_view ending : {"ed", "er", "ers", "ing", "ings"}) {
        if (!hasEnding(word, ending))
            continue;
        const std::string stem(word.substr(0, word.size() - ending.size()));
        const bool doubled = stem[stem.size() - 1] == stem[stem.size() - 2];
        if (isVerb(stem) || (stem.back() != 'e' && isVerb(stem + "e")) ||
            (doubled && isVerb(stem.substr(0, stem.size() - 1))))
            return true;
    }
    return false;
}

bool CoarseWords::contains(const std::string& word) const
{
    const std::vector<Base> bases = wordNet_.bases(word);
    return isListed(word) || isPlural(word) || isVerbForm(word) ||
           std::any_of(bases.begin(), bases.end(), [&](const Base& base) { return isListed(base.word); });
}

} // namespace lexigrove::tools
