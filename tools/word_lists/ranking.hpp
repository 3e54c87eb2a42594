#pragma once

#include "tools/word_lists/levels.hpp"

#include <string>
#include <vector>

namespace lexigrove::tools
{

/// SCOWL's class up to which a name is common: a rarer word that is spelled like one is taken for it.
constexpr int commonNameClass = 50;

/// Whether the word has a vowel or is one of the few that go without: "dkl" is an abbreviation, "cs" the plural of a
/// letter, but "psst" is a word.
bool isPronounced(const std::string& word);

/// Whether WordNet defines the word, or one that it is a plain inflection of.
bool isConfirmed(const Sources& sources, const std::string& word);

/// The plain inflections of the themes' words, common and short ones first.
std::vector<std::string> themeForms(const Sources& sources, const CoarseWords& coarse);

/// The words that everybody may know, the best known first: what is often said and written, what stands for a thing,
/// and the inflections of these.
std::vector<std::string> commonWords(const Sources& sources, const CoarseWords& coarse);

} // namespace lexigrove::tools
