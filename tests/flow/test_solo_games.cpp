#include "platform/text_file.hpp"
#include "tests/support/random_play.hpp"

#include <set>

namespace lexigrove
{
namespace
{

void enter(PlayedGame& played, const std::vector<int>& path)
{
    Letters letters(played);
    letters.take(path);
    played.click(path);
    const WordScore worth = played.state.currScore.value_or(WordScore{});
    const int score = played.state.yourScore + worth.score;
    const int bonusTiles = played.state.bonusTilesOnBoard - worth.bonusCount;
    const int rows = played.state.WordsMade.Rows();
    played.flow.perform(Command::EnterWord);
    EXPECT_EQ(played.state.yourScore, score);
    EXPECT_EQ(played.state.WordsMade.Rows(), rows + 1);
    EXPECT_EQ(Letters(played).text(false), letters.text(false));
    const bool newBonusTile = Letters(played).text() != letters.text();
    EXPECT_EQ(played.state.bonusTilesOnBoard, bonusTiles + (newBonusTile ? 1 : 0));
}

void drop(PlayedGame& played, int col)
{
    if (!played.board.waiting(col).Visible() || played.board.isVisible(Board::Grid(1, col)))
        return;
    Letters letters(played);
    letters.drop(col);
    played.flow.drop(col);
    EXPECT_EQ(Letters(played).text(), letters.text());
}

void push(PlayedGame& played)
{
    std::set<std::string> expected; // by the tile that is drawn
    for (int tile = 1; tile <= Board::tileCount; ++tile) {
        if (!played.board.isVisible(tile) || played.board.maskcolor(tile) == multiplier::plain)
            continue;
        Letters letters(played);
        letters.push(Board::col(tile));
        expected.insert(letters.text());
    }
    if (expected.empty())
        expected.insert(Letters(played).text());
    played.flow.tick(Timer::Push);
    EXPECT_TRUE(played.flow.ended() || expected.contains(Letters(played).text()));
}

/// Plays at random until the board has no word left or the game is lost, and tells the words made.
int playToTheEnd(PlayedGame& played, Arrangement arrangement, unsigned seed)
{
    std::mt19937 random(seed);
    played.clock.seconds = seed;
    played.start(arrangement);
    const int emptied = 1 + static_cast<int>(random() % 8); // a whole column
    for (int row = 1; row <= Board::rows; ++row)
        played.study.editTile(Board::Grid(row, emptied), "", multiplier::plain);
    drop(played, emptied);
    for (int words = 0;; ++words) {
        const std::vector<int> path = anyWord(played, random);
        if (path.empty() || played.flow.ended() || testing::Test::HasFailure())
            return words;
        enter(played, path);
        for (auto drops = random() % 12; drops > 0; --drops)
            drop(played, 1 + static_cast<int>(random() % 8));
        for (auto ticks = random() % 3 * 150; ticks > 0; --ticks)
            played.flow.tick(Timer::Red);
        expectSoundBoard(played);
        if (random() % 3 == 0)
            push(played);
        expectSoundBoard(played);
    }
}

/// Guards against letters that vanish, double or go astray, and counts that go wrong, in the course of whole games.
TEST(SoloGames, HundredsOfWordsDeep)
{
    const std::string words = readFile(LEXIGROVE_DATA "/L1Ascii.txt");
    for (const Arrangement arrangement : {Arrangement::Square, Arrangement::Staggered}) {
        int wordsMade = 0;
        for (unsigned seed = 1; wordsMade < 400; ++seed) {
            SCOPED_TRACE("seed " + std::to_string(seed));
            PlayedGame played(words);
            wordsMade += playToTheEnd(played, arrangement, seed);
            ASSERT_FALSE(HasFailure());
        }
    }
}

} // namespace
} // namespace lexigrove
