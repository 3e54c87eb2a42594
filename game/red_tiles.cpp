#include "game/red_tiles.hpp"

#include <algorithm>
#include <vector>

namespace lexigrove
{

void RedTiles::redTimerTick()
{
    if (state_.redTileHold || state_.computerGame)
        return;
    ports_.screen.yield();
    countUp(state_.tickCount);
    state_.pressure = pressure();
    if (state_.pressure - state_.lastPressure >= dictionary_.redThreshold()) {
        makeRedTile();
        state_.lastPressure = state_.pressure;
    }
}

std::int32_t RedTiles::pressure() const
{
    const auto made = [this](int entry) { return state_.statistics.number(Statistics::playerBase + entry); };
    return 3 * made(1) + 2 * made(2) + made(3) - made(5) + 2 * state_.hintsUsed + 2 * state_.redTilesUsed +
           state_.tickCount;
}

void RedTiles::makeRedTile()
{
    if (state_.redTilesOnBoard >= mostRedTiles)
        return;
    std::vector<int> candidates; // at most one a column: red tiles are born as high as a plain tile stands
    for (int col = 1; col <= Board::columns; ++col) {
        for (int row = 1; row <= board_.columnHeight(col); ++row) {
            const int tile = board_.Grid(row, col);
            if (board_.isVisible(tile) && board_.maskcolor(tile) == multiplier::plain) {
                candidates.push_back(tile);
                break;
            }
        }
    }
    if (candidates.empty())
        return;
    const int k = placeFromDraw(ports_.random.reseedAndDraw(ports_.clock), static_cast<int>(candidates.size()));
    BoxControl& tile = board_.tile(candidates[static_cast<std::size_t>(k - 1)]);
    ++state_.redTilesOnBoard;
    tile.MaskColor(multiplier::red);
    if (tile.Tag() == "X")
        look_.showSelected(tile);
    else
        look_.showNormal(tile);
    dictionary_.setRedThreshold(dictionary_.redThreshold() - 1);
}

RedTiles::PushResult RedTiles::pushTimerTick()
{
    if (state_.redTileHold || state_.computerGame)
        return {};
    std::vector<int> special; // each special tile is one entry of the draw
    for (int tile = 1; tile <= Board::tileCount; ++tile) {
        if (board_.isVisible(tile) && board_.maskcolor(tile) > multiplier::plain)
            special.push_back(tile);
    }
    if (special.empty())
        return {};
    const int k = placeFromDraw(ports_.random.reseedAndDraw(ports_.clock), static_cast<int>(special.size()));
    const int col = board_.col(special[static_cast<std::size_t>(k - 1)]);
    const int bottom = board_.Grid(board_.columnHeight(col), col);
    if (board_.isVisible(bottom) && board_.maskcolor(bottom) == multiplier::red)
        return {Push::Lost, col};

    if (board_.isVisible(bottom) && multiplier::isBonus(board_.maskcolor(bottom)))
        state_.bonusTilesOnBoard = static_cast<std::int16_t>(std::max(0, state_.bonusTilesOnBoard - 1));
    pushColumn(col);
    if (board_.waiting(col).Visible())
        dropRow_.dropIntoColumn(col);
    return {Push::Pushed, col};
}

void RedTiles::pushOutRedTile(int col)
{
    --state_.redTilesOnBoard;
    pushColumn(col);
}

void RedTiles::pushColumn(int col)
{
    selection_.clear();
    removal_.moveColumnDown(board_.columnHeight(col), col);
}

} // namespace lexigrove
