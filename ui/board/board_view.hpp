#pragma once

#include "flow/game_flow.hpp"
#include "game/board.hpp"
#include "ui/board/board_geometry.hpp"
#include "ui/board/tile_painter.hpp"

#include <QWidget>

#include <array>
#include <cstdint>
#include <vector>

namespace lexigrove
{

/// The board panel `Picture1` with the drop row above it: the 64 `Tiles`, the waiting `TopDrop`, the links of the path,
/// the sliding panel `Picture2` and what falls. It shows the models and passes clicks on to the flow.
class BoardView : public QWidget
{
    Q_OBJECT

public:
    BoardView(GameFlow& flow, const Theme& theme, QWidget* parent = nullptr);

    /// Repaints whatever has changed.
    void synchronise();

    /// Where tile 1 to 64, or the waiting tile of column 1 to 8, is shown.
    [[nodiscard]] QRect tileRect(int tile) const;
    [[nodiscard]] QRect dropRect(int col) const;

    /// The visible tile under a place, 0 for none.
    [[nodiscard]] int tileAt(const QPointF& place) const;
    /// The column of the drop row under a place, with or without a waiting tile, 0 for none.
    [[nodiscard]] int columnAt(const QPointF& place) const;

    [[nodiscard]] const BoardGeometry& geometryOfBoard() const { return shape_; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    /// What was last painted of a control.
    struct Shown {
        std::uint32_t revision = 0;
        QRectF place;
    };

    /// A place under the pointer or pressed: a tile, or a column of the drop row.
    struct Spot {
        int tile = 0;
        int col = 0;
        bool operator==(const Spot&) const = default;
    };

    struct Marks {
        std::vector<int> path;
        int swapTile = 0;
        int guideColumn = 0;
        unsigned openColumns = 0; ///< bit c: a letter waits over column c, and there is room for it
        bool operator==(const Marks&) const = default;
    };

    [[nodiscard]] Spot spotAt(const QPointF& place) const;
    [[nodiscard]] QRectF placeOf(const Spot& spot) const;
    void setSpot(Spot& spot, Spot value);
    [[nodiscard]] Marks currentMarks() const;
    void repaintIfChanged(const BoxControl& control, Shown& shown);
    [[nodiscard]] bool takesInput() const;

    void paintBackground(QPainter& painter, const QRectF& dirty) const;
    void paintDropMarks(QPainter& painter) const;
    void paintTiles(QPainter& painter, const QRectF& dirty) const;
    void paintLinks(QPainter& painter) const;
    void paintPanel(QPainter& painter) const;
    void paintControl(QPainter& painter, const BoxControl& control, Spot spot) const;

    GameFlow& flow_;
    const Theme& theme_;
    const Board& board_;
    TilePainter tiles_;
    BoardGeometry shape_;
    std::array<Shown, Board::tileCount + 1> shownTiles_;
    std::array<Shown, Board::columns + 1> shownWaiting_;
    QRectF shownPanel_;
    Marks marks_;
    Spot hovered_;
    Spot pressed_;
};

} // namespace lexigrove
