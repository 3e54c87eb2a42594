#include "tools/word_lists/ranking.hpp"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <unordered_map>

namespace lexigrove::tools
{

namespace
{

// Words are ranked by the logarithms of their counts: 0.7 more is twice as common, 2.3 ten times.
using Ranks = std::unordered_map<std::string, double>;

constexpr int everydayClass = 20;    ///< up to here a word is common even if a name is spelled the same
constexpr int contractionClass = 10; ///< the same for contractions: "its", "were"
constexpr int level1Class = 35;      ///< a small dictionary
constexpr int level2Class = 40; ///< beyond it, names, brands and oaths begin to outnumber words that everybody knows
constexpr int inflectionClass = 50;
constexpr int definedClass = 55; ///< up to here a counted word is taken if WordNet defines it: "online", "donut"

constexpr double shared = -2.3;          ///< what is left of a count that belongs to something else: a tenth
constexpr double sharedWithNames = -1.1; ///< what is left of the count of "lamb", "attic" or "ginger": a third
constexpr double lateClass = -1;         ///< a word beyond level2Class
constexpr double otherSpelling = -1;     ///< "metre", whose count is that of "meter"
constexpr double uncounted = -18;        ///< a thing that nobody mentioned: "dustpan"
constexpr double ofThemes = 6;
constexpr double ofThings = 6;
constexpr double ofMovements = 3;
constexpr double ofRareThings = 1; ///< beyond level1Class
constexpr double ofEachLetter = -0.4;
constexpr double inflectedFreely = -2.2;
constexpr double inflectedRarely = -8; ///< "husbanding": the base is hardly ever used as a verb
constexpr double longThemeForm = -0.4; ///< for each letter beyond a short word

constexpr std::size_t shortWord = 5;
constexpr std::size_t ordinaryWord = 8;
constexpr std::size_t longestOfLevel1 = 9;

bool isName(const Sources& sources, const std::string& word)
{
    const auto name = sources.scowl.names.find(word);
    return name != sources.scowl.names.end() && name->second <= commonNameClass;
}

bool isContraction(const Sources& sources, const std::string& word)
{
    return sources.scowl.bareContractions.contains(word) || sources.counts.contains("'" + word);
}

/// "whats" and "theres" are slips.
bool isBarePossessive(const Sources& sources, const std::string& word)
{
    return word.ends_with("s") && sources.counts.contains(word.substr(0, word.size() - 1) + "'s");
}

bool isListedName(const Sources& sources, const std::string& word)
{
    return sources.names.contains(word) ||
           (word.ends_with("s") && sources.names.contains(word.substr(0, word.size() - 1)));
}

/// Whether the word itself, not one that it is a form of, is for levels 1 and 2.
bool isCandidate(const Sources& sources, const std::string& word, int size)
{
    const bool confirmed = isConfirmed(sources, word);
    if (size <= level2Class)
        return confirmed ||
               ((size <= everydayClass || !isName(sources, word)) &&
                (size <= contractionClass || (!isContraction(sources, word) && !isBarePossessive(sources, word))));
    return size <= definedClass && sources.wordNet.defines(word) && sources.counts.contains(word) &&
           !isName(sources, word) && !sources.scowl.abbreviations.contains(word);
}

/// A thing with a short name is hardly ever too rare, nor is a movement.
double ofConcrete(const WordNet& wordNet, const std::string& word, int size)
{
    if (word.size() > ordinaryWord || !wordNet.bases(word).empty())
        return 0;
    if (wordNet.use(word, Part::Noun).concrete)
        return size <= level1Class ? ofThings : ofRareThings;
    return wordNet.use(word, Part::Verb).concrete && size <= level1Class ? ofMovements : 0;
}

/// The counts are American: "colour" is as well known as "color".
std::optional<double> countOfOtherSpelling(const Sources& sources, const std::string& word)
{
    constexpr std::array<std::array<std::string_view, 2>, 6> spellings{
        {{"our", "or"}, {"tre", "ter"}, {"is", "iz"}, {"ys", "yz"}, {"ll", "l"}, {"ae", "e"}}};
    for (const auto& [british, american] : spellings) {
        const std::size_t place = word.rfind(british);
        if (place == std::string::npos)
            continue;
        std::string other = word;
        const auto entry = sources.counts.find(other.replace(place, british.size(), american));
        if (entry != sources.counts.end() && sources.scowl.classes.contains(other))
            return entry->second + otherSpelling;
    }
    return {};
}

/// How common the word is, without what its letters count for in another use.
std::optional<double> ownCount(const Sources& sources, const std::string& word, int size)
{
    const auto entry = sources.counts.find(word);
    if (entry == sources.counts.end())
        return size <= level1Class ? countOfOtherSpelling(sources, word) : std::nullopt;
    double count = entry->second;
    if (size > everydayClass && isName(sources, word))
        count += size > level1Class ? shared : sharedWithNames;
    if (size > contractionClass && isContraction(sources, word)) // "id", "em"
        count += shared;
    return size > level2Class ? count + lateClass : count;
}

double ofLength(const std::string& word)
{
    return ofEachLetter * static_cast<double>(word.size());
}

/// The words that are candidates by themselves.
Ranks ranksOfWords(const Sources& sources)
{
    const std::unordered_set<std::string> themes(sources.themes.begin(), sources.themes.end());
    Ranks ranks;
    for (const auto& [word, size] : sources.scowl.classes) {
        if (!isPronounced(word) || isListedName(sources, word) || !isCandidate(sources, word, size))
            continue;
        const double concrete = ofConcrete(sources.wordNet, word, size);
        std::optional<double> count = ownCount(sources, word, size);
        if (!count && ((concrete > 0 && size <= level1Class) || themes.contains(word)))
            count = uncounted;
        if (count)
            ranks[word] = *count + std::max(concrete, themes.contains(word) ? ofThemes : 0) + ofLength(word);
    }
    return ranks;
}

/// Whether a form is as natural as "houses", not as rare as "husbanding" or "beavered".
bool isNatural(const WordNet& wordNet, const Base& base)
{
    const Use& noun = wordNet.use(base.word, Part::Noun);
    const Use& verb = wordNet.use(base.word, Part::Verb);
    return base.part == Part::Noun ? noun.common || !verb.common : verb.common || !noun.defined;
}

/// A form is known to those who know its base.
double rankOfForm(const Sources& sources, const Ranks& ranks, const std::string& word, double rank)
{
    for (const Base& base : sources.wordNet.bases(word)) {
        const auto entry = ranks.find(base.word);
        if (entry != ranks.end())
            rank =
                std::max(rank, entry->second + (isNatural(sources.wordNet, base) ? inflectedFreely : inflectedRarely));
    }
    return rank;
}

std::vector<std::string> bestFirst(const Ranks& ranks)
{
    std::vector<std::string> words;
    for (const auto& [word, rank] : ranks)
        words.push_back(word);
    std::sort(words.begin(), words.end(), [&](const std::string& a, const std::string& b) {
        return ranks.at(a) != ranks.at(b) ? ranks.at(a) > ranks.at(b) : a < b;
    });
    return words;
}

} // namespace

bool isPronounced(const std::string& word)
{
    static const std::unordered_set<std::string> sounds{"brr", "brrr", "crwth", "cwm", "hmm", "nth", "pfft",   "phpht",
                                                        "pht", "psst", "pwn",   "shh", "ssh", "tsk", "tsktsk", "zzz"};
    const std::string single = word.ends_with("s") ? word.substr(0, word.size() - 1) : word;
    return word.find_first_of("aeiouy") != std::string::npos || sounds.contains(word) || sounds.contains(single);
}

bool isConfirmed(const Sources& sources, const std::string& word)
{
    return sources.wordNet.defines(word) || !sources.wordNet.bases(word).empty();
}

std::vector<std::string> themeForms(const Sources& sources, const CoarseWords& coarse)
{
    const std::unordered_set<std::string> themes(sources.themes.begin(), sources.themes.end());
    Ranks ranks;
    for (const auto& [word, size] : sources.scowl.classes) {
        const auto count = sources.counts.find(word);
        if (size > level1Class || word.size() > longestOfLevel1 || count == sources.counts.end() ||
            coarse.contains(word))
            continue;
        const std::vector<Base> bases = sources.wordNet.bases(word);
        if (std::any_of(bases.begin(), bases.end(), [&](const Base& base) {
                return themes.contains(base.word) && isNatural(sources.wordNet, base);
            }))
            ranks[word] = count->second + longThemeForm * static_cast<double>(std::max(word.size(), shortWord));
    }
    return bestFirst(ranks);
}

std::vector<std::string> commonWords(const Sources& sources, const CoarseWords& coarse)
{
    const Ranks ranksAlone = ranksOfWords(sources);
    Ranks ranks;
    for (const auto& [word, size] : sources.scowl.classes) {
        constexpr double unranked = -100;
        const auto alone = ranksAlone.find(word);
        double rank = alone != ranksAlone.end() ? alone->second : unranked;
        if (size <= inflectionClass || sources.scowl.variants.contains(word))
            rank = rankOfForm(sources, ranksAlone, word, rank);
        if (rank > unranked && !coarse.contains(word))
            ranks[word] = rank;
    }
    return bestFirst(ranks);
}

} // namespace lexigrove::tools
