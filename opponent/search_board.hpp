#pragma once

#include "game/neighbours.hpp"

#include <array>

namespace lexigrove
{

class Board;

/// The board as a search sees it at one moment. Tiles are numbered 1 to 64; entry 0 is the hidden template.
struct SearchBoard {
    static constexpr int tileCount = 64;

    /// Letters by tile number, any single byte; 0 for a tile that is hidden or shows no letter.
    std::array<char, tileCount + 1> letters{};

    /// The `Neibors` lists, without hidden tiles.
    NeighbourTable neighbours{};
};

/// The board of the moment: the letters of the visible tiles and their neighbour lists.
SearchBoard snapshotOf(const Board& board);

} // namespace lexigrove
