#include "ui/board/board_view.hpp"

#include "game/drop_row.hpp"
#include "game/game_state.hpp"
#include "game/letter_swap.hpp"
#include "game/selection.hpp"
#include "opponent/hints_form.hpp"
#include "ui/machine/mouse.hpp"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace lexigrove
{

BoardView::BoardView(GameFlow& flow, const Theme& theme, QWidget* parent)
    : QWidget(parent), flow_(flow), theme_(theme), board_(flow.view().board), painter_(board_, shape_, theme)
{
    setObjectName("Picture1");
    setAccessibleName(tr("Board"));
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus); // keys that it ignores go to the window
}

// ---- Places

void BoardView::resizeEvent(QResizeEvent* /*event*/)
{
    shape_.fit(size(), devicePixelRatioF());
}

QRect BoardView::tileRect(int tile) const
{
    return shape_.tilePlace(board_.tile(tile)).toAlignedRect();
}

QRect BoardView::dropRect(int col) const
{
    return painter_.waitingPlace(col).toAlignedRect();
}

int BoardView::tileAt(const QPointF& place) const
{
    for (int tile = 1; tile <= Board::tileCount; ++tile) {
        if (board_.isVisible(tile) && shape_.tilePlace(board_.tile(tile)).contains(place))
            return tile;
    }
    return 0;
}

int BoardView::columnAt(const QPointF& place) const
{
    for (int col = 1; col <= Board::columns; ++col) {
        if (QRectF(dropRect(col)).contains(place))
            return col;
    }
    return 0;
}

BoardSpot BoardView::spotAt(const QPointF& place) const
{
    if (const int tile = tileAt(place); tile != 0)
        return {tile, 0};
    return {0, columnAt(place)};
}

QRectF BoardView::placeOf(const BoardSpot& spot) const
{
    if (spot.tile != 0)
        return shape_.tilePlace(board_.tile(spot.tile));
    return spot.col != 0 ? QRectF(dropRect(spot.col)) : QRectF();
}

// ---- The models

BoardMarks BoardView::currentMarks() const
{
    BoardMarks marks;
    marks.swapTile = flow_.view().letterSwap.tile();
    marks.guideColumn = flow_.view().dropRow.guideColumn();
    for (int col = 1; flow_.inGame() && col <= Board::columns; ++col) {
        const bool waits = board_.waiting(col).Visible();
        if (waits && !board_.tile(1, col).Visible())
            marks.openColumns |= 1U << col;
    }
    const Selection& selection = flow_.view().selection;
    for (const int tile : selection.tiles()) {
        if (board_.isVisible(tile) && !board_.tile(tile).Tag().empty()) // not one that is just leaving the board
            marks.path.push_back(tile);
    }
    if (selection.isEmpty())
        marks.path = flow_.view().hints.shownPath();
    marks.showsSlots = flow_.inGame();
    return marks;
}

void BoardView::repaintIfChanged(const BoxControl& control, Shown& shown)
{
    if (control.revision() == shown.revision)
        return;
    const QRectF place = control.Visible() ? shape_.tilePlace(control) : QRectF();
    update(shown.place.united(place).toAlignedRect());
    shown = {control.revision(), place};
}

void BoardView::synchronise()
{
    for (int tile = 1; tile <= Board::tileCount; ++tile)
        repaintIfChanged(board_.tile(tile), shownTiles_[static_cast<std::size_t>(tile)]);
    for (int col = 1; col <= Board::columns; ++col)
        repaintIfChanged(board_.waiting(col), shownWaiting_[static_cast<std::size_t>(col)]);

    const SlidingPanel& panel = board_.Picture2;
    const QRectF place = panel.Visible ? shape_.place(panel.Left, panel.Top, layout::cellSize, panel.Height) : QRectF();
    if (place != shownPanel_) {
        update(shownPanel_.united(place).toAlignedRect());
        shownPanel_ = place;
    }
    if (BoardMarks marks = currentMarks(); marks != marks_) {
        marks_ = std::move(marks);
        update();
    }
}

bool BoardView::takesInput() const
{
    return flow_.inGame() && !flow_.isPaused() && !flow_.view().state.computerTurnInProgress;
}

// ---- The pointer

void BoardView::setSpot(BoardSpot& spot, BoardSpot value)
{
    if (spot == value)
        return;
    update(placeOf(spot).toAlignedRect());
    spot = value;
    update(placeOf(spot).toAlignedRect());
}

void BoardView::mousePressEvent(QMouseEvent* event)
{
    setSpot(pressed_, spotAt(event->position()));
}

void BoardView::mouseMoveEvent(QMouseEvent* event)
{
    const BoardSpot spot = spotAt(event->position());
    const bool another = spot != hovered_;
    setSpot(hovered_, spot);
    if (pressed_ != BoardSpot{} && event->buttons() == Qt::NoButton)
        setSpot(pressed_, {});
    if (another && spot.tile != 0)
        flow_.hoverTile(spot.tile);
}

void BoardView::leaveEvent(QEvent* /*event*/)
{
    setSpot(hovered_, {});
}

/// What counts is where the button is released.
void BoardView::mouseReleaseEvent(QMouseEvent* event)
{
    setSpot(pressed_, {});
    const BoardSpot spot = spotAt(event->position());
    if (spot.tile != 0)
        flow_.clickTile(spot.tile, mouseButton(event->button()), event->modifiers().testFlag(Qt::ShiftModifier));
    else if (spot.col != 0)
        flow_.drop(spot.col);
}

// ---- Painting

void BoardView::paintEvent(QPaintEvent* event)
{
    shape_.fit(size(), devicePixelRatioF()); // the window may have moved to another screen
    QPainter painter(this);
    const QRectF dirty = event->rect();
    BoardMarks marks = marks_;
    marks.lifted = takesInput() ? hovered_ : BoardSpot{};
    marks.pressed = pressed_;
    painter_.paint(painter, marks, dirty);
}

} // namespace lexigrove
