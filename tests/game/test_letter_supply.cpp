#include "tests/support/scripted_front_end.hpp"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <set>

namespace lexigrove
{
namespace
{

const std::string words =
    "ACE\r\nBAD\r\nCAB\r\nDIG\r\nEGG\r\nFOX\r\nHAJJ\r\nKILN\r\nMOP\r\nQUIZ\r\nRUST\r\nVOW\r\nYAK\r\n";

std::string queueText(const LetterSupply& supply)
{
    std::string text;
    for (const std::string& letter : supply.RandomLetters)
        text += letter;
    return text;
}

std::string dropRowText(const Board& board)
{
    std::string text;
    for (std::size_t k = 1; k <= 8; ++k)
        text += board.TopDrop[k].Visible() ? board.TopDrop[k].Caption() : ".";
    return text;
}

/// 100 different bytes, so that each place can be told.
std::string hundredLetters()
{
    std::string letters;
    for (int i = 1; i <= 100; ++i)
        letters += static_cast<char>(32 + i);
    return letters;
}

/// Guards against a drop row that is dealt like a plain queue: it shows every second letter, and four letters go
/// unseen.
TEST(LetterSupply, TheDealShowsEverySecondLetterOfTheQueue)
{
    PlayedGame played(words);
    const std::string letters = hundredLetters();
    played.start(Arrangement::Square, letters);
    for (int tile = 1; tile <= 64; ++tile)
        EXPECT_EQ(played.board().letter(tile), letters.substr(static_cast<std::size_t>(tile - 1), 1));
    std::string shown;
    for (const std::size_t place : {65U, 67U, 69U, 71U, 73U, 75U, 77U, 79U})
        shown += letters[place - 1];
    EXPECT_EQ(dropRowText(played.board()), shown);
    EXPECT_EQ(queueText(played.flow.game.supply), letters.substr(72));
    EXPECT_EQ(played.state().TilesLeft.Caption, "24");
}

/// Guards against letters lost with the four tiles that the staggered board leaves out.
TEST(LetterSupply, TheStaggeredBoardKeepsItsHiddenLettersInTheQueue)
{
    PlayedGame played(words);
    played.start(Arrangement::Staggered);
    const std::string queue = queueText(played.flow.game.supply);
    EXPECT_EQ(queue.size(), 32U);
    EXPECT_EQ(played.state().TilesLeft.Caption, "32");
    std::string hidden;
    for (const int tile : {8, 24, 40, 56})
        hidden += played.board().letter(tile);
    EXPECT_EQ(queue.substr(28), hidden);

    // A preset text that is too short leaves places without a letter; no waiting tile shows one.
    played.start(Arrangement::Staggered, "ABC");
    EXPECT_EQ(played.board().letter(3), "C");
    EXPECT_EQ(played.board().letter(4), "");
    EXPECT_EQ(dropRowText(played.board()), "........");
}

/// Guards against a generator that starts afresh within one tick of the clock, which would deal alphabetical runs, and
/// against draws that never reach some place.
TEST(LetterSupply, AFrozenClockStillShufflesWell)
{
    ScriptedFrontEnd frontEnd;
    GameState state;
    Board board;
    LetterTables letters;
    const GameSettings settings;
    LetterSupply supply(state, board, letters, settings, frontEnd.random, frontEnd);

    const auto runs = [&] { // neighbours in the pool that stand as in the alphabetical one
        int count = 0;
        for (std::size_t i = 1; i < 100; ++i)
            count += letters.pool[i] == letters.pool[i + 1] || letters.pool[i] + 1 == letters.pool[i + 1];
        return count;
    };
    ASSERT_EQ(runs(), 99);
    supply.shufflePool();
    EXPECT_LT(runs(), 30);
    const auto first = letters.pool;
    supply.shufflePool();
    EXPECT_NE(letters.pool, first);
    EXPECT_LT(runs(), 30);

    std::array<std::set<char>, 101> seen;
    for (int i = 0; i < 3000; ++i) {
        letters.buildStartUp();
        supply.shufflePool();
        for (std::size_t place = 1; place <= 100; ++place)
            seen[place].insert(letters.pool[place]);
    }
    for (std::size_t place = 1; place <= 100; ++place)
        EXPECT_EQ(seen[place].size(), 26U) << place;
    auto sorted = letters.pool;
    std::sort(sorted.begin() + 1, sorted.end());
    letters.buildStartUp();
    EXPECT_EQ(sorted, letters.pool) << "a shuffle neither adds nor loses letters";
}

TEST(LetterSupply, OnlyAGameAgainstTheComputerNeverRunsOut)
{
    PlayedGame played(words);
    LetterSupply& supply = played.flow.game.supply;
    played.start(Arrangement::Square);
    supply.RandomLetters = {"A", "B"};
    for (const std::size_t k : {2U, 3U, 5U})
        played.board().TopDrop[k].Visible(false);
    supply.refillTopRow();
    EXPECT_EQ(played.state().TilesLeft.Caption, "22");
    EXPECT_EQ(played.board().TopDrop[3].Caption(), "B");
    EXPECT_FALSE(played.board().TopDrop[5].Visible());
    EXPECT_EQ(supply.nextLetter(), "");

    played.state().computerGame = true;
    supply.refillTopRow();
    EXPECT_FALSE(played.board().TopDrop[5].Visible()) << "topped up after the row was filled";
    EXPECT_EQ(supply.RandomLetters.size(), 100U);
    played.state().TilesLeft.Caption = "NONE";
    supply.refillTopRow();
    EXPECT_FALSE(played.board().TopDrop[5].Visible()) << "no further letters are drawn";
    EXPECT_EQ(played.state().TilesLeft.Caption, "NONE");
}

} // namespace
} // namespace lexigrove
