#include "opponent/board_search.hpp"
#include "plain_search.hpp"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lexigrove
{
namespace
{

using test::PlainSearch;
using test::randomBoard;
using testing::ElementsAre;

WordList listOf(const std::vector<std::string>& words)
{
    const std::vector<std::string_view> views(words.begin(), words.end());
    return WordList::of(views);
}

std::vector<std::string> itemsOf(const CandidateList& candidates)
{
    std::vector<std::string> items;
    for (int position = 1; position <= candidates.count(); ++position)
        items.push_back(candidates.item(position));
    return items;
}

/// Words that the board nearly spells, along walks over touching tiles that may come back to where they have been: many
/// fail at their last letters, come twice, or lead to others.
WordList nearlyOnBoard(std::mt19937& random, const SearchBoard& board, bool sorted, bool odd)
{
    std::vector<std::string> words;
    for (int i = 0; i < 250; ++i) {
        std::string word;
        std::size_t tile = random() % 64 + 1;
        for (auto length = random() % 13; length > 0 && board.letters[tile] != 0; --length) {
            word += board.letters[tile];
            const NeighbourList& next = board.neighbours[tile];
            tile = next.count == 0 ? 0 : next.tiles[random() % next.count];
        }
        words.push_back(word + (random() % 4 == 0 ? "AETZ"[random() % 4] : 'S'));
        for (auto shorter = random() % 4 == 0 ? word.size() : 1; shorter > 0; --shorter)
            words.push_back(word.substr(0, shorter));
        if (odd) {
            words.back() += "'a9 \xE9\x9C\x7F\0"[random() % 8];
            words.emplace_back(64 + random() % 3, "AE"[random() % 2]);
        }
    }
    if (sorted)
        std::sort(words.begin(), words.end());
    return listOf(words);
}

/// Guards against any difference from the plain reading: order, paths, positions, words lost to the digit rule or to
/// the sharing of prefixes, words that come twice. One search serves all boards and lists, so that nothing of one sweep
/// may reach the next.
TEST(BoardSearch, AgreesWithPlainReading)
{
    BoardSearch search;
    int found = 0;
    for (unsigned seed = 1; seed <= 200; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        std::mt19937 random(seed);
        const bool odd = seed % 5 == 0;
        const char* const letters = odd ? "ABCDE'9 aZ\xC9\x8C\xE9\x7F\x80\x81" : "AEISTRNLOD";
        const SearchBoard board = randomBoard(random, seed % 4 < 2, letters, seed % 3 == 0 ? 0 : seed % 9);
        const WordList words = nearlyOnBoard(random, board, seed % 2 == 0, odd);

        PlainSearch plain(board);
        plain.sweep(words);
        const CandidateList& candidates = search.sweep(board, words);
        ASSERT_EQ(itemsOf(candidates), plain.found);
        ASSERT_EQ(candidates.bestScorePosition(), plain.bestScorePosition);
        ASSERT_EQ(candidates.bestLengthPosition(), plain.bestLengthPosition);
        found += candidates.count();

        for (int i = 1; i <= words.count(); i += 7) {
            SCOPED_TRACE(std::string(words.entry(i)));
            const int matched = plain.traceWord(words.entry(i));
            const TracedWord traced = search.traceWord(board, words.entry(i));
            ASSERT_EQ(traced.matchedLength, matched);
            ASSERT_EQ(traced.items, plain.traced);
        }
    }
    EXPECT_GT(found, 18'000); // otherwise the boards and lists say nothing
}

/// Guards the digit text rule, which the plain reading might misread as well, and a sweep that answers for the words as
/// they were before the list changed.
TEST(BoardSearch, RefusesTilesWhoseDigitsAreInThePathAndFollowsTheList)
{
    // C A T S leads over tiles 12, 3, 11 to 20, whose digits stand across 12 and 03; tile 2 has no such trouble.
    std::mt19937 unused;
    SearchBoard board = randomBoard(unused, true, "X", 0);
    board.letters[12] = 'C';
    board.letters[3] = 'A';
    board.letters[11] = 'T';
    board.letters[20] = 'S';
    BoardSearch search;
    WordList words = listOf({"CATS", "TAC"});
    EXPECT_THAT(itemsOf(search.sweep(board, words)), ElementsAre("0005 110312TAC"));
    board.letters[2] = 'S';
    EXPECT_EQ(search.traceWord(board, "cats").items, std::vector<std::string>{"12031102CATS"});
    EXPECT_THAT(itemsOf(search.sweep(board, words)), ElementsAre("0006 12031102CATS", "0005 110312TAC"));
    words.setCount(1);
    EXPECT_EQ(search.sweep(board, words).count(), 1);
    words.overwrite(std::vector<std::string_view>{"AT"});
    EXPECT_THAT(itemsOf(search.sweep(board, words)), ElementsAre("0002 0311AT"));
}

} // namespace
} // namespace lexigrove
