#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace lexigrove::tools
{

enum class Part : std::size_t { Noun, Verb, Adjective, Adverb };
constexpr std::array parts{Part::Noun, Part::Verb, Part::Adjective, Part::Adverb};

/// A word as one part of speech.
struct Use {
    bool defined = false;   ///< it has a meaning that is no name
    bool concrete = false;  ///< one of its two commonest meanings is a thing to be seen or a movement of the body
    bool common = false;    ///< it was met in this use in the texts that WordNet counted
    bool offensive = false; ///< all its meanings are marked as a slur, a disparagement or an obscenity
};

/// The word that another is a plural of, or a verb's -s, -ed or -ing form, irregular ones included.
struct Base {
    std::string word;
    Part part = Part::Noun;
};

/// A dictionary of meanings. All texts consist of lower-case letters.
class WordNet
{
public:
    using Uses = std::array<Use, parts.size()>;
    using Exceptions = std::unordered_map<std::string, std::vector<std::string>>;

    const Use& use(const std::string& word, Part part) const;
    bool defines(const std::string& word) const;
    bool isOffensive(const std::string& word) const;

    /// The words that a word can be a plain inflection of: none for "house", "house" as a noun and as a verb for
    /// "houses".
    std::vector<Base> bases(const std::string& word) const;

private:
    friend class WordNetReader;

    template <typename Property>
    bool anyUse(const std::string& word, const Property& property) const;

    std::unordered_map<std::string, Uses> uses_;
    std::array<Exceptions, 2> exceptions_;        ///< by irregular plural or verb form, its bases
    std::unordered_set<std::string> strongVerbs_; ///< those with forms like "hidden" and "sung"
};

/// Reads the data base in a folder such as Debian's /usr/share/wordnet. Throws std::runtime_error if it is missing.
WordNet readWordNet(const std::string& folder);

} // namespace lexigrove::tools
