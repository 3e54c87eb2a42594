#pragma once

#include "controls/box_control.hpp"
#include "controls/multiplier.hpp"
#include "game/arrangement.hpp"
#include "game/neighbours.hpp"

#include <array>
#include <string>
#include <vector>

namespace lexigrove
{

/// Waiting tiles and board share one coordinate system, in units (see controls/geometry.hpp).
namespace layout
{
constexpr int cellSize = 600; ///< template tile 0: forty pixels, so that the drop row fits above the board
constexpr int boardLeft = 75;
constexpr int boardTop = 750;
constexpr int dropRowTop = 75;
} // namespace layout

/// The picture box `Picture2` with its `DummyTile`s: the part of a column that slides down. Visible only during the
/// animation.
struct SlidingPanel {
    bool Visible = false;
    int Left = 0;
    int Top = 0;
    int Height = 0; ///< a cell's height for each dummy tile shown
    std::array<BoxControl, 8> DummyTile;
};

/// The game's letter tiles. Tiles never move, only letters do. A hidden tile is an empty cell.
///
/// Tiles are numbered 1 to 64 column by column: (col - 1) * 8 + row. Number 0 is the hidden template that gives the
/// size of a cell. In the Staggered arrangement the odd columns have seven rows, so tiles 8, 24, 40 and 56 are out of
/// play.
class Board
{
public:
    static constexpr int tileCount = 64;
    static constexpr int columns = 8;
    static constexpr int rows = 8;

    Board();

    /// Every tile control yields to this screen at the end of a redraw; null for none.
    void setScreen(Screen* screen);

    /// Lay out board: places and shows the tiles and the drop row of the arrangement.
    void layOut(Arrangement arrangement);

    /// Hides every tile and every waiting tile.
    void clear();

    [[nodiscard]] Arrangement arrangement() const { return arrangement_; }

    /// 8, or 7 for an odd column in the Staggered arrangement.
    [[nodiscard]] static constexpr int columnHeight(Arrangement arrangement, int col)
    {
        return arrangement == Arrangement::Staggered && col % 2 == 1 ? rows - 1 : rows;
    }
    [[nodiscard]] int columnHeight(int col) const { return columnHeight(arrangement_, col); }

    /// Whether the arrangement uses the tile.
    [[nodiscard]] bool isInPlay(int tile) const { return row(tile) <= columnHeight(col(tile)); }

    // Tiles 1 to 64, rows and columns 1 to 8.

    [[nodiscard]] static constexpr int Grid(int row, int col) { return (col - 1) * rows + row; }
    [[nodiscard]] static constexpr int row(int tile) { return (tile - 1) % rows + 1; }
    [[nodiscard]] static constexpr int col(int tile) { return (tile - 1) / rows + 1; }

    // Where a cell is, in units. Waiting tiles have the left of their column.

    [[nodiscard]] static constexpr int columnLeft(int col) { return layout::boardLeft + (col - 1) * layout::cellSize; }
    [[nodiscard]] int cellTop(int row, int col) const;

    /// The visible tiles that touch a tile, in the order of the arrangement's table.
    [[nodiscard]] NeighbourList neighbours(int tile) const;
    [[nodiscard]] std::string Neibors(int tile) const { return neighbours(tile).text(); }

    [[nodiscard]] BoxControl& tile(int number) { return Tiles[index(number)]; }
    [[nodiscard]] const BoxControl& tile(int number) const { return Tiles[index(number)]; }
    /// How many pushes of its column take a tile out.
    [[nodiscard]] int pushesLeft(int tile) const { return columnHeight(col(tile)) - row(tile) + 1; }

    /// The bonus tiles and red tiles that are shown, in the order of their numbers.
    [[nodiscard]] std::vector<int> specialTiles() const;

    [[nodiscard]] BoxControl& tile(int row, int col) { return tile(Grid(row, col)); }
    [[nodiscard]] const BoxControl& tile(int row, int col) const { return tile(Grid(row, col)); }
    /// The waiting tile over a column.
    [[nodiscard]] BoxControl& waiting(int col) { return TopDrop[index(col)]; }
    [[nodiscard]] const BoxControl& waiting(int col) const { return TopDrop[index(col)]; }
    [[nodiscard]] bool isVisible(int number) const { return tile(number).Visible(); }
    [[nodiscard]] const std::string& letter(int number) const { return tile(number).Caption(); }
    [[nodiscard]] Colour maskcolor(int number) const { return tile(number).MaskColor(); }

    /// The number of empty cells in a column, which are always at the top.
    [[nodiscard]] int emptyCells(int col) const;

    /// The developer description of a tile.
    [[nodiscard]] std::string description(int tile) const;

    /// The hover caption of a tile.
    [[nodiscard]] std::string hoverCaption(int tile) const;

    std::array<BoxControl, tileCount + 1> Tiles;
    std::array<BoxControl, columns + 1> TopDrop; ///< waiting tiles over columns 1 to 8; 0 is the hidden template
    SlidingPanel Picture2;

private:
    static constexpr std::size_t index(int number) { return static_cast<std::size_t>(number); }

    Arrangement arrangement_ = Arrangement::Square;
    NeighbourTable touching_{}; ///< for the arrangement, visible or not
};

} // namespace lexigrove
