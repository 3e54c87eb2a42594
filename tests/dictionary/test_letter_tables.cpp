#include "dictionary/letter_tables.hpp"
#include "tests/support/quiet_ports.hpp"

#include <algorithm>
#include <gtest/gtest.h>
#include <numeric>
#include <rapidcheck.h>
#include <stdexcept>

using namespace lexigrove;

namespace
{

int sumOf(const std::array<int, 27>& counts)
{
    return std::accumulate(counts.begin(), counts.end(), 0);
}

/// Each letter as often as it has places: "AAAABB".
std::string poolOf(const std::array<int, 27>& counts)
{
    std::string pool;
    for (std::size_t letter = 1; letter <= 26; ++letter)
        pool += std::string(static_cast<std::size_t>(counts[letter]), static_cast<char>('A' + letter - 1));
    return pool;
}

} // namespace

// Shares are rounded down, and rare letters get a place each. Places left over go to random letters; excess places are
// taken only from the first of the largest shares, and if even that is too small the tables do not change.
TEST(LetterTables, SharesFillThePool)
{
    const StillClock clock;
    int thrown = 0;
    const auto check = [&](const LetterFrequencies& frequencies) {
        std::array<int, 27> shares{};
        for (std::size_t letter = 1; letter <= 26; ++letter) {
            const std::int64_t count = frequencies.letters[letter];
            shares[letter] = static_cast<int>(std::max<std::int64_t>(count * 100 / frequencies.characters, count > 0));
        }
        const auto largest = std::max_element(shares.begin() + 1, shares.end()) - shares.begin();
        const int over = sumOf(shares) - 100;
        Random random(718);
        LetterTables tables;
        try {
            tables.derive(frequencies, random, clock);
        } catch (const std::length_error&) {
            ++thrown;
            RC_ASSERT(shares.at(static_cast<std::size_t>(largest)) < over);
            RC_ASSERT(tables.letterCounts == LetterTables().letterCounts && tables.pool == LetterTables().pool);
            return;
        }
        RC_ASSERT(sumOf(tables.letterCounts) == 100);
        RC_ASSERT(std::string(tables.pool.begin() + 1, tables.pool.end()) == poolOf(tables.letterCounts));
        if (over > 0) {
            shares.at(static_cast<std::size_t>(largest)) -= over;
            RC_ASSERT(tables.letterCounts == shares);
        }
        for (std::size_t letter = 1; letter <= 26; ++letter)
            RC_ASSERT(tables.letterCounts[letter] >= shares[letter]);
    };
    EXPECT_TRUE(rc::check([&] {
        LetterFrequencies frequencies;
        const int rare = *rc::gen::inRange(0, 26); // this many letters occur once or twice, the others often
        for (std::size_t letter = 1; letter <= 26; ++letter)
            frequencies.letters[letter] =
                *rc::gen::inRange<std::int64_t>(0, static_cast<int>(letter) > rare ? 9000 : 3);
        frequencies.characters =
            std::accumulate(frequencies.letters.begin(), frequencies.letters.end(), std::int64_t{1});
        check(frequencies);
    }));
    LetterFrequencies crowded{{}, 100'000};
    for (std::size_t letter = 1; letter <= 26; ++letter)
        crowded.letters[letter] = letter <= 3 ? 17'200 : letter <= 6 ? 16'100 : 5;
    check(crowded);
    EXPECT_EQ(thrown, 1);

    const LetterFrequencies even{{0, 65, 65, 65}, 200}; // 32 each, 4 are drawn
    std::set<std::array<int, 27>> drawn;
    for (std::uint64_t seed = 0; seed < 20; ++seed) {
        Random random(seed);
        LetterTables tables;
        tables.derive(even, random, clock);
        drawn.insert(tables.letterCounts);
    }
    EXPECT_GT(drawn.size(), 5U);
    Random random;
    LetterTables tables;
    EXPECT_THROW(tables.derive({}, random, clock), std::domain_error);
    EXPECT_THROW(tables.derive({{0, 21'474'837}, 40'000'000}, random, clock), std::overflow_error);
}

TEST(LetterTables, Values)
{
    EXPECT_EQ(letterSum("ABCDEFGHIJKLMNOPQRSTUVWXYZ"), 87);
    EXPECT_EQ(letterSum("JKVWXYZ"), 8 + 5 + 4 + 4 + 8 + 4 + 10);
    EXPECT_EQ(letterSum("az@[\xC4\x80 1"), 0) << "no letter, no value, no crash";
}

// The counting goes through blocks of characters: none may be lost at their edges, and line ends are no characters.
TEST(LetterTables, CountsEveryCharacter)
{
    EXPECT_TRUE(rc::check([] {
        const auto text = *rc::gen::container<std::string>(rc::gen::element('A', 'B', 'Z', 'a', '@', '[', '\r', '\n'));
        const LetterFrequencies counted = countLetters(text);
        for (const char letter : {'A', 'B', 'Y', 'Z'})
            RC_ASSERT(counted.letters[static_cast<std::size_t>(letter - 'A' + 1)] ==
                      std::count(text.begin(), text.end(), letter));
        RC_ASSERT(counted.letters[0] == 0);
        RC_ASSERT(counted.characters == std::count_if(text.begin(), text.end(), [](char c) { return c >= ' '; }));
    }));
}
