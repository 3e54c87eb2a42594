#include "ui/board/board_view.hpp"

#include "game/drop_row.hpp"
#include "game/game_state.hpp"
#include "game/letter_swap.hpp"
#include "game/selection.hpp"
#include "opponent/hints_form.hpp"
#include "settings/readable_colours.hpp"
#include "ui/machine/mouse.hpp"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace lexigrove
{

namespace
{

constexpr double slotRadius = 0.08; ///< of a cell

/// A control as it looks while it is pressed.
BoxControl heldDown(BoxControl control)
{
    control.KeepDown();
    return control;
}

} // namespace

BoardView::BoardView(GameFlow& flow, const Theme& theme, QWidget* parent)
    : QWidget(parent), flow_(flow), theme_(theme), board_(flow.view().board), tiles_(theme)
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
    const BoxControl& waiting = board_.waiting(col);
    return shape_.tilePlace(waiting, Board::columnLeft(col), layout::dropRowTop).toAlignedRect();
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

BoardView::Spot BoardView::spotAt(const QPointF& place) const
{
    if (const int tile = tileAt(place); tile != 0)
        return {tile, 0};
    return {0, columnAt(place)};
}

QRectF BoardView::placeOf(const Spot& spot) const
{
    if (spot.tile != 0)
        return shape_.tilePlace(board_.tile(spot.tile));
    return spot.col != 0 ? QRectF(dropRect(spot.col)) : QRectF();
}

// ---- The models

BoardView::Marks BoardView::currentMarks() const
{
    Marks marks{{}, flow_.view().letterSwap.tile(), flow_.view().dropRow.guideColumn(), 0};
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
    if (Marks marks = currentMarks(); marks != marks_) {
        marks_ = std::move(marks);
        update();
    }
}

bool BoardView::takesInput() const
{
    return flow_.inGame() && !flow_.isPaused() && !flow_.view().state.computerTurnInProgress;
}

// ---- The pointer

void BoardView::setSpot(Spot& spot, Spot value)
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
    const Spot spot = spotAt(event->position());
    const bool another = spot != hovered_;
    setSpot(hovered_, spot);
    if (pressed_ != Spot{} && event->buttons() == Qt::NoButton)
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
    const Spot spot = spotAt(event->position());
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
    paintBackground(painter, dirty);
    paintTiles(painter, dirty);
    for (int col = 1; col <= Board::columns; ++col) {
        const BoxControl& waiting = board_.waiting(col);
        if (waiting.Visible() && shape_.tilePlace(waiting).intersects(dirty))
            paintControl(painter, waiting, {0, col});
    }
    paintPanel(painter);
}

/// The strip of the drop row, what can drop, and the empty cells.
void BoardView::paintBackground(QPainter& painter, const QRectF& dirty) const
{
    const WindowColours& colours = theme_.colours();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(toQColor(colours.strip));
    painter.drawRoundedRect(shape_.strip(), Theme::grid, Theme::grid);

    const double radius = shape_.cell() * slotRadius;
    const auto paintSlot = [&](const QRectF& place, Colour colour) {
        if (!place.intersects(dirty))
            return;
        painter.setBrush(toQColor(colour));
        painter.drawRoundedRect(place, radius, radius);
    };
    if (flow_.inGame()) {
        for (int col = 1; col <= Board::columns; ++col) {
            paintSlot(dropRect(col), mixed(colours.strip, colours.background, 0.5));
            for (int row = 1; row <= board_.columnHeight(col); ++row) {
                const BoxControl& tile = board_.tile(row, col);
                if (!tile.Visible())
                    paintSlot(shape_.tilePlace(tile, Board::columnLeft(col), board_.cellTop(row, col)), colours.strip);
            }
        }
    }
    paintDropMarks(painter);
    painter.setRenderHint(QPainter::Antialiasing, false);
}

/// A little arrow under each letter that can drop or, during a drop, the guide line.
void BoardView::paintDropMarks(QPainter& painter) const
{
    painter.setBrush(toQColor(theme_.colours().accent));
    const double below = shape_.strip().bottom();
    if (marks_.guideColumn != 0) {
        const QRectF column = dropRect(marks_.guideColumn);
        const double height = std::max(2.0, shape_.cell() * 0.06);
        painter.drawRoundedRect(QRectF(column.left(), below - height / 2, column.width(), height), height / 2,
                                height / 2);
        return;
    }
    const double size = shape_.cell() * 0.09;
    for (int col = 1; col <= Board::columns; ++col) {
        if ((marks_.openColumns & (1U << col)) == 0)
            continue;
        const QPointF top(dropRect(col).center().x() + 0.5, below + size / 2);
        painter.drawPolygon(QPolygonF{{top - QPointF(size, 0), top + QPointF(size, 0), top + QPointF(0, size)}});
    }
}

/// Faces, then the links, then the letters: links lie behind letters.
void BoardView::paintTiles(QPainter& painter, const QRectF& dirty) const
{
    const auto forEachDirty = [&](auto paint) {
        for (int tile = 1; tile <= Board::tileCount; ++tile) {
            const QRectF place = shape_.tilePlace(board_.tile(tile));
            if (board_.isVisible(tile) && place.intersects(dirty))
                paint(tile, place);
        }
    };
    forEachDirty([&](int tile, const QRectF& place) {
        const BoxControl& control = board_.tile(tile);
        const bool lifted = hovered_.tile == tile && takesInput();
        if (pressed_.tile == tile)
            tiles_.paintFace(painter, heldDown(control), place, lifted);
        else
            tiles_.paintFace(painter, control, place, lifted);
    });
    paintLinks(painter);
    forEachDirty([&](int tile, const QRectF& place) {
        tiles_.paintLetter(painter, board_.tile(tile), place);
        if (tile == marks_.swapTile)
            tiles_.paintSwapMark(painter, place);
    });
}

void BoardView::paintLinks(QPainter& painter) const
{
    const auto placeOfTile = [this](int tile) { return shape_.tilePlace(board_.tile(tile)); };
    if (marks_.path.size() > 1)
        tiles_.paintStart(painter, placeOfTile(marks_.path.front()));
    for (std::size_t i = 1; i < marks_.path.size(); ++i)
        tiles_.paintLink(painter, placeOfTile(marks_.path[i - 1]), placeOfTile(marks_.path[i]));
}

/// A waiting tile or a sliding one.
void BoardView::paintControl(QPainter& painter, const BoxControl& control, Spot spot) const
{
    const QRectF place = shape_.tilePlace(control);
    const bool lifted = spot != Spot{} && spot == hovered_ && takesInput();
    tiles_.paintFace(painter, spot != Spot{} && spot == pressed_ ? heldDown(control) : control, place, lifted);
    tiles_.paintLetter(painter, control, place);
}

void BoardView::paintPanel(QPainter& painter) const
{
    const SlidingPanel& panel = board_.Picture2;
    if (!panel.Visible)
        return;
    const int count = panel.Height / layout::cellSize;
    for (int j = 0; j < count; ++j) {
        const BoxControl& dummy = panel.DummyTile[static_cast<std::size_t>(j)];
        const QRectF place = shape_.tilePlace(dummy, panel.Left, panel.Top + j * layout::cellSize);
        tiles_.paintFace(painter, dummy, place);
        tiles_.paintLetter(painter, dummy, place);
    }
}

} // namespace lexigrove
