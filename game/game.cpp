#include "game/game.hpp"

namespace lexigrove
{

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
