#include "tools/word_lists/levels.hpp"

#include "platform/ascii.hpp"

#include <algorithm>
#include <cmath>
#include <map>
#include <stdexcept>
#include <unordered_set>

namespace lexigrove::tools
{

namespace
{

constexpr int everydayClass = 20;    ///< up to here a word is common even if a name is spelled the same
constexpr int contractionClass = 10; ///< the same for contractions: "its", "were"
constexpr int level1Class = 35;      ///< a small dictionary
constexpr int level2Class = 40; ///< beyond it, names, brands and oaths begin to outnumber words that everybody knows
constexpr int surelyPlainClass = 60;
constexpr int completeClass = 70; ///< a large dictionary: level 3 has all of it
constexpr double shared = -2.3;   ///< a tenth, as a logarithm: what is left of a count that belongs to something else

constexpr double sharedWithNames = -1.1; ///< a third: what is left of the count of "lamb", "attic" or "ginger"

struct Ranked {
    std::string word;
    double count;
    bool forLevel1;
};

/// Two letters without a vowel are an abbreviation or the plural of a letter: "mb", "cs".
bool isWord(const std::string& word)
{
    return word.size() > 2 || word.find_first_of("aeiouy") != std::string::npos;
}

/// The words that SCOWL, the counts and good manners allow in the first two levels, most common first.
std::vector<Ranked> rankedWords(const Scowl& scowl, const WordCounts& counts, const OffensiveWords& offensive)
{
    std::vector<Ranked> ranked;
    for (const auto& [word, size] : scowl.classes) {
        const auto entry = counts.find(word);
        if (size > level2Class || entry == counts.end() || !isWord(word) || offensive.contains(word))
            continue;
        const bool everyday = size <= everydayClass;
        const bool isName = !everyday && scowl.names.contains(word);
        const bool isContraction = // "id", "em"
            size > contractionClass && (scowl.bareContractions.contains(word) || counts.contains("'" + word));
        const double ofOthers = isContraction || size > level1Class ? shared : sharedWithNames;
        const double count = entry->second + (isName || isContraction ? ofOthers : 0);
        ranked.push_back({word, count, size <= level1Class && !isName});
    }
    std::sort(ranked.begin(), ranked.end(), [](const Ranked& a, const Ranked& b) {
        return a.count != b.count ? a.count > b.count : a.word < b.word;
    });
    return ranked;
}

/// SCOWL's large classes list names and abbreviations in lower case too: "texas", "gif". A rare word that is spelled
/// like one is taken for one.
bool isPlainLevelWord(const Scowl& scowl, const std::string& word, int size)
{
    return isWord(word) &&
           (size <= surelyPlainClass || (!scowl.names.contains(word) && !scowl.abbreviations.contains(word)));
}

/// All words of the complete classes, and those of the largest class up to the length that brings the level closest to
/// its size.
std::vector<std::string> wordsOfLevel3(const Scowl& scowl)
{
    std::vector<std::string> words;
    std::map<std::size_t, std::vector<std::string>> rareByLength;
    for (const auto& [word, size] : scowl.classes) {
        if (!isPlainLevelWord(scowl, word, size))
            continue;
        (size <= completeClass ? words : rareByLength[word.size()]).push_back(word);
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

std::vector<std::string> printed(std::vector<std::string> words)
{
    for (std::string& word : words)
        word = ascii::upperCase(std::move(word));
    std::sort(words.begin(), words.end());
    return words;
}

void requireSizes(const Levels& levels)
{
    for (std::size_t level = 0; level < levels.size(); ++level) {
        const double share = static_cast<double>(levels[level].size()) / static_cast<double>(levelSizes[level]);
        if (share < 0.95 || share > 1.05)
            throw std::runtime_error("Level " + std::to_string(level + 1) + " would have " +
                                     std::to_string(levels[level].size()) + " words in place of about " +
                                     std::to_string(levelSizes[level]) +
                                     ": the word lists are not SCOWL's whole ones.");
    }
}

} // namespace

Levels makeLevels(const Scowl& scowl, const WordCounts& counts, const OffensiveWords& offensive)
{
    const std::vector<Ranked> ranked = rankedWords(scowl, counts, offensive);
    std::vector<std::string> level1;
    for (const Ranked& entry : ranked) {
        if (entry.forLevel1 && level1.size() < levelSizes[0])
            level1.push_back(entry.word);
    }
    std::vector<std::string> level2 = level1;
    const std::unordered_set<std::string> inLevel1(level1.begin(), level1.end());
    for (const Ranked& entry : ranked) {
        if (level2.size() < levelSizes[1] && !inLevel1.contains(entry.word))
            level2.push_back(entry.word);
    }
    Levels levels{printed(level1), printed(level2), printed(wordsOfLevel3(scowl))};
    requireSizes(levels);
    return levels;
}

} // namespace lexigrove::tools
