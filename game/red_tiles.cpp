#include "game/red_tiles.hpp"

#include "game/game.hpp"

#include <algorithm>
#include <vector>

namespace lexigrove
{

int RedTiles::redTimerTick()
{
    if (isHeld())
        return 0;
    game_.ports.screen.yield();
    countUp(game_.state.tickCount);
    game_.state.pressure = pressure();
    if (game_.state.pressure - game_.state.lastPressure < game_.dictionary.redThreshold())
        return 0;
    game_.state.lastPressure = game_.state.pressure;
    return makeRedTile();
}

int RedTiles::pressure() const
{
    const auto made = [this](int entry) { return game_.state.statistics.number(Statistics::playerBase + entry); };
    return 3 * made(1) + 2 * made(2) + made(3) - made(5) + 2 * game_.state.hintsUsed + 2 * game_.state.redTilesUsed +
           game_.state.tickCount;
}

int RedTiles::makeRedTile()
{
    if (game_.state.redTilesOnBoard >= maxRedTiles)
        return 0;
    std::vector<int> candidates; // at most one per column: its topmost plain tile
    for (int col = 1; col <= Board::columns; ++col) {
        for (int row = 1; row <= game_.board.columnHeight(col); ++row) {
            const int tile = game_.board.Grid(row, col);
            if (game_.board.isVisible(tile) && game_.board.maskcolor(tile) == multiplier::plain) {
                candidates.push_back(tile);
                break;
            }
        }
    }
    if (candidates.empty())
        return 0;
    const int k =
        placeFromDraw(game_.ports.random.reseedAndDraw(game_.ports.clock), static_cast<int>(candidates.size()));
    const int tile = candidates[static_cast<std::size_t>(k - 1)];
    countUp(game_.state.redTilesOnBoard);
    game_.board.tile(tile).MaskColor(multiplier::red);
    game_.refreshLook(tile);
    countUp(game_.state.redTilesMade);
    game_.dictionary.setRedThreshold(game_.dictionary.redThreshold() - 1);
    game_.ports.screen.happened(Moment::RedTile, tile);
    return tile;
}

bool RedTiles::isHeld() const
{
    return game_.state.redTileHold || game_.state.computerGame || game_.state.kind == GameKind::Relaxed;
}

std::vector<int> RedTiles::pushable() const
{
    return isHeld() ? std::vector<int>() : game_.board.specialTiles();
}

RedTiles::PushResult RedTiles::pushTimerTick()
{
    const std::vector<int> special = pushable(); // each has one entry in the draw
    if (special.empty())
        return {};
    const int k = placeFromDraw(game_.ports.random.reseedAndDraw(game_.ports.clock), static_cast<int>(special.size()));
    const int col = game_.board.col(special[static_cast<std::size_t>(k - 1)]);
    const int bottom = game_.board.Grid(game_.board.columnHeight(col), col);
    const Colour out = game_.board.isVisible(bottom) ? game_.board.maskcolor(bottom) : multiplier::plain;
    if (out == multiplier::red)
        return {Push::Lost, col, out};

    if (multiplier::isBonus(out))
        game_.state.bonusTilesOnBoard = std::max(0, game_.state.bonusTilesOnBoard - 1);
    pushColumn(col);
    if (game_.board.waiting(col).Visible())
        game_.dropRow.dropIntoColumn(col);
    return {Push::Pushed, col, out};
}

void RedTiles::pushOutRedTile(int col)
{
    --game_.state.redTilesOnBoard;
    pushColumn(col);
}

void RedTiles::pushColumn(int col)
{
    game_.selection.clear();
    countUp(game_.state.pushes);
    game_.removal.moveColumnDown(game_.board.columnHeight(col), col);
}

} // namespace lexigrove
