#include "tools/word_lists/offensive_words.hpp"

#include <algorithm>
#include <array>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <vector>

namespace lexigrove::tools
{

namespace
{

constexpr std::array<const char*, 4> partsOfSpeech{"noun", "verb", "adj", "adv"};
constexpr std::array<const char*, 3> offensiveUses{"ethnic_slur", "disparagement", "obscenity"};

using Words = OffensiveWords::Words;

/// A meaning and the words that have it: a line of a data file.
struct Meaning {
    std::string offset; ///< the meaning's name within its part of speech
    std::vector<std::string> words;
    std::vector<std::pair<std::string, std::size_t>>
        uses; ///< the usage it belongs to, and for which of the words (0: all)
};

/// Reads "offset file type count (word id)... count (pointer offset part source-target)... | gloss"; counts of words
/// and the source-target are hexadecimal.
Meaning meaningFrom(const std::string& line)
{
    std::istringstream fields(line);
    Meaning meaning;
    std::string skipped;
    std::size_t words = 0;
    fields >> meaning.offset >> skipped >> skipped >> std::hex >> words >> std::dec;
    for (std::string word; words > 0 && fields >> word >> skipped; --words)
        meaning.words.push_back(word.substr(0, word.find('(')));
    std::size_t pointers = 0;
    fields >> pointers;
    std::string pointer;
    std::string offset;
    std::string ends;
    for (; pointers > 0 && fields >> pointer >> offset >> skipped >> ends; --pointers) {
        if (pointer == ";u")
            meaning.uses.emplace_back(offset, std::stoul(ends.substr(0, 2), nullptr, 16));
    }
    return meaning;
}

std::ifstream openData(const std::string& folder, const std::string& name)
{
    std::ifstream file(folder + "/" + name);
    if (!file)
        throw std::runtime_error("WordNet's file " + folder + "/" + name +
                                 " cannot be read. Install Debian's package wordnet-base, or name another copy with "
                                 "-DLEXIGROVE_WORDNET_DIR.");
    return file;
}

bool isComment(const std::string& line)
{
    return line.starts_with("  ");
}

/// The offsets of the noun meanings that denote an offensive usage.
Words offensiveUseOffsets(const std::string& folder)
{
    Words offsets;
    std::ifstream file = openData(folder, "data.noun");
    for (std::string line; std::getline(file, line);) {
        if (isComment(line))
            continue;
        const Meaning meaning = meaningFrom(line);
        if (std::find_first_of(meaning.words.begin(), meaning.words.end(), offensiveUses.begin(),
                               offensiveUses.end()) != meaning.words.end())
            offsets.insert(meaning.offset);
    }
    return offsets;
}

/// The key of one meaning of one word.
std::string meaningOf(const std::string& word, const std::string& offset)
{
    std::string key = word;
    key += ' ';
    key += offset;
    return key;
}

/// The keys of the meanings that are offensive.
Words offensiveMeanings(const std::string& folder, const std::string& part, const Words& uses)
{
    Words found;
    std::ifstream file = openData(folder, "data." + part);
    for (std::string line; std::getline(file, line);) {
        if (isComment(line) || line.find(" ;u ") == std::string::npos)
            continue;
        const Meaning meaning = meaningFrom(line);
        for (const auto& [use, number] : meaning.uses) {
            if (!uses.contains(use))
                continue;
            for (std::size_t word = 0; word < meaning.words.size(); ++word) {
                if (number == 0 || number == word + 1)
                    found.insert(meaningOf(meaning.words[word], meaning.offset));
            }
        }
    }
    return found;
}

/// Reads an index of words with lines like "word part meanings pointers (pointer)... meanings tagged offset...". Calls
/// `each` with the word and the offset of its first meaning, the most common one.
template <typename Each>
void forEachWord(const std::string& folder, const std::string& part, const Each& each)
{
    std::ifstream file = openData(folder, "index." + part);
    for (std::string line; std::getline(file, line);) {
        if (isComment(line))
            continue;
        std::istringstream fields(line);
        std::string word;
        std::string skipped;
        std::size_t pointers = 0;
        fields >> word >> skipped >> skipped >> pointers;
        for (std::size_t field = 0; field < pointers + 2; ++field)
            fields >> skipped;
        std::string first;
        fields >> first;
        each(word, first);
    }
}

bool hasEnding(std::string_view word, std::string_view ending)
{
    return word.size() > ending.size() + 2 && word.ends_with(ending);
}

} // namespace

bool OffensiveWords::isPlural(std::string_view word) const
{
    return (hasEnding(word, "s") && words_.contains(std::string(word.substr(0, word.size() - 1)))) ||
           ((hasEnding(word, "shes") || hasEnding(word, "ches") || hasEnding(word, "sses")) &&
            words_.contains(std::string(word.substr(0, word.size() - 2))));
}

bool OffensiveWords::isVerbForm(std::string_view word) const
{
    for (const std::string_view ending : {"ed", "er", "ers", "ing", "ings"}) {
        if (!hasEnding(word, ending))
            continue;
        const std::string stem(word.substr(0, word.size() - ending.size()));
        const bool doubled = stem[stem.size() - 1] == stem[stem.size() - 2];
        if (verbs_.contains(stem) || verbs_.contains(stem + "e") ||
            (doubled && verbs_.contains(stem.substr(0, stem.size() - 1))))
            return true;
    }
    return false;
}

bool OffensiveWords::contains(const std::string& word) const
{
    return words_.contains(word) || isPlural(word) || isVerbForm(word);
}

OffensiveWords readOffensiveWords(const std::string& folder)
{
    const Words uses = offensiveUseOffsets(folder);
    Words words;
    for (const char* part : partsOfSpeech) {
        const Words offensive = offensiveMeanings(folder, part, uses);
        forEachWord(folder, part, [&](const std::string& word, const std::string& meaning) {
            if (offensive.contains(meaningOf(word, meaning)))
                words.insert(word);
        });
    }
    Words verbs;
    forEachWord(folder, "verb", [&](const std::string& word, const std::string&) {
        if (words.contains(word))
            verbs.insert(word);
    });
    return {std::move(words), std::move(verbs)};
}

} // namespace lexigrove::tools
