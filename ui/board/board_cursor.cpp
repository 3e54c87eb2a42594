#include "ui/board/board_cursor.hpp"

#include <algorithm>

namespace lexigrove
{

void BoardCursor::move(Step step)
{
    switch (step) {
    case Step::Up:
        row_ = std::max(row_ - 1, 0);
        break;
    case Step::Down:
        row_ = std::min(row_ + 1, board_.columnHeight(col_));
        break;
    case Step::Left:
        return moveAside(-1, 0);
    case Step::Right:
        return moveAside(1, 0);
    case Step::UpLeft:
        return moveAside(-1, -1);
    case Step::UpRight:
        return moveAside(1, -1);
    case Step::DownLeft:
        return moveAside(-1, 1);
    case Step::DownRight:
        return moveAside(1, 1);
    }
}

/// A cell of a low column stands beside the cells of its own row and of the next one; so its row is the upper of the
/// two.
void BoardCursor::moveAside(int columns, int rows)
{
    const int col = col_ + columns;
    if (col < 1 || col > Board::columns)
        return;
    if (row_ > 0 && board_.arrangement() == Arrangement::Staggered) {
        const bool low = board_.columnHeight(col_) < board_.columnHeight(col);
        if (low && rows < 0)
            rows = 0; // the upper one has the same number
        if (!low && rows > 0)
            rows = 0; // and seen from the high column the lower one has
    }
    row_ = row_ == 0 && rows <= 0 ? 0 : std::clamp(row_ + rows, 0, board_.columnHeight(col));
    col_ = col;
}

void BoardCursor::moveTo(const BoardSpot& spot)
{
    row_ = spot.tile == 0 ? 0 : Board::row(spot.tile);
    col_ = spot.tile == 0 ? spot.col : Board::col(spot.tile);
}

BoardSpot BoardCursor::spot() const
{
    return row_ == 0 ? BoardSpot{0, col_} : BoardSpot{Board::Grid(row_, col_), 0};
}

} // namespace lexigrove
