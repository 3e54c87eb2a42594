#pragma once

#include "game/board.hpp"
#include "opponent/search_board.hpp"

namespace lexigrove
{

/// The board as a search sees it: the letters of the visible tiles and their neighbour lists.
SearchBoard snapshotOf(const Board& board);

} // namespace lexigrove
