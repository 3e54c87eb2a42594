#pragma once

#include "game/board.hpp"
#include "ui/board/board_cursor.hpp"
#include "ui/board/board_geometry.hpp"
#include "ui/board/tile_painter.hpp"

#include <QString>

#include <vector>

namespace lexigrove
{

/// A cell that shines for a moment.
struct Glow {
    int tile = 0;
    Colour colour = 0;
    bool operator==(const Glow&) const = default;
};

/// What is shown of a board beside its tiles.
struct BoardMarks {
    std::vector<int> path; ///< joined by links
    int swapTile = 0;
    int guideColumn = 0;
    unsigned openColumns = 0; ///< bit c: a letter waits over column c, and there is room for it
    bool showsSlots = false;  ///< of empty cells
    bool numbersColumns = false;
    unsigned threatened = 0; ///< bit c: column c may be pushed down in a moment
    int redDistance = 0; ///< pushes until the nearest red tile is out, 0 for none; it stands on each that is as near
    BoardSpot cursor;
    QString hint;     ///< between the drop row and the board
    BoardSpot lifted; ///< under the pointer
    BoardSpot pressed;
    std::vector<Glow> glows;
    double glowing = 0; ///< how bright they are, 1 to 0
    bool operator==(const BoardMarks&) const = default;
};

/// Paints a board with its drop row: the player's own, one of a past game, or one that is kept.
class BoardPainter
{
public:
    /// All outlive the painter.
    BoardPainter(const Board& board, const BoardGeometry& shape, const Theme& theme)
        : board_(board), shape_(shape), theme_(theme), tiles_(theme)
    {
    }

    void paint(QPainter& painter, const BoardMarks& marks, const QRectF& dirty) const;

    /// Where the waiting tile of a column is shown while it waits.
    [[nodiscard]] QRectF waitingPlace(int col) const;

    /// Where a spot is, with or without a tile.
    [[nodiscard]] QRectF placeOf(const BoardSpot& spot) const;

    /// A tile's place with all that its glow and its links paint beside it.
    [[nodiscard]] QRectF surroundings(int tile) const;

private:
    void paintBackground(QPainter& painter, const BoardMarks& marks, const QRectF& dirty) const;
    void paintDropMarks(QPainter& painter, const BoardMarks& marks) const;
    void paintTiles(QPainter& painter, const BoardMarks& marks, const QRectF& dirty) const;
    void paintLinks(QPainter& painter, const std::vector<int>& path) const;
    void paintPanel(QPainter& painter) const;
    void paintNumbers(QPainter& painter, unsigned threatened) const;
    void paintGlows(QPainter& painter, const BoardMarks& marks) const;
    void paintHint(QPainter& painter, const QString& hint) const;
    void paintCursor(QPainter& painter, const QRectF& place) const;

    const Board& board_;
    const BoardGeometry& shape_;
    const Theme& theme_;
    TilePainter tiles_;
};

} // namespace lexigrove
