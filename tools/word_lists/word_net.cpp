#include "tools/word_lists/word_net.hpp"

#include "tools/word_lists/scowl.hpp"

#include <algorithm>
#include <fstream>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string_view>

namespace lexigrove::tools
{

/// A meaning and the words that have it: a line of a data file.
struct Meaning {
    int file = 0; ///< the lexicographer file that it comes from
    std::vector<std::string> words;
    std::vector<std::pair<std::string, std::size_t>>
        usages; ///< the usage it belongs to, and for which of the words (0: all)
};
using Meanings = std::unordered_map<std::string, Meaning>; ///< by the offset that names it within its part of speech

namespace
{

constexpr std::array<const char*, parts.size()> fileNames{"noun", "verb", "adj", "adv"};
constexpr std::array<std::string_view, 3> offensiveUses{"ethnic_slur", "disparagement", "obscenity"};

/// The lexicographer files of animals, artefacts, bodies, food, objects and plants; of the body's verbs, eating,
/// touching, moving, sensing and the weather.
constexpr std::array concreteFiles{5, 6, 8, 13, 17, 20, 29, 34, 35, 38, 39, 43};
constexpr std::size_t commonMeanings = 2;

bool isComment(const std::string& line)
{
    return line.starts_with("  ");
}

/// Reads "offset file type count (word id)... count (pointer offset part source-target)... | gloss"; counts of words
/// and the source-target are hexadecimal.
std::pair<std::string, Meaning> meaningFrom(const std::string& line)
{
    std::istringstream fields(line);
    std::string name;
    Meaning meaning;
    std::string skipped;
    std::size_t words = 0;
    fields >> name >> meaning.file >> skipped >> std::hex >> words >> std::dec;
    for (std::string word; words > 0 && fields >> word >> skipped; --words)
        meaning.words.push_back(word.substr(0, word.find('(')));
    if (line.find(" ;u ") == std::string::npos)
        return {name, meaning};
    std::size_t pointers = 0;
    fields >> pointers;
    std::string pointer;
    std::string offset;
    std::string ends;
    for (; pointers > 0 && fields >> pointer >> offset >> skipped >> ends; --pointers) {
        if (pointer == ";u")
            meaning.usages.emplace_back(offset, std::stoul(ends.substr(0, 2), nullptr, 16));
    }
    return {name, meaning};
}

struct Ending {
    std::string_view inflected;
    std::string_view base;
};
constexpr std::array nounEndings{Ending{"s", ""},      Ending{"ses", "s"},   Ending{"xes", "x"}, Ending{"zes", "z"},
                                 Ending{"ches", "ch"}, Ending{"shes", "sh"}, Ending{"ies", "y"}};
constexpr std::array verbEndings{Ending{"s", ""},   Ending{"ies", "y"}, Ending{"es", "e"},  Ending{"es", ""},
                                 Ending{"ed", "e"}, Ending{"ed", ""},   Ending{"ing", "e"}, Ending{"ing", ""}};
constexpr std::size_t shortestBase = 3; // "bed" is no form of "be"

template <typename Endings>
std::vector<std::string> regularBases(const std::string& word, const Endings& endings)
{
    std::vector<std::string> found;
    for (const Ending& ending : endings) {
        if (!word.ends_with(ending.inflected))
            continue;
        std::string base = word.substr(0, word.size() - ending.inflected.size());
        base += ending.base;
        if (base.size() >= shortestBase)
            found.push_back(base);
    }
    return found;
}

} // namespace

/// Puts the data base together from its files.
class WordNetReader
{
public:
    explicit WordNetReader(const std::string& folder) : folder_(folder)
    {
        for (const Part part : parts)
            readMeanings(part);
        findOffensiveUsages();
        for (const Part part : parts)
            readWords(part);
        readExceptions(Part::Noun);
        readExceptions(Part::Verb);
    }

    WordNet result() && { return std::move(wordNet_); }

private:
    std::ifstream open(const std::string& name) const
    {
        std::ifstream file(folder_ + "/" + name);
        if (!file)
            throw std::runtime_error("WordNet's file " + folder_ + "/" + name +
                                     " cannot be read. Install Debian's package wordnet-base, or see "
                                     "LEXIGROVE_WORD_SOURCES.");
        return file;
    }

    static std::string nameOf(Part part) { return fileNames.at(static_cast<std::size_t>(part)); }
    Meanings& meanings(Part part) { return meanings_.at(static_cast<std::size_t>(part)); }

    void readMeanings(Part part)
    {
        std::ifstream file = open("data." + nameOf(part));
        for (std::string line; std::getline(file, line);) {
            if (!isComment(line))
                meanings(part).insert(meaningFrom(line));
        }
    }

    /// The noun meanings that denote an offensive usage.
    void findOffensiveUsages()
    {
        for (const auto& [offset, meaning] : meanings(Part::Noun)) {
            if (std::find_first_of(meaning.words.begin(), meaning.words.end(), offensiveUses.begin(),
                                   offensiveUses.end()) != meaning.words.end())
                offensiveUsages_.insert(offset);
        }
    }

    bool isOffensive(const std::string& word, const Meaning& meaning) const
    {
        return std::any_of(meaning.usages.begin(), meaning.usages.end(), [&](const auto& usage) {
            const auto& [offset, number] = usage;
            return offensiveUsages_.contains(offset) && (number == 0 || meaning.words.at(number - 1) == word);
        });
    }

    Use useFrom(const std::string& word, const std::vector<const Meaning*>& meant) const
    {
        Use use;
        use.offensive = !meant.empty();
        for (std::size_t place = 0; place < meant.size(); ++place) {
            const Meaning& meaning = *meant[place];
            const bool isName = std::find(meaning.words.begin(), meaning.words.end(), word) == meaning.words.end();
            const bool isConcrete =
                std::find(concreteFiles.begin(), concreteFiles.end(), meaning.file) != concreteFiles.end();
            use.defined = use.defined || !isName;
            use.concrete = use.concrete || (!isName && isConcrete && place < commonMeanings);
            use.offensive = use.offensive && isOffensive(word, meaning);
        }
        return use;
    }

    /// Reads an index with lines like "word part meanings pointers (pointer)... meanings counted offset...", the
    /// commonest meaning first.
    void readWords(Part part)
    {
        std::ifstream file = open("index." + nameOf(part));
        for (std::string line; std::getline(file, line);) {
            std::istringstream fields(line);
            std::string word;
            std::string skipped;
            std::size_t pointers = 0;
            if (!(fields >> word >> skipped >> skipped >> pointers) || !isPlainWord(word))
                continue;
            for (; pointers > 0; --pointers)
                fields >> skipped;
            std::size_t counted = 0;
            fields >> skipped >> counted;
            std::vector<const Meaning*> meant;
            for (std::string offset; fields >> offset;)
                meant.push_back(&meanings(part).at(offset));
            Use& use = wordNet_.uses_[word].at(static_cast<std::size_t>(part));
            use = useFrom(word, meant);
            use.common = counted > 0;
        }
    }

    void readExceptions(Part part)
    {
        std::ifstream file = open(nameOf(part) + ".exc");
        for (std::string line; std::getline(file, line);) {
            std::istringstream fields(line);
            std::string inflected;
            fields >> inflected;
            for (std::string base; fields >> base;) {
                wordNet_.exceptions_.at(static_cast<std::size_t>(part))[inflected].push_back(base);
                if (part == Part::Verb && !inflected.ends_with("d") && !inflected.ends_with("ing"))
                    wordNet_.strongVerbs_.insert(base);
            }
        }
    }

    std::string folder_;
    std::array<Meanings, parts.size()> meanings_;
    std::set<std::string> offensiveUsages_;
    WordNet wordNet_;
};

const Use& WordNet::use(const std::string& word, Part part) const
{
    static const Use none;
    const auto found = uses_.find(word);
    return found == uses_.end() ? none : found->second.at(static_cast<std::size_t>(part));
}

template <typename Property>
bool WordNet::anyUse(const std::string& word, const Property& property) const
{
    return std::any_of(parts.begin(), parts.end(), [&](Part part) { return use(word, part).*property; });
}

bool WordNet::defines(const std::string& word) const
{
    return anyUse(word, &Use::defined);
}

bool WordNet::isOffensive(const std::string& word) const
{
    return anyUse(word, &Use::offensive);
}

std::vector<Base> WordNet::bases(const std::string& word) const
{
    std::vector<Base> found;
    const auto collect = [&](Part part, const auto& endings) {
        const Exceptions& exceptions = exceptions_.at(static_cast<std::size_t>(part));
        const auto irregular = exceptions.find(word);
        for (const std::string& base :
             irregular != exceptions.end() ? irregular->second : regularBases(word, endings)) {
            const bool isSlip = part == Part::Verb && word.ends_with("ed") && irregular == exceptions.end() &&
                                strongVerbs_.contains(base); // "hided"
            if (base != word && !isSlip && use(base, part).defined)
                found.push_back({base, part});
        }
    };
    collect(Part::Noun, nounEndings);
    collect(Part::Verb, verbEndings);
    return found;
}

WordNet readWordNet(const std::string& folder)
{
    return WordNetReader(folder).result();
}

} // namespace lexigrove::tools
