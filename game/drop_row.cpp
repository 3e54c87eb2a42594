#include "game/drop_row.hpp"

#include "game/game.hpp"

namespace lexigrove
{

namespace
{

/// Restores the guide when the drop ends, even if the player leaves in the middle of it.
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
    if (game_.board.tile(1, col).Visible()) {
        game_.sounds.play(cue::error);
        return;
    }
    const GuideLine guide(guideColumn_, col);
    const int empty = game_.board.emptyCells(col);
    const std::vector<int> collected = collect(col, empty);
    const int left = game_.board.waiting(col).Left();

    // From the lowest empty cell upward; the next waiting tile slides over the column as soon as the previous one has
    // landed.
    int row = empty;
    for (std::size_t i = 0; i < collected.size() && row >= 1; ++i, --row) {
        BoxControl& waiting = game_.board.waiting(collected[i]);
        land(waiting, row, col);
        if (i + 1 < collected.size())
            slideWaitingTileOver(game_.board.waiting(collected[i + 1]), left);
    }
    game_.supply.refillTopRow();
}

/// The waiting tiles that drop, in order: at most `wanted`, a contiguous run of the drop row.
std::vector<int> DropRow::collect(int col, int wanted) const
{
    std::vector<int> collected{col};
    const auto take = [&](int j) {
        if (static_cast<int>(collected.size()) >= wanted || !game_.board.waiting(j).Visible())
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
    BoxControl& target = game_.board.tile(row, col);
    animateWaitingTileDown(waiting, game_.board.cellTop(row, col));
    game_.sounds.play(cue::swap);
    target.Caption(waiting.Caption());
    target.Move(Board::columnLeft(col), game_.board.cellTop(row, col), layout::cellSize, layout::cellSize);
    target.MaskColor(multiplier::plain);
    game_.look.showNormal(target);
    target.Visible(true);
    waiting.Visible(false);
}

/// A falling tile accelerates: the distance grows with the square of the steps.
void DropRow::animateWaitingTileDown(BoxControl& waiting, int top)
{
    const int start = waiting.Top();
    const int steps = 8 + (top - start) / layout::cellSize;
    for (int i = 1; i <= steps; ++i) {
        waiting.Top(start + (top - start) * i * i / (steps * steps));
        game_.ports.screen.animationStep(game_.options.settings.dropDelay);
    }
}

void DropRow::slideWaitingTileOver(BoxControl& waiting, int left)
{
    constexpr int steps = 8;
    const int start = waiting.Left();
    for (int i = 1; i <= steps; ++i) {
        waiting.Left(start + (left - start) * i / steps);
        game_.ports.screen.animationStep(game_.options.settings.dropDelay);
    }
}

} // namespace lexigrove
