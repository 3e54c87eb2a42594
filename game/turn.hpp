#pragma once

#include "controls/words_grid.hpp"
#include "game/board_position.hpp"

#include <string>
#include <vector>

namespace lexigrove
{

/// A word of a game, with the board from which it was taken.
struct Turn {
    BoardPosition before;
    std::string word;
    std::vector<int> path; ///< its tiles, in the order in which they were clicked
    int score = 0;
    Maker maker = Maker::Player;
    int hintsUsed = 0;    ///< in the game up to here
    int redTilesMade = 0; ///< likewise
    int pushes = 0;       ///< likewise: columns that were pushed down

    friend bool operator==(const Turn&, const Turn&) = default;
};

} // namespace lexigrove
