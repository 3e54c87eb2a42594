#include "tests/dictionary/dictionary_world.hpp"

#include <algorithm>
#include <numeric>
#include <stdexcept>

using namespace lexigrove;

namespace
{

LetterFrequencies frequencies(std::int64_t characters, std::initializer_list<std::pair<char, std::int64_t>> letters)
{
    LetterFrequencies made;
    made.characters = characters;
    for (const auto& [letter, count] : letters)
        made.letters[static_cast<std::size_t>(letterIndex(letter))] = count;
    return made;
}

LetterTables derived(const LetterFrequencies& made)
{
    Random random(718);
    const StandingClock clock;
    LetterTables tables;
    tables.derive(made, random, clock);
    return tables;
}

int sumOf(const LetterTables& tables)
{
    return std::accumulate(tables.letterCounts.begin(), tables.letterCounts.end(), 0);
}

} // namespace

// A slip in one of the two tables of 26 numbers: their sums and the places that the rules name.
TEST(LetterTables, StartUpPoolAndScores)
{
    const LetterTables tables;
    EXPECT_EQ(sumOf(tables), 100);
    EXPECT_EQ(tables.letterCounts[21], 6) << "six U";
    EXPECT_EQ(tables.pool[0], 0);
    EXPECT_EQ(std::string(tables.pool.begin() + 1, tables.pool.begin() + 14), "AAAAAAAAABBCC");
    EXPECT_EQ(tables.pool[100], 'Z');
    EXPECT_TRUE(std::is_sorted(tables.pool.begin(), tables.pool.end()));

    EXPECT_EQ(letterSum("ABCDEFGHIJKLMNOPQRSTUVWXYZ"), 87);
    EXPECT_EQ(letterValue('Q'), 10);
    EXPECT_EQ(letterSum("JKVWXYZ"), 8 + 5 + 4 + 4 + 8 + 4 + 10);
    EXPECT_EQ(letterSum("az@[\xC4\x80 1"), 0) << "no letter, no value, no crash";
}

// Shares rounded down leave places over; they go to random letters, also to one that does not occur.
TEST(LetterTables, PlacesLeftOverAreDrawn)
{
    LetterTables first;
    bool differs = false;
    for (std::uint64_t seed = 0; seed < 20; ++seed) {
        Random random(seed);
        const StandingClock clock;
        LetterTables tables;
        tables.derive(frequencies(200, {{'A', 65}, {'B', 65}, {'C', 65}}), random, clock); // 32 each, 96 together
        EXPECT_EQ(sumOf(tables), 100);
        EXPECT_GE(*std::min_element(tables.letterCounts.begin() + 1, tables.letterCounts.begin() + 4), 32);
        EXPECT_EQ(std::count(tables.pool.begin() + 1, tables.pool.end(), 'A'), tables.letterCounts[1]);
        differs = differs || (seed > 0 && tables.letterCounts != first.letterCounts);
        first = tables;
    }
    EXPECT_TRUE(differs) << "twenty seeds gave the same four letters";
}

// Rare letters get a place each; what is too much comes off the earliest of the largest shares alone.
TEST(LetterTables, PlacesTooManyComeOffTheEarliestLargest)
{
    LetterFrequencies made = frequencies(10'000, {{'Y', 4988}, {'Z', 4988}});
    for (char letter = 'A'; letter <= 'X'; ++letter)
        made.letters[static_cast<std::size_t>(letterIndex(letter))] = 1;
    const LetterTables tables = derived(made); // 24 + 49 + 49 = 122
    EXPECT_EQ(tables.letterCounts[25], 49 - 22);
    EXPECT_EQ(tables.letterCounts[26], 49);
    EXPECT_EQ(tables.letterCounts[1], 1);
    EXPECT_EQ(sumOf(tables), 100);
}

// Where even the largest share is too small to give, the pool has no room; the tables must not be left half changed.
TEST(LetterTables, FailuresLeaveTheTablesAlone)
{
    LetterFrequencies crowded = frequencies(100'000, {{'A', 17'200}, {'B', 17'200}, {'C', 17'200}});
    for (char letter = 'D'; letter <= 'F'; ++letter)
        crowded.letters[static_cast<std::size_t>(letterIndex(letter))] = 16'100;
    for (char letter = 'G'; letter <= 'Z'; ++letter)
        crowded.letters[static_cast<std::size_t>(letterIndex(letter))] = 5;

    Random random;
    const StandingClock clock;
    LetterTables tables;
    const LetterTables before = tables;
    EXPECT_THROW(tables.derive(crowded, random, clock), std::length_error);
    EXPECT_THROW(tables.derive({}, random, clock), std::domain_error);
    EXPECT_THROW(tables.derive(frequencies(40'000'000, {{'E', 21'474'837}}), random, clock), std::overflow_error);
    EXPECT_EQ(tables.letterCounts, before.letterCounts);
    EXPECT_EQ(tables.pool, before.pool);
}

// The counting goes through blocks of characters: none may be lost at their edges, and line ends are no characters.
TEST(LetterTables, CountsEveryCharacter)
{
    std::string text;
    LetterFrequencies expected;
    for (int i = 0; i < 1000; ++i) {
        const char letter = static_cast<char>('A' + i % 26);
        text += letter;
        text += i % 7 == 0 ? "\r\n" : i % 5 == 0 ? "a1'" : "";
        ++expected.letters[static_cast<std::size_t>(letterIndex(letter))];
        expected.characters += i % 7 != 0 && i % 5 == 0 ? 4 : 1;
    }
    EXPECT_EQ(countLetters(text).letters, expected.letters);
    EXPECT_EQ(countLetters(text).characters, expected.characters);
}
