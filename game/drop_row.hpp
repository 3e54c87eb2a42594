#pragma once

#include "controls/box_control.hpp"

#include <vector>

namespace lexigrove
{

struct Game;

/// Drops waiting letters from `TopDrop` into the empty top cells of a column.
class DropRow
{
public:
    explicit DropRow(Game& game) : game_(game) {}

    /// Drops the visible waiting tile of column 1 to 8, when a mouse button is released over it. Its letter lands
    /// lowest; while the column has room, the waiting tiles beside it follow, first those to the left, then those to
    /// the right, up to the first gap in the drop row. A full column refuses with a sound. Refills the drop row.
    void dropIntoColumn(int col);

    /// The column of the drop in progress, or 0: a front end shows a guide line below it.
    [[nodiscard]] int guideColumn() const { return guideColumn_; }

private:
    [[nodiscard]] std::vector<int> collect(int col, int wanted) const;
    void animateWaitingTileDown(BoxControl& waiting, int top);
    void slideWaitingTileOver(BoxControl& waiting, int left);
    void land(BoxControl& waiting, int row, int col);

    Game& game_;
    int guideColumn_ = 0;
};

} // namespace lexigrove
