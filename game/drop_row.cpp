#include "game/drop_row.hpp"

namespace lexigrove
{

namespace
{

/// Restores the guide when the drop ends, also when the player leaves in the middle of it.
class GuideLine
{
public:
    GuideLine(int& column, int col) : column_(column) { column_ = col; }
    ~GuideLine() { column_ = 0; }
    GuideLine(const GuideLine&) = delete;
    GuideLine& operator=(const GuideLine&) = delete;

private:
    int& column_;
};

} // namespace

void DropRow::dropIntoColumn(int col)
{
    if (board_.tile(1, col).Visible()) {
        sounds_.play(cue::error);
        return;
    }
    const GuideLine guide(guideColumn_, col);
    const int empty = board_.emptyCells(col);
    const std::vector<int> collected = collect(col, empty);
    const int left = board_.waiting(col).Left();

    // From the lowest empty cell upward; the next waiting tile slides over the column as soon as the one before has
    // landed.
    int row = empty;
    for (std::size_t i = 0; i < collected.size() && row >= 1; ++i, --row) {
        BoxControl& waiting = board_.waiting(collected[i]);
        land(waiting, row, col);
        if (i + 1 < collected.size())
            slideWaitingTileOver(board_.waiting(collected[i + 1]), left);
    }
    supply_.refillTopRow();
}

/// The waiting tiles that drop, in their order: at most `wanted`, a contiguous run of the drop row.
std::vector<int> DropRow::collect(int col, int wanted) const
{
    std::vector<int> collected{col};
    const auto take = [&](int j) {
        if (static_cast<int>(collected.size()) >= wanted || !board_.waiting(j).Visible())
            return false;
        collected.push_back(j);
        return true;
    };
    for (int j = col - 1; j >= 1 && take(j); --j) {
    }
    for (int j = col + 1; j <= Board::columns && take(j); ++j) {
    }
    return collected;
}

void DropRow::land(BoxControl& waiting, int row, int col)
{
    BoxControl& target = board_.tile(row, col);
    animateWaitingTileDown(waiting, board_.cellTop(row, col));
    sounds_.play(cue::swap);
    target.Caption(waiting.Caption());
    target.Move(Board::columnLeft(col), board_.cellTop(row, col), layout::cellSize, layout::cellSize);
    target.Tag("");
    target.MaskColor(multiplier::plain);
    look_.showNormal(target);
    target.Visible(true);
    waiting.Visible(false);
}

/// A falling tile gathers speed: the way grows with the square of the steps.
void DropRow::animateWaitingTileDown(BoxControl& waiting, int top)
{
    const int start = waiting.Top();
    const int steps = 8 + (top - start) / layout::cellSize;
    for (int i = 1; i <= steps; ++i) {
        waiting.Top(start + (top - start) * i * i / (steps * steps));
        screen_.animationStep(options_.settings.dropDelay);
    }
}

void DropRow::slideWaitingTileOver(BoxControl& waiting, int left)
{
    constexpr int steps = 8;
    const int start = waiting.Left();
    for (int i = 1; i <= steps; ++i) {
        waiting.Left(start + (left - start) * i / steps);
        screen_.animationStep(options_.settings.dropDelay);
    }
}

} // namespace lexigrove
