#pragma once

#include "controls/box_control.hpp"

namespace lexigrove
{

struct Game;

/// Takes letters off the board; the letters above them move down.
class TileRemoval
{
public:
    explicit TileRemoval(Game& game) : game_(game) {}

    /// Removes the tiles of the current path, column by column from the left, top to bottom.
    void removePathTiles();

    /// Removes the letter at a cell: the letters above it move down one cell with their multipliers and colours, and
    /// the topmost occupied cell becomes empty and plain.
    void moveColumnDown(int row, int col);

private:
    void animateColumn(int firstRow, int row, int col);

    Game& game_;
};

} // namespace lexigrove
