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

void Game::refreshLook(int tile)
{
    if (selection.contains(tile))
        look.showSelected(board.tile(tile));
    else
        look.showNormal(board.tile(tile));
}

void Game::refreshLooks()
{
    for (int tile = 0; tile <= Board::tileCount; ++tile)
        refreshLook(tile);
    for (BoxControl& waiting : board.TopDrop)
        look.showNormal(waiting);
}

} // namespace lexigrove
