#include "game/game.hpp"

namespace lexigrove
{

void Game::countSpecialTiles()
{
    state.redTilesOnBoard = 0;
    state.bonusTilesOnBoard = 0;
    for (int tile = 1; tile <= Board::tileCount; ++tile) {
        if (!board.isVisible(tile))
            continue;
        state.redTilesOnBoard += board.maskcolor(tile) == multiplier::red ? 1 : 0;
        state.bonusTilesOnBoard += multiplier::isBonus(board.maskcolor(tile)) ? 1 : 0;
    }
}

void Game::refreshLooks()
{
    for (BoxControl& tile : board.Tiles) {
        if (tile.Tag() == "X")
            look.showSelected(tile);
        else
            look.showNormal(tile);
    }
    for (BoxControl& waiting : board.TopDrop)
        look.showNormal(waiting);
}

} // namespace lexigrove
