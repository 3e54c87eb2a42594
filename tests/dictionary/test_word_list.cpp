#include "tests/dictionary/dictionary_world.hpp"

#include <cmath>
#include <gtest/gtest.h>
#include <rapidcheck.h>

using namespace lexigrove;

namespace
{

/// The search, step by step, over plain texts.
int stepByStep(const std::vector<std::string>& entries, int count, const std::string& word)
{
    int low = 0;
    int high = count;
    for (;;) {
        const int middle = static_cast<int>(std::nearbyint((low + high) / 2.0)); // a half goes to the even number
        const std::string& entry = entries.at(static_cast<std::size_t>(middle));
        if (word == entry)
            return middle;
        if (entry < word)
            low = middle + 1;
        else
            high = middle - 1;
        if (low > high)
            return -1;
    }
}

} // namespace

// In an unsorted user dictionary, which words are found depends on each middle; in a sorted one, a signed comparison
// would misplace letters above 127.
TEST(WordList, FindsExactlyWhatTheStepsFind)
{
    const auto word = rc::gen::container<std::string>(rc::gen::element('A', 'B', 'C', 'a', '\xC4'));
    EXPECT_TRUE(rc::check([&](bool sorted) {
        auto words = *rc::gen::container<std::vector<std::string>>(word);
        if (sorted)
            std::sort(words.begin(), words.end());
        const WordList list = WordList::of(std::vector<std::string_view>(words.begin(), words.end()));
        std::vector<std::string> entries = words;
        entries.insert(entries.begin(), "");
        words.push_back(*word);
        for (const std::string& sought : words)
            RC_ASSERT(list.findWord(sought) == stepByStep(entries, list.count(), sought));
    }));
    EXPECT_EQ(WordList().findWord("A"), -1);
    EXPECT_EQ(WordList().findWord(""), 0);
}

// A word with a stray carriage return, or an empty one between CR and LF, is never found in play.
TEST(WordList, TakesLinesWithAnyLineEnds)
{
    EXPECT_TRUE(rc::check([] {
        const auto text = *rc::gen::container<std::string>(rc::gen::element('A', 'B', '\r', '\n'));
        std::vector<std::string> expected;
        for (const std::string_view line : splitLines(text))
            expected.emplace_back(line);
        RC_ASSERT(entriesOf(WordList::ofLines(text)) == expected);
    }));
    const std::vector<std::string> words = countedWords(20'000); // longer than the blocks that are counted at once
    for (const char* end : {"\r\n", "\n", "\r"}) {
        std::string text;
        for (const std::string& word : words)
            text += word + end;
        const WordList list = WordList::ofLines(text);
        ASSERT_EQ(entriesOf(list), words);
        for (std::size_t i = 0; i < words.size(); ++i)
            ASSERT_EQ(list.findWord(words[i]), static_cast<int>(i) + 1);
        text.resize(text.size() - std::string(end).size());
        EXPECT_EQ(entriesOf(WordList::ofLines(text)), words) << "the last line has no end";
    }
}

TEST(WordList, HoldsNoMoreThanItsCapacity)
{
    std::string text;
    for (int i = 0; i < WordList::capacity; ++i)
        text += "A\n";
    EXPECT_EQ(WordList::ofLines(text).count(), 250'000);
    EXPECT_THROW((void)WordList::ofLines(text + "A"), std::length_error);
    EXPECT_EQ(WordList().entry(250'000), "");
    EXPECT_THROW((void)WordList().entry(250'001), std::out_of_range);
    EXPECT_THROW((void)WordList().entry(-1), std::out_of_range);
}

// Overwriting reads from the list that it changes, and a list shown elsewhere must not change under its reader.
TEST(WordList, OverwritesOnlyTheFirstEntries)
{
    WordList list = WordList::ofLines("A\r\nB\r\nC\r\nD\r\n");
    const WordList shown = list;
    list.overwrite(std::vector{list.entry(3), list.entry(1)});
    EXPECT_EQ(entriesOf(list), (std::vector<std::string>{"C", "A", "C", "D"}));
    list.setCount(3);
    EXPECT_EQ(list.entry(4), "D") << "beyond the count";
    EXPECT_EQ(entriesOf(shown), (std::vector<std::string>{"A", "B", "C", "D"}));
}
