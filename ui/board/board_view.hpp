#pragma once

#include "flow/game_flow.hpp"
#include "game/board.hpp"
#include "ui/board/board_access.hpp"
#include "ui/board/board_painter.hpp"
#include "ui/board/first_steps.hpp"
#include "ui/machine/host.hpp"

#include <QWidget>

#include <array>
#include <cstdint>
#include <string>
#include <vector>

class QVariantAnimation;

namespace lexigrove
{

/// The board panel `Picture1` with the drop row above it: the 64 `Tiles`, the waiting `TopDrop`, the links of the path,
/// the sliding panel `Picture2` and what falls. It shows the models and gives the flow
/// what was clicked.
class BoardView : public QWidget
{
    Q_OBJECT

public:
    BoardView(GameFlow& flow, Host& host, QWidget* parent = nullptr);

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

    /// Where the arrow keys have come to; none while the keyboard is not used on the board.
    [[nodiscard]] BoardSpot cursor() const { return cursorShown_ && hasFocus() ? cursor_.spot() : BoardSpot{}; }
    /// Shows the cursor at a spot.
    void moveCursor(const BoardSpot& spot);

    /// What a mouse button does when it is released there.
    void press(const BoardSpot& spot, MouseButton button, bool shift);

    /// The spot under a place, with its tile or its column; none beside them.
    [[nodiscard]] BoardSpot spotAt(const QPointF& place) const;
    /// Where a spot is, with or without a tile.
    [[nodiscard]] QRect cellRect(const BoardSpot& spot) const { return painter_.placeOf(spot).toAlignedRect(); }

    [[nodiscard]] const GameFlow& flow() const { return flow_; }

    /// Marks the columns that may be pushed down in a moment, or no longer does.
    void setPushNear(bool near);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    /// What was last painted of a control.
    struct Shown {
        std::uint32_t revision = 0;
        QRectF place;
    };

    [[nodiscard]] QRectF placeOf(const BoardSpot& spot) const;
    void setSpot(BoardSpot& spot, BoardSpot value);
    [[nodiscard]] int redDistance() const;
    [[nodiscard]] BoardMarks currentMarks();
    [[nodiscard]] unsigned threatenedColumns() const;
    void lookForNewWord();
    void shine(std::vector<Glow> glows, int milliseconds);
    void showMarks(BoardMarks marks);
    void repaintIfChanged(const BoxControl& control, Shown& shown);
    [[nodiscard]] bool takesInput() const;

    GameFlow& flow_;
    const Theme& theme_;
    const Board& board_;
    FirstSteps firstSteps_;
    BoardGeometry shape_;
    BoardPainter painter_;
    BoardCursor cursor_;
    bool cursorShown_ = false;
    BoardAccess access_;
    std::array<Shown, Board::tileCount + 1> shownTiles_;
    std::array<Shown, Board::columns + 1> shownWaiting_;
    QRectF shownPanel_;
    BoardMarks marks_;
    QVariantAnimation* shining_; ///< the moment in which cells glow, brightness 1 to 0
    std::string begun_;          ///< of the game that is known
    std::size_t turns_ = 0;
    bool pushNear_ = false;
    BoardSpot hovered_;
    BoardSpot pressed_;
};

} // namespace lexigrove
