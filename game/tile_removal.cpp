#include "game/tile_removal.hpp"

#include "controls/geometry.hpp"
#include "game/game.hpp"

#include <algorithm>
#include <vector>

namespace lexigrove
{

void TileRemoval::removePathTiles()
{
    std::vector<int> list = game_.selection.tiles(); // `List1`
    std::sort(list.begin(), list.end());

    // From the top down within a column: moving a column does not change the cells below, so a lower tile of the path
    // still holds its own letter when its turn comes.
    for (const int tile : list) {
        moveColumnDown(Board::row(tile), Board::col(tile));
        game_.sounds.play(cue::removal);
    }
}

void TileRemoval::moveColumnDown(int row, int col)
{
    int empty = 0;
    for (int r = 1; r <= row; ++r) {
        BoxControl& tile = game_.board.tile(r, col);
        empty += tile.Visible() ? 0 : 1;
        tile.Visible(false);
    }
    const int first = empty + 1; // the row just below the empty top cells

    const bool lettersAbove = row - 1 - empty >= 1;
    if (lettersAbove && game_.options.animates())
        animateColumn(first, row, col);

    const BoardLock lock(game_.ports.screen);
    for (int r = row; r > first; --r) {
        BoxControl& destination = game_.board.tile(r, col);
        const BoxControl& source = game_.board.tile(r - 1, col);
        destination.Tag("");
        destination.Caption(source.Caption());
        destination.MaskColor(source.MaskColor());
        game_.look.showNormal(destination);
        destination.Visible(true);
    }
    BoxControl& emptied = game_.board.tile(std::min(first, row), col);
    emptied.MaskColor(multiplier::plain);
    game_.look.showNormal(emptied);
}

/// Shows the letters of the rows from `firstRow` to the one above `row` sliding down by one cell.
void TileRemoval::animateColumn(int firstRow, int row, int col)
{
    // In pixels at the design resolution.
    constexpr int step = 2;
    constexpr int cellHeight = layout::cellSize / unitsPerPixel;

    SlidingPanel& panel = game_.board.Picture2;
    const int count = row - firstRow;
    for (int j = 0; j < static_cast<int>(panel.DummyTile.size()); ++j) {
        BoxControl& dummy = panel.DummyTile[static_cast<std::size_t>(j)];
        dummy.Visible(j < count);
        if (j < count) {
            const BoxControl& tile = game_.board.tile(firstRow + j, col);
            dummy.Caption(tile.Caption());
            dummy.MaskColor(tile.MaskColor());
            game_.look.showNormal(dummy);
        }
    }
    panel.Left = game_.board.tile(row, col).Left();
    panel.Top = game_.board.cellTop(firstRow, col);
    panel.Height = count * layout::cellSize;
    panel.Visible = true;
    for (int k = 0; k <= cellHeight; k += step) {
        panel.Top += step * unitsPerPixel;
        game_.ports.screen.animationStep(game_.options.settings.dropDelay);
    }
    panel.Visible = false;
}

} // namespace lexigrove
