#include "game/game.hpp"

namespace lexigrove
{

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
