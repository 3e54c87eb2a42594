#include "tests/flow/played_words.hpp"

#include <gtest/gtest.h>

namespace lexigrove
{
namespace
{

int emptyTopCells(const Board& board)
{
    int count = 0;
    for (int col = 1; col <= Board::columns; ++col)
        count += board.emptyCells(col) > 0 ? 1 : 0;
    return count;
}

bool differByOneAtMost(const std::map<std::string, int>& before, const std::map<std::string, int>& after)
{
    int lost = 0;
    for (const auto& [letter, count] : before)
        lost += std::abs(count - (after.contains(letter) ? after.at(letter) : 0));
    return lost <= 1;
}

/// Drops waiting letters until no column with room has one over it.
void dropAll(PlayedGame& played)
{
    for (bool dropped = true; dropped;) {
        dropped = false;
        for (int col = 1; col <= Board::columns; ++col) {
            const bool waits = played.board().TopDrop[static_cast<std::size_t>(col)].Visible();
            if (waits && !played.board().isVisible(played.board().Grid(1, col))) {
                played.flow.drop(col);
                expectSoundBoard(played.flow.game);
                dropped = true;
            }
        }
    }
}

/// Plays words drawn at random, with pressure between them, until the board has none left or the game is lost.
int playToTheEnd(PlayedGame& played, Arrangement arrangement, std::mt19937& random)
{
    played.frontEnd.timeOfDay = 1000 + static_cast<double>(random() % 80'000);
    played.frontEnd.onConfirm = [](const std::string&) { return false; }; // a lost game is not followed by another
    played.frontEnd.onInput = [](const std::string&) { return "Ada"; };
    played.start(arrangement);
    auto letters = lettersInPlay(played.flow.game);
    int total = 0;
    for (const auto& [letter, count] : letters)
        total += count;
    EXPECT_EQ(total, 100);

    int words = 0;
    int score = 0;
    while (true) {
        const std::vector<int> path = anyWordOnTheBoard(played.flow, random);
        if (path.empty())
            return words;
        std::string word;
        for (const int tile : path)
            word += played.board().letter(tile);
        played.click(path);
        EXPECT_EQ(played.state().WordTried.Caption, word);
        score += numberOf(played.state().CurrScore.Caption);
        played.flow.enterWord();
        ++words;
        expectSoundBoard(played.flow.game);
        EXPECT_EQ(played.yourScore(), score);
        EXPECT_EQ(played.state().WordsMade.Rows(), words + 1);
        for (const char letter : word)
            --letters[std::string(1, letter)];

        const int before = numberOf(played.state().TilesLeft.Caption);
        const auto queued = static_cast<int>(played.flow.game.supply.RandomLetters.size());
        dropAll(played);
        const auto drawn = queued - static_cast<int>(played.flow.game.supply.RandomLetters.size());
        EXPECT_EQ(numberOf(played.state().TilesLeft.Caption), before - drawn) << "TilesLeft follows what is drawn";
        EXPECT_TRUE(emptyTopCells(played.board()) == 0 || played.flow.game.supply.RandomLetters.empty());
        auto now = lettersInPlay(played.flow.game);
        std::erase_if(now, [](const auto& entry) { return entry.second == 0; });
        std::erase_if(letters, [](const auto& entry) { return entry.second == 0; });
        EXPECT_EQ(now, letters) << "letters appear or vanish";
        if (testing::Test::HasFailure())
            return words;

        for (int i = 0; i < 400 && words % 3 == 0; ++i)
            played.flow.redTimerTick();
        if (words % 4 == 0) {
            const auto beforePush = lettersInPlay(played.flow.game);
            played.flow.pushTimerTick();
            if (played.flow.ended())
                return words;
            letters = lettersInPlay(played.flow.game);
            EXPECT_TRUE(differByOneAtMost(beforePush, letters)) << "a push takes the bottom letter alone";
        }
        expectSoundBoard(played.flow.game);
    }
}

/// Guards against letters that vanish or double, gaps under letters, and neighbour lists that go stale, in the course
/// of whole games.
TEST(SoloGames, TwoHundredWordsDeep)
{
    const std::string words = levelOneWords();
    for (const Arrangement arrangement : {Arrangement::Square, Arrangement::Staggered}) {
        for (unsigned seed = 1, played = 0; played < 200; ++seed) {
            SCOPED_TRACE("seed " + std::to_string(seed));
            std::mt19937 random(seed);
            PlayedGame game(words);
            played += static_cast<unsigned>(playToTheEnd(game, arrangement, random));
            ASSERT_FALSE(HasFailure());
        }
    }
}

} // namespace
} // namespace lexigrove
