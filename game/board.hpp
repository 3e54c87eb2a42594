#pragma once

#include "controls/box_control.hpp"
#include "game/neighbours.hpp"

#include <array>
#include <cstdint>
#include <string>

namespace lexigrove
{

enum class Arrangement { Square, Staggered };

/// What a tile's `MaskColor` means for the board: the word multiplier, or a red tile.
namespace multiplier
{
constexpr Colour plain = 1;
constexpr Colour highestBonus = 4; ///< 2, 3 and 4 are double, triple and quadruple word score
constexpr Colour red = 9;
} // namespace multiplier

/// Waiting tiles and board share one coordinate system, in units (see controls/geometry.hpp).
namespace layout
{
constexpr int cellSize = 600; ///< template tile 0: forty pixels, so that the drop row fits above the board
constexpr int boardLeft = 75;
constexpr int boardTop = 750;
constexpr int dropRowTop = 75;
} // namespace layout

/// The picture box `Picture2` with its `DummyTile`s: the part of a column that slides down. Hidden but for the
/// animation.
struct SlidingPanel {
    bool Visible = false;
    int Left = 0;
    int Top = 0;
    int Height = 0; ///< a cell's height for each dummy tile shown
    std::array<BoxControl, 8> DummyTile;
};

/// The letter tiles of the game in their places. Tiles never move: letters do. A hidden tile is an empty cell.
///
/// Tiles are numbered 1 to 64 column by column: (col - 1) * 8 + row. Number 0 is the hidden template that gives the
/// size of a cell. In the Staggered arrangement the odd columns have seven rows, so tiles 8, 24, 40 and 56 are out of
/// play.
class Board
{
public:
    static constexpr int tileCount = 64;
    static constexpr int columns = 8;

    Board();

    /// Every tile control lets events run on this screen at the end of a redraw; null for none.
    void setScreen(Screen* screen);

    /// Lay out board: places and shows the tiles and the drop row, fills `row`, `col` and `Grid`, computes the
    /// neighbour lists of the arrangement and keeps their saved copy.
    void layOut(Arrangement arrangement);

    /// Hides every tile and every waiting tile.
    void clear();

    /// Rebuilds every neighbour list from its saved copy with the tiles that are visible now, so that what touches on
    /// the screen can be clicked, and nothing else.
    void rebuildNeighbours();

    [[nodiscard]] Arrangement arrangement() const { return arrangement_; }

    /// 8, or 7 for an odd column of the Staggered arrangement.
    [[nodiscard]] int columnHeight(int col) const;

    [[nodiscard]] int Grid(int row, int col) const { return grid_[index(row)][index(col)]; }
    [[nodiscard]] int row(int tile) const { return row_[index(tile)]; }
    [[nodiscard]] int col(int tile) const { return col_[index(tile)]; }
    [[nodiscard]] int initialRow(int tile) const { return row_[index(tile)]; }
    [[nodiscard]] int initialCol(int tile) const { return col_[index(tile)]; }
    [[nodiscard]] int seq(int tile) const { return tile; }
    [[nodiscard]] int cellLeft(int row, int col) const { return cellLeft_[index(row)][index(col)]; }
    [[nodiscard]] int cellTop(int row, int col) const { return cellTop_[index(row)][index(col)]; }
    [[nodiscard]] int homeLeft(int col) const { return layout::boardLeft + (col - 1) * layout::cellSize; }

    [[nodiscard]] const NeighbourList& neighbours(int tile) const { return neighbours_[index(tile)]; }
    [[nodiscard]] const NeighbourList& savedNeighbours(int tile) const { return savedNeighbours_[index(tile)]; }
    [[nodiscard]] std::string Neibors(int tile) const { return neighbours(tile).text(); }

    [[nodiscard]] BoxControl& tile(int number) { return Tiles[index(number)]; }
    [[nodiscard]] const BoxControl& tile(int number) const { return Tiles[index(number)]; }
    [[nodiscard]] bool isVisible(int number) const { return tile(number).Visible(); }
    [[nodiscard]] const std::string& letter(int number) const { return tile(number).Caption(); }
    [[nodiscard]] Colour maskcolor(int number) const { return tile(number).MaskColor(); }

    /// A bonus tile: double, triple or quadruple.
    [[nodiscard]] bool isBonus(int number) const;

    /// The number of hidden tiles in the column's rows: its empty cells, which are always at the top.
    [[nodiscard]] int emptyCells(int col) const;

    /// The developer description.
    [[nodiscard]] std::string description(int tile) const;

    /// The hover caption.
    [[nodiscard]] std::string hoverCaption(int tile) const;

    std::array<BoxControl, tileCount + 1> Tiles;
    std::array<BoxControl, columns + 1> TopDrop; ///< waiting tiles over columns 1 to 8; 0 is the hidden template
    SlidingPanel Picture2;

private:
    static constexpr std::size_t index(int number) { return static_cast<std::size_t>(number); }

    Arrangement arrangement_ = Arrangement::Square;
    std::array<std::int16_t, tileCount + 1> row_{};
    std::array<std::int16_t, tileCount + 1> col_{};
    std::array<std::array<std::int16_t, 9>, 9> grid_{};
    std::array<std::array<int, 9>, 9> cellLeft_{};
    std::array<std::array<int, 9>, 9> cellTop_{};
    NeighbourTable neighbours_;
    NeighbourTable savedNeighbours_;
};

} // namespace lexigrove
