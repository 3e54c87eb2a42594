#include "opponent/board_search.hpp"
#include "plain_search.hpp"
#include "random_boards.hpp"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

namespace lexigrove
{

namespace
{

using test::PlainSearch;
using test::randomBoard;
using testing::ElementsAre;
using testing::IsEmpty;

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

/// A full square board of one letter, with others on a few tiles.
SearchBoard squareBoard(char letter, const std::vector<std::pair<int, char>>& others)
{
    std::mt19937 unused;
    SearchBoard board = randomBoard(unused, true, std::string(1, letter), 0);
    for (const auto& [tile, other] : others)
        board.letters[static_cast<std::size_t>(tile)] = other;
    return board;
}

/// The letters along a walk over touching tiles, which may come back to a tile that it has been on.
std::string walk(std::mt19937& random, const SearchBoard& board, std::size_t length)
{
    std::string word;
    std::size_t tile = random() % 64 + 1;
    while (board.letters[tile] != 0) {
        word += board.letters[tile];
        const NeighbourList& neighbours = board.neighbours[tile];
        if (word.size() == length || neighbours.count == 0)
            break;
        tile = neighbours.tiles[random() % neighbours.count];
    }
    return word;
}

enum class Kind { Sorted, Unsorted, PrefixRich, OneLetter, Duplicates, OddCharacters };

/// Words that the board nearly spells: most can be traced, many fail at their last letters or reuse a tile.
WordList nearlyOnBoard(std::mt19937& random, const SearchBoard& board, Kind kind)
{
    std::vector<std::string> words;
    for (int i = 0; i < 250; ++i) {
        std::string word = walk(random, board, 1 + random() % (kind == Kind::OneLetter ? 2 : 12));
        if (word.empty())
            continue;
        if (random() % 4 == 0)
            word.back() = "AETZ"[random() % 4];
        words.push_back(word);
        if (kind == Kind::Duplicates && random() % 2 == 0)
            words.push_back(words[random() % words.size()]);
        while (kind == Kind::PrefixRich && word.size() > 1) {
            word.pop_back();
            words.push_back(word);
        }
        if (kind == Kind::OddCharacters) {
            word[random() % word.size()] = "'a9 \xE9\x9C\x7F\0"[random() % 8];
            words.insert(words.end(), {word, "", std::string(66, word.front())});
        }
    }
    if (kind == Kind::Sorted || kind == Kind::PrefixRich || kind == Kind::Duplicates)
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
    for (unsigned seed = 1; seed <= 360; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        std::mt19937 random(seed);
        const auto kind = static_cast<Kind>(seed % 6);
        const char* const letters = kind == Kind::OddCharacters ? "ABCDE'9 aZ\xC9\x8C\xE9\x7F\x80\x81" : "AEISTRNLOD";
        const SearchBoard board = randomBoard(random, seed % 4 < 2, letters, seed % 3 == 0 ? 0 : seed % 9);
        const WordList words = nearlyOnBoard(random, board, kind);

        PlainSearch plain(board);
        plain.sweep(words);
        const CandidateList& candidates = search.sweep(board, words);
        ASSERT_EQ(itemsOf(candidates), plain.fwlist[3]);
        ASSERT_EQ(candidates.bestScorePosition(), plain.bestScorePosition);
        ASSERT_EQ(candidates.bestLengthPosition(), plain.bestLengthPosition);
        found += candidates.count();

        for (int i = 1; i <= words.count(); i += 7) {
            SCOPED_TRACE(std::string(words.entry(i)));
            plain.fwlist[0].clear();
            const int matched = plain.traceWord(words.entry(i));
            const TracedWord traced = search.traceWord(board, words.entry(i));
            ASSERT_EQ(traced.matchedLength, matched);
            ASSERT_EQ(traced.items, plain.fwlist[0]);
        }
    }
    EXPECT_GT(found, 18'000); // otherwise the boards and lists say nothing
}

/// Guards the digit text rule and the item formats against a slip that the plain reading might share.
TEST(BoardSearch, RefusesTilesWhoseDigitsAreInPath)
{
    // C A T S leads over tiles 12, 3, 11 to 20, whose digits stand across 12 and 03; tile 2 has no such trouble.
    BoardSearch search;
    SearchBoard board = squareBoard('X', {{12, 'C'}, {3, 'A'}, {11, 'T'}, {20, 'S'}});
    EXPECT_EQ(search.traceWord(board, "CATS").matchedLength, 3);
    board.letters[2] = 'S';
    const TracedWord cats = search.traceWord(board, "cats");
    EXPECT_EQ(cats.matchedLength, 4);
    EXPECT_THAT(cats.items, ElementsAre("12031102CATS"));
    EXPECT_THAT(itemsOf(search.sweep(board, listOf({"CATS"}))), ElementsAre("0006 12031102CATS"));
}

/// Guards the lengths that tracing reports at its ends, a tile used twice, and the order of paths.
TEST(BoardSearch, TracesLongestPrefix)
{
    BoardSearch search;
    SearchBoard board = squareBoard('X', {{1, 'A'}, {2, 'B'}, {10, 'B'}, {64, 'C'}});
    EXPECT_EQ(search.traceWord(board, "ZOO").matchedLength, 0);
    EXPECT_EQ(search.traceWord(board, "ACT").matchedLength, 1);
    EXPECT_THAT(search.traceWord(board, "ACT").items, IsEmpty());
    EXPECT_EQ(search.traceWord(board, "ABA").matchedLength, 2);
    EXPECT_THAT(search.traceWord(board, "ABA").items, ElementsAre("0102AB", "0110AB"));
    EXPECT_EQ(search.traceWord(board, "").matchedLength, 0);
    board.letters[9] = 0; // a tile without a letter
    EXPECT_EQ(search.traceWord(board, std::string("A\0", 2)).matchedLength, 1);
    EXPECT_EQ(search.sweep(SearchBoard{}, listOf({"AB", "BA"})).count(), 0);
}

/// Guards ties, which go to the earlier word, and a best position among words without a score.
TEST(BoardSearch, MarksFirstOfTheBest)
{
    BoardSearch search;
    const SearchBoard board =
        squareBoard('I', {{1, 'Q'}, {20, 'C'}, {21, 'A'}, {22, 'T'}, {40, 'Q'}, {30, 'A'}, {46, '\''}});
    const CandidateList& candidates = search.sweep(board, listOf({"'I", "A", "CAT", "IQ", "QI", "TAC"}));
    EXPECT_THAT(itemsOf(candidates), ElementsAre("0005 202122CAT", "0011 0201IQ", "0011 0102QI", "0005 222120TAC"));
    EXPECT_EQ(candidates.bestScorePosition(), 2);
    EXPECT_EQ(candidates.bestLengthPosition(), 1);

    const CandidateList& lowerCase = search.sweep(board, listOf({"at", "cat"}));
    EXPECT_THAT(itemsOf(lowerCase), ElementsAre("0000 2122AT", "0000 202122CAT"));
    EXPECT_EQ(lowerCase.bestScorePosition(), 0);
    EXPECT_EQ(lowerCase.bestLengthPosition(), 2);
}

/// Guards against a sweep that answers for the words as they were before the list changed.
TEST(BoardSearch, FollowsChangesOfTheList)
{
    BoardSearch search;
    const SearchBoard board = squareBoard('X', {{20, 'C'}, {21, 'A'}, {22, 'T'}});
    WordList words = listOf({"AT", "CAT"});
    EXPECT_EQ(search.sweep(board, words).count(), 2);
    words.setCount(1);
    EXPECT_EQ(search.sweep(board, words).count(), 1);
    words.overwrite(std::vector<std::string_view>{"TA"});
    EXPECT_THAT(itemsOf(search.sweep(board, words)), ElementsAre("0002 2221TA"));
    words = listOf({"TAC"});
    EXPECT_THAT(itemsOf(search.sweep(board, words)), ElementsAre("0005 222120TAC"));
}

} // namespace

} // namespace lexigrove
