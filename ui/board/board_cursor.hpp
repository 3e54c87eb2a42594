#pragma once

#include "game/board.hpp"

namespace lexigrove
{

/// A place of the board: a tile or its empty cell, or a column of the drop row.
struct BoardSpot {
    int tile = 0;
    int col = 0;
    bool operator==(const BoardSpot&) const = default;
};

/// Walks over the board from the keyboard: columns 1 to 8, the drop row on top as row 0.
class BoardCursor
{
public:
    enum class Step { Up, Down, Left, Right, UpLeft, UpRight, DownLeft, DownRight };

    explicit BoardCursor(const Board& board) : board_(board) {}

    /// To the neighbour in that direction; stays at the edge. On a staggered board the cells of a column stand half a
    /// cell higher or lower than those beside them: Left and Right go to and fro between two such rows, and the
    /// slanting steps to the others, so that all six neighbours are reached.
    void move(Step step);

    void moveTo(const BoardSpot& spot);
    [[nodiscard]] BoardSpot spot() const;

private:
    void moveAside(int columns, int rows);

    const Board& board_;
    int row_ = 4;
    int col_ = 4;
};

} // namespace lexigrove
