#include "tests/support/played_game.hpp"

namespace lexigrove
{
namespace
{

/// Guards against a pressure that weighs a word wrongly or counts too often, a threshold that does not fall, a fifth
/// red tile, and one below a plain tile. Each tick weighs 1, and each word by its length.
TEST(RedTiles, ADayOfTicks)
{
    const std::pair<std::string, int> words[] = {{"", 0}, {"AT", 5}, {"CAT", 4}, {"QUIZ", 3}, {"PLANET", 2}};
    const int thresholds[] = {500, 1000, 500, 300};
    for (const int level : {0, 1, 2, 3}) {
        for (const auto& [word, weight] : words) {
            SCOPED_TRACE("level " + std::to_string(level) + " " + word);
            QuietWorld world("");
            GameParts parts(world.ports(), world.folder.path());
            GameState& state = parts.game.state;
            parts.dictionary.applyChoice(level, "UsrDict.txt");
            parts.game.board.layOut(Arrangement::Staggered);
            int due = thresholds[level];
            for (int second = 1; second <= 86'400; ++second) {
                if (second % 20 == 0 && !word.empty() && second < 20'000)
                    state.statistics.recordWord(word, Statistics::playerBase);
                const int pressure = std::min(second, 32'767) + weight * (std::min(second, 19'999) / 20);
                const bool isDue = state.redTilesOnBoard < RedTiles::maxRedTiles && pressure >= due;
                const int before = state.redTilesOnBoard;
                parts.game.redTiles.redTimerTick();
                ASSERT_EQ(state.redTilesOnBoard, before + (isDue ? 1 : 0)) << second;
                if (isDue)
                    due = pressure + thresholds[level] - state.redTilesOnBoard;
            }
            for (int tile = 1; tile <= Board::tileCount; ++tile) {
                const bool red = parts.game.board.maskcolor(tile) == multiplier::red;
                EXPECT_TRUE(!red || Board::row(tile) == 1 || parts.game.board.maskcolor(tile - 1) == multiplier::red);
            }
        }
    }
}

/// Guards against a push that draws columns instead of special tiles, whatever their kind.
TEST(RedTiles, AColumnIsDrawnForEachOfItsSpecialTiles)
{
    QuietWorld world("");
    GameParts parts(world.ports(), world.folder.path());
    Board& board = parts.game.board;
    board.layOut(Arrangement::Square);
    int pushesOfTheFirst = 0;
    for (int i = 0; i < 2000; ++i) {
        for (BoxControl& tile : board.Tiles)
            tile.MaskColor(multiplier::plain);
        for (const int tile : {1, 2, 3, 57})
            board.tile(tile).MaskColor(tile == 57 ? multiplier::doubled : multiplier::red);
        pushesOfTheFirst += parts.game.redTiles.pushTimerTick().col == 1 ? 1 : 0;
        board.layOut(Arrangement::Square);
    }
    EXPECT_NEAR(pushesOfTheFirst, 1500, 100);
}

} // namespace
} // namespace lexigrove
