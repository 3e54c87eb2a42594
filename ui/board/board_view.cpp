#include "ui/board/board_view.hpp"

#include "game/drop_row.hpp"
#include "game/game_state.hpp"
#include "game/letter_swap.hpp"
#include "game/selection.hpp"
#include "opponent/hints_form.hpp"
#include "ui/machine/mouse.hpp"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QVariantAnimation>

#include <algorithm>
#include <map>

namespace lexigrove
{

namespace
{

constexpr int tileTime = 600; // milliseconds that a tile shines

} // namespace

BoardView::BoardView(GameFlow& flow, Host& host, QWidget* parent)
    : QWidget(parent),
      flow_(flow),
      theme_(host.theme),
      board_(flow.view().board),
      firstSteps_(flow, host.settings),
      shape_(BoardGeometry::numberRoom, firstSteps_.areLeft() ? BoardGeometry::hintRoom : 0),
      painter_(board_, shape_, host.theme),
      cursor_(board_),
      access_(*this, flow),
      shining_(new QVariantAnimation(this))
{
    setObjectName("Picture1");
    setAccessibleName(tr("Board"));
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus); // keys that it ignores go to the window
    shining_->setStartValue(1.0);
    shining_->setEndValue(0.0);
    connect(shining_, &QVariantAnimation::valueChanged, this, [this](const QVariant& brightness) {
        marks_.glowing = brightness.toDouble();
        for (const Glow& glow : marks_.glows)
            update(painter_.surroundings(glow.tile).toAlignedRect());
    });
    connect(&host, &Host::happened, this, [this](Moment moment, int place) {
        if (moment != Moment::Pushed)
            shine({{place, flow_.view().scheme.tileFace(board_.maskcolor(place))}}, tileTime);
    });
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
        return shape_.tilePlace(board_.tile(spot.tile)); // where it is now
    return spot.col != 0 ? QRectF(dropRect(spot.col)) : QRectF();
}

// ---- The models

BoardMarks BoardView::currentMarks()
{
    BoardMarks marks;
    marks.glows = marks_.glows; // which run by themselves
    marks.glowing = marks_.glowing;
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
    marks.numbersColumns = flow_.inGame();
    marks.redDistance = redDistance();
    marks.cursor = cursor();
    marks.hint = firstSteps_.next();
    marks.threatened = threatenedColumns();
    return marks;
}

void BoardView::setPushNear(bool near)
{
    pushNear_ = near;
    synchronise();
}

unsigned BoardView::threatenedColumns() const
{
    const GameState& state = flow_.view().state;
    unsigned columns = 0;
    if (!pushNear_ || !flow_.inGame() || state.redTileHold || state.computerGame)
        return columns;
    for (const int tile : board_.specialTiles())
        columns |= 1U << Board::col(tile);
    return columns;
}

/// The cells of a word that was made shine, a long one's for longer, and a red tile that was used goes out.
void BoardView::lookForNewWord()
{
    const GameState& state = flow_.view().state;
    if (state.begun == begun_ && state.turns.size() > turns_) {
        const Turn& turn = state.turns.back();
        std::vector<Glow> glows;
        for (const int tile : turn.path) {
            const bool red = turn.before.cells[static_cast<std::size_t>(tile)].multiplier == multiplier::red;
            glows.push_back({tile, red ? flow_.view().scheme.tileFace(multiplier::red) : theme_.colours().accent});
        }
        shine(std::move(glows), tileTime / 5 * static_cast<int>(turn.path.size()));
    }
    begun_ = state.begun;
    turns_ = state.turns.size();
}

/// Joins what shines already. On a desktop without animations nothing does.
void BoardView::shine(std::vector<Glow> glows, int milliseconds)
{
    if (!Theme::showsAnimations())
        return;
    if (shining_->state() == QAbstractAnimation::Running)
        glows.insert(glows.end(), marks_.glows.begin(), marks_.glows.end());
    marks_.glows = std::move(glows);
    shining_->stop();
    shining_->setDuration(std::max(milliseconds, tileTime / 2));
    shining_->start();
}

int BoardView::redDistance() const
{
    int nearest = 0;
    for (int tile = 1; tile <= Board::tileCount; ++tile) {
        if (board_.isVisible(tile) && board_.maskcolor(tile) == multiplier::red)
            nearest = nearest == 0 ? board_.pushesLeft(tile) : std::min(nearest, board_.pushesLeft(tile));
    }
    return nearest;
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
    lookForNewWord();
    showMarks(currentMarks());
    access_.synchronise();
}

/// The chain of a word changes with every letter: then only its tiles are painted again.
void BoardView::showMarks(BoardMarks marks)
{
    if (marks.path != marks_.path) {
        marks_.path.insert(marks_.path.end(), marks.path.begin(), marks.path.end());
        for (const int tile : marks_.path)
            update(painter_.surroundings(tile).toAlignedRect());
        marks_.path = marks.path;
    }
    if (marks != marks_)
        update();
    marks_ = std::move(marks);
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
    cursorShown_ = false;
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
    press(spotAt(event->position()), mouseButton(event->button()), event->modifiers().testFlag(Qt::ShiftModifier));
}

void BoardView::press(const BoardSpot& spot, MouseButton button, bool shift)
{
    if (spot.tile != 0)
        flow_.clickTile(spot.tile, button, shift);
    else if (spot.col != 0)
        flow_.drop(spot.col);
}

// ---- The keyboard

void BoardView::moveCursor(const BoardSpot& spot)
{
    cursorShown_ = true;
    cursor_.moveTo(spot);
    if (spot.tile != 0)
        flow_.hoverTile(spot.tile); // the status line describes it
    synchronise();
    access_.reportFocus(spot);
}

/// The arrow keys move the cursor, and the keys at the corners of the number pad slantwise. Other keys are the
/// window's.
void BoardView::keyPressEvent(QKeyEvent* event)
{
    using enum BoardCursor::Step;
    static const std::map<int, BoardCursor::Step> steps{
        {Qt::Key_Up, Up},       {Qt::Key_Down, Down},      {Qt::Key_Left, Left},    {Qt::Key_Right, Right},
        {Qt::Key_Home, UpLeft}, {Qt::Key_PageUp, UpRight}, {Qt::Key_End, DownLeft}, {Qt::Key_PageDown, DownRight},
    };
    const auto step = steps.find(event->key());
    const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier);
    if (step != steps.end() && modifiers == Qt::NoModifier) {
        cursor_.move(step->second);
        moveCursor(cursor_.spot());
    } else if (event->key() == Qt::Key_Space && (modifiers & ~Qt::KeyboardModifiers(Qt::ShiftModifier)) == 0) {
        if (cursor() == BoardSpot{})
            moveCursor(cursor_.spot());
        else
            press(cursor(), MouseButton::Left, modifiers == Qt::ShiftModifier);
    } else {
        QWidget::keyPressEvent(event);
    }
}

void BoardView::focusInEvent(QFocusEvent* event)
{
    cursorShown_ = cursorShown_ || event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    synchronise();
}

void BoardView::focusOutEvent(QFocusEvent* /*event*/)
{
    synchronise();
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
