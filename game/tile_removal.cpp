#include "game/tile_removal.hpp"

#include "controls/geometry.hpp"

#include <algorithm>
#include <vector>

namespace lexigrove
{

void TileRemoval::removePathTiles()
{
    std::vector<int> list = selection_.tiles(); // `List1`
    std::sort(list.begin(), list.end());

    // From the top down within a column: a column move leaves the cells below it as they are, so that a lower tile of
    // the path still holds its own letter when its turn comes.
    for (const int tile : list) {
        if (Board::row(tile) == 1)
            emptyCell(board_.tile(tile));
        else
            moveColumnDown(Board::row(tile), Board::col(tile));
        sounds_.play(cue::removal);
    }
}

void TileRemoval::moveColumnDown(int row, int col)
{
    BoxControl& removed = board_.tile(row, col);
    removed.MaskColor(multiplier::plain);
    look_.showNormal(removed);

    int empty = 0;
    for (int r = 1; r <= row; ++r) {
        BoxControl& tile = board_.tile(r, col);
        empty += tile.Visible() ? 0 : 1;
        tile.Visible(false);
    }
    const int first = empty + 1; // the row just below the empty top cells

    const bool lettersAbove = row - 1 - empty >= 1;
    if (lettersAbove && options_.animates())
        animateColumn(first, row, col);

    const BoardLock lock(screen_);
    for (int r = row; r > first; --r) {
        BoxControl& destination = board_.tile(r, col);
        const BoxControl& source = board_.tile(r - 1, col);
        destination.Tag("");
        destination.Caption(source.Caption());
        destination.MaskColor(source.MaskColor());
        look_.showNormal(destination);
        destination.Visible(true);
    }
    emptyCell(board_.tile(std::min(first, row), col));
}

/// Shows the letters of the rows from `firstRow` to the one above `row` sliding down by one cell.
void TileRemoval::animateColumn(int firstRow, int row, int col)
{
    // A step of the animation is two pixels of the design.
    constexpr int step = 2;
    constexpr int cellHeight = layout::cellSize / unitsPerPixel;

    SlidingPanel& panel = board_.Picture2;
    const int count = row - firstRow;
    for (int j = 0; j < static_cast<int>(panel.DummyTile.size()); ++j) {
        BoxControl& dummy = panel.DummyTile[static_cast<std::size_t>(j)];
        dummy.Visible(j < count);
        if (j < count) {
            const BoxControl& tile = board_.tile(firstRow + j, col);
            dummy.Caption(tile.Caption());
            dummy.MaskColor(tile.MaskColor());
            look_.showNormal(dummy);
        }
    }
    panel.Left = board_.tile(row, col).Left();
    panel.Top = board_.cellTop(firstRow, col);
    panel.Height = count * layout::cellSize;
    panel.Visible = true;
    for (int k = 0; k <= cellHeight; k += step) {
        panel.Top += step * unitsPerPixel;
        screen_.animationStep(options_.settings.dropDelay);
    }
    panel.Visible = false;
}

void TileRemoval::emptyCell(BoxControl& tile)
{
    tile.Visible(false);
    tile.MaskColor(multiplier::plain);
    look_.showNormal(tile);
}

} // namespace lexigrove
