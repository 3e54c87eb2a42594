#include "platform/ascii.hpp"
#include "platform/text_file.hpp"
#include "tests/support/temporary_folder.hpp"
#include "tools/word_lists/levels.hpp"
#include "tools/word_lists/word_file.hpp"

#include <algorithm>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lexigrove::tools
{
namespace
{

using testing::HasSubstr;
using Words = std::vector<std::string>;

Words built(int level)
{
    return readLines(GAME_FILES "L" + std::to_string(level) + "Ascii.txt");
}

bool holds(const Words& words, const std::string& word)
{
    return std::binary_search(words.begin(), words.end(), word);
}

std::string errorOf(const std::function<void()>& action)
{
    try {
        action();
    } catch (const std::runtime_error& error) {
        return error.what();
    }
    return "none";
}

class WordLists : public testing::Test
{
protected:
    Words one = built(1);
    Words two = built(2);
    Words three = built(3);
};

// Guards against lists that the game reads without complaint but finds no words in: its lookup compares bytes.
TEST_F(WordLists, AreSortedPlainAndOfTheirSizes)
{
    for (int level = 1; level <= 3; ++level) {
        const Words words = built(level);
        const double size = static_cast<double>(levelSizes.at(static_cast<std::size_t>(level - 1)));
        EXPECT_NEAR(static_cast<double>(words.size()), size, 0.05 * size);
        std::string expected;
        for (const std::string& word : words) {
            ASSERT_TRUE(word.size() >= 2 && word.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ") == std::string::npos)
                << word;
            expected += word + "\r\n";
        }
        EXPECT_TRUE(readFile(GAME_FILES "L" + std::to_string(level) + "Ascii.txt") == expected)
            << "every line, the last one too, ends in CR LF";
        EXPECT_EQ(std::adjacent_find(words.begin(), words.end(), std::greater_equal<>()), words.end());
    }
    EXPECT_TRUE(std::includes(two.begin(), two.end(), one.begin(), one.end()));
    EXPECT_TRUE(std::includes(three.begin(), three.end(), two.begin(), two.end()));
}

// Guards against counts that belong to other words (being one record off is enough), lists cut by length, and names,
// abbreviations, possessives and slurs that slip in with the counts.
TEST_F(WordLists, HoldTheCommonestWordsAndWordsOnly)
{
    for (const char* word : {"AS", "THE", "HOUSE", "WATER", "GAME", "FRIEND", "COFFEE", "TOMORROW", "ZEBRA", "EGG"})
        EXPECT_TRUE(holds(one, word)) << word;
    for (const char* word : {"UNFORTUNATELY", "GLACIER", "WHISPERED", "DIKE", "OTTERS"})
        EXPECT_TRUE(holds(two, word) && !holds(one, word)) << word;
    for (const char* word : {"BUTCHER", "SPICES", "SPIKED", "BOY", "QUEEN"})
        EXPECT_TRUE(holds(two, word)) << word;
    for (const char* word : {"CWM", "ZYMURGY", "QUOIN", "AXOLOTL", "SYZYGY"})
        EXPECT_TRUE(holds(three, word) && !holds(two, word)) << word;
    for (const char* word :
         {"LONDON", "OBAMA", "MICHAEL", "TV", "USA", "MB", "CS", "LOL", "DONT", "DOGS'", "DIDN", "GOOGLE", "CSC"})
        EXPECT_FALSE(holds(three, word)) << word;
    for (const char* word : {"JOHN", "MARIA", "WHATS", "HIDED"})
        EXPECT_FALSE(holds(two, word)) << word;
}

// Guards families: the computer and the hints show words unasked.
TEST_F(WordLists, NoCoarseWordIsShownUnasked)
{
    const Words coarse = readOwnWords(OWN_WORDS "coarse.txt");
    ASSERT_GT(coarse.size(), 100U);
    for (const std::string& word : coarse) {
        const bool ofOther = holds(two, ascii::upperCase(word + "e")); // "spiced" and "spiked" are others' forms
        for (const char* ending : {"", "s", "ed", "ing"})
            EXPECT_FALSE(!ofOther && holds(two, ascii::upperCase(word + ending))) << word + ending;
    }
}

// Guards against breaking a licence by omitting its notice.
TEST_F(WordLists, TheNoticesOfTheirSourcesAreShippedWhole)
{
    const std::string notices = readFile(GAME_FILES "Words-Notices.txt");
    for (const char* sentence : {"Copyright 2000-2011 by Kevin Atkinson", "BY CARNEGIE MELLON UNIVERSITY ``AS IS\'\'",
                                 "WordNet 3.0 Copyright 2006 by Princeton University"})
        EXPECT_NE(notices.find(sentence), std::string::npos) << sentence;
}

// Guards against an obscure failure, or silently wrong lists, if a source is missing or damaged.
TEST_F(WordLists, MissingOrDamagedSourcesAreNamed)
{
    const TemporaryFolder empty;
    const std::string folder = empty.path();
    EXPECT_THAT(errorOf([&] { readScowl(folder); }),
                testing::AllOf(HasSubstr("scowl"), HasSubstr("LEXIGROVE_WORD_SOURCES")));
    EXPECT_THAT(errorOf([&] { readWordNet(folder); }), HasSubstr("wordnet-base"));
    EXPECT_THAT(errorOf([&] { readWordCounts(folder + "/none"); }), HasSubstr("pocketsphinx-en-us"));

    const std::string counts = readFile(COUNTS_FILE);
    const std::string damaged = folder + "/counts";
    for (const std::size_t length : {std::size_t{0}, std::size_t{20}, std::size_t{900'000}, counts.size() - 1}) {
        replaceFile(damaged, counts.substr(0, length));
        EXPECT_THAT(errorOf([&] { readWordCounts(damaged); }), HasSubstr("not a language model")) << length;
    }
    Sources few;
    few.scowl.classes = {{"one", 10}, {"two", 10}};
    few.counts = {{"one", -3.0}};
    EXPECT_THAT(errorOf([&] { makeLevels(few); }), HasSubstr("Level 1 would have 0 words"));
    few.themes = {"hous"};
    EXPECT_THAT(errorOf([&] { makeLevels(few); }), HasSubstr("\"hous\""));
}

} // namespace
} // namespace lexigrove::tools
