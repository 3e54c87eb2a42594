#include "tools/word_lists/levels.hpp"

#include "platform/ascii.hpp"
#include "tools/word_lists/ranking.hpp"

#include <algorithm>
#include <cmath>
#include <map>
#include <stdexcept>

namespace lexigrove::tools
{

namespace
{

constexpr int variantClass = 55;  ///< what a variant is taken for: known to most, written by few
constexpr int completeClass = 70; ///< a large dictionary: level 3 has all of it
constexpr int surelyPlainClass = 60;

/// Variants that another source knows. The others are slips: "landslidden".
void addVariants(Sources& sources)
{
    for (const std::string& variant : sources.scowl.variants) {
        if (sources.counts.contains(variant) || isConfirmed(sources, variant))
            sources.scowl.classes.emplace(variant, variantClass);
    }
}

bool isNothingButName(const Sources& sources, const std::string& word)
{
    const std::vector<Base> bases = sources.wordNet.bases(word);
    return sources.names.contains(word) && !sources.wordNet.use(word, Part::Noun).defined &&
           std::all_of(bases.begin(), bases.end(), [&](const Base& base) { return sources.names.contains(base.word); });
}

/// SCOWL's large classes list names and abbreviations in lower case too: "texas", "gif". A rare word that is spelled
/// like one is taken for one, unless WordNet defines it.
bool isPlainLevelWord(const Sources& sources, const std::string& word, int size)
{
    const Scowl& scowl = sources.scowl;
    if (!isPronounced(word))
        return false;
    if (size <= surelyPlainClass)
        return !isNothingButName(sources, word);
    const auto name = scowl.names.find(word);
    if (name == scowl.names.end() && !scowl.abbreviations.contains(word))
        return true;
    return (name == scowl.names.end() || name->second > commonNameClass) && !scowl.abbreviations.contains(word) &&
           isConfirmed(sources, word);
}

/// All words of the complete classes; of the largest class those that another source confirms, and of the others the
/// shorter ones, up to the length that brings the level closest to its size.
std::vector<std::string> wordsOfLevel3(const Sources& sources)
{
    std::vector<std::string> words;
    std::map<std::size_t, std::vector<std::string>> rareByLength;
    for (const auto& [word, size] : sources.scowl.classes) {
        if (!isPlainLevelWord(sources, word, size))
            continue;
        const bool known = size <= completeClass || sources.counts.contains(word) || isConfirmed(sources, word);
        (known ? words : rareByLength[word.size()]).push_back(word);
    }
    const auto distance = [](std::size_t count) {
        return std::abs(static_cast<double>(count) - static_cast<double>(levelSizes[2]));
    };
    for (const auto& [length, rare] : rareByLength) {
        if (distance(words.size() + rare.size()) > distance(words.size()))
            break;
        words.insert(words.end(), rare.begin(), rare.end());
    }
    return words;
}

/// The words so far, and the first of the others that there is room for.
std::vector<std::string> filledUp(std::vector<std::string> words, const std::vector<std::string>& others,
                                  std::size_t size)
{
    std::unordered_set<std::string> held(words.begin(), words.end());
    for (const std::string& word : others) {
        if (words.size() < size && held.insert(word).second)
            words.push_back(word);
    }
    return words;
}

std::vector<std::string> printed(std::vector<std::string> words)
{
    for (std::string& word : words)
        word = ascii::upperCase(std::move(word));
    std::sort(words.begin(), words.end());
    return words;
}

void requireThemes(const Sources& sources, const CoarseWords& coarse)
{
    for (const std::string& word : sources.themes) {
        if (!sources.scowl.classes.contains(word) || coarse.contains(word) || !isPronounced(word))
            throw std::runtime_error("\"" + word + "\" among the everyday words is unknown or coarse.");
    }
}

void requireSizes(const Levels& levels)
{
    for (std::size_t level = 0; level < levels.size(); ++level) {
        const double share = static_cast<double>(levels.at(level).size()) / static_cast<double>(levelSizes.at(level));
        if (share < 0.95 || share > 1.05)
            throw std::runtime_error("Level " + std::to_string(level + 1) + " would have " +
                                     std::to_string(levels.at(level).size()) + " words in place of about " +
                                     std::to_string(levelSizes.at(level)) +
                                     ": the word lists are not SCOWL's whole ones.");
    }
}

} // namespace

Levels makeLevels(Sources sources)
{
    addVariants(sources);
    const CoarseWords coarse(sources.coarse, sources.wordNet);
    requireThemes(sources, coarse);
    const std::vector<std::string> level1 =
        filledUp(filledUp({}, sources.themes, sources.themes.size()), themeForms(sources, coarse), levelSizes[0]);
    const std::vector<std::string> level2 = filledUp(level1, commonWords(sources, coarse), levelSizes[1]);
    Levels levels{printed(level1), printed(level2), printed(wordsOfLevel3(sources))};
    requireSizes(levels);
    return levels;
}

} // namespace lexigrove::tools
