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

    /// A mouse button released over the waiting tile of column 1 to 8, which is visible. Its letter lands lowest; the
    /// waiting tiles beside it follow while the column has room, first those on the left, then those on the right, up
    /// to the first gap in the drop row. A full column refuses with a sound. Refills the drop row.
    void dropIntoColumn(int col);

    /// The column over which a drop is under way, 0 when none is: a front end shows a guide line under it.
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
