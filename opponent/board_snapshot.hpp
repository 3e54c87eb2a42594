#pragma once

#include "game/board.hpp"
#include "opponent/search_board.hpp"

namespace lexigrove
{

/// The board as a search sees it: the letters of the visible tiles and the neighbour lists as they stand.
SearchBoard snapshotOf(const Board& board);

} // namespace lexigrove
