#include "ui/board/board_painter.hpp"

#include "settings/readable_colours.hpp"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

namespace lexigrove
{

namespace
{

// As fractions of a cell.
constexpr double slotRadius = 0.08;
constexpr double numberShare = 0.2;
constexpr double hintShare = 0.28;
constexpr double glowShare = 0.06; // of a cell, the frame of one that shines

/// A control as it looks while it is pressed.
BoxControl heldDown(BoxControl control)
{
    control.KeepDown();
    return control;
}

} // namespace

QRectF BoardPainter::waitingPlace(int col) const
{
    return shape_.tilePlace(board_.waiting(col), Board::columnLeft(col), layout::dropRowTop);
}

QRectF BoardPainter::placeOf(const BoardSpot& spot) const
{
    if (spot.tile == 0)
        return waitingPlace(spot.col);
    const int col = Board::col(spot.tile);
    return shape_.tilePlace(board_.tile(spot.tile), Board::columnLeft(col), board_.cellTop(Board::row(spot.tile), col));
}

QRectF BoardPainter::surroundings(int tile) const
{
    const double margin = shape_.cell() * glowShare + 1;
    return placeOf({tile, 0}).adjusted(-margin, -margin, margin, margin);
}

void BoardPainter::paint(QPainter& painter, const BoardMarks& marks, const QRectF& dirty) const
{
    paintBackground(painter, marks, dirty);
    paintTiles(painter, marks, dirty);
    for (int col = 1; col <= Board::columns; ++col) {
        const BoxControl& waiting = board_.waiting(col);
        const QRectF place = shape_.tilePlace(waiting);
        if (!waiting.Visible() || !place.intersects(dirty))
            continue;
        tiles_.paintFace(painter, marks.pressed.col == col ? heldDown(waiting) : waiting, place,
                         marks.lifted.col == col);
        tiles_.paintLetter(painter, waiting, place);
    }
    paintGlows(painter, marks);
    paintPanel(painter);
    if (marks.numbersColumns)
        paintNumbers(painter, marks.threatened);
    if (!marks.hint.isEmpty())
        paintHint(painter, marks.hint);
    if (marks.cursor != BoardSpot{})
        paintCursor(painter, placeOf(marks.cursor));
}

/// The keys that let the letters drop. Over a column that may be pushed down in a moment stands an arrow, too.
void BoardPainter::paintNumbers(QPainter& painter, unsigned threatened) const
{
    for (int col = 1; col <= Board::columns; ++col) {
        const QRectF waiting = waitingPlace(col);
        const QRectF place(waiting.left(), 0, waiting.width(), waiting.top());
        const bool threat = (threatened & (1U << col)) != 0;
        painter.setFont(Theme::fontOfSize(shape_.cell() * numberShare, threat));
        painter.setPen(toQColor(threat ? theme_.colours().accentText : theme_.colours().quietText));
        if (threat)
            painter.fillRect(place, toQColor(theme_.colours().accent));
        painter.drawText(place, Qt::AlignCenter, threat ? QString("\u25BC %1 \u25BC").arg(col) : QString::number(col));
    }
}

void BoardPainter::paintGlows(QPainter& painter, const BoardMarks& marks) const
{
    if (marks.glowing <= 0)
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const double radius = shape_.cell() * slotRadius;
    for (const Glow& glow : marks.glows) {
        QColor colour = toQColor(glow.colour);
        colour.setAlphaF(static_cast<float>(marks.glowing));
        painter.setPen(QPen(colour, shape_.cell() * glowShare));
        colour.setAlphaF(static_cast<float>(0.4 * marks.glowing)); // the letter below can be read
        painter.setBrush(colour);
        painter.drawRoundedRect(placeOf({glow.tile, 0}), radius, radius);
    }
    painter.restore();
}

void BoardPainter::paintHint(QPainter& painter, const QString& hint) const
{
    const QRectF place = shape_.hintPlace();
    const double wanted = std::min(15.0 * Theme::textScale(), shape_.cell() * hintShare);
    const double width = QFontMetricsF(Theme::fontOfSize(wanted, true)).horizontalAdvance(hint) + 2 * Theme::gap;
    painter.setFont(Theme::fontOfSize(std::min(wanted, wanted * place.width() / width), true));
    const QRectF text = painter.boundingRect(place, Qt::AlignCenter, hint);
    const QRectF bubble = text.adjusted(-Theme::gap, -2, Theme::gap, 2).intersected(place);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(toQColor(theme_.colours().accent));
    painter.drawRoundedRect(bubble, bubble.height() / 2, bubble.height() / 2);
    painter.setPen(toQColor(theme_.colours().accentText));
    painter.drawText(place, Qt::AlignCenter, hint);
    painter.restore();
}

/// A ring around the cell, with a gap, so that it is seen on any face.
void BoardPainter::paintCursor(QPainter& painter, const QRectF& place) const
{
    constexpr double ring = 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    const double radius = shape_.cell() * slotRadius;
    painter.setPen(QPen(toQColor(theme_.colours().background), ring));
    painter.drawRoundedRect(place.adjusted(ring / 2, ring / 2, -ring / 2, -ring / 2), radius, radius);
    painter.setPen(QPen(toQColor(theme_.colours().text), ring));
    painter.drawRoundedRect(place.adjusted(-ring / 2, -ring / 2, ring / 2, ring / 2), radius, radius);
    painter.restore();
}

/// The strip of the drop row, what can drop, and the empty cells.
void BoardPainter::paintBackground(QPainter& painter, const BoardMarks& marks, const QRectF& dirty) const
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
    if (marks.showsSlots) {
        for (int col = 1; col <= Board::columns; ++col) {
            paintSlot(waitingPlace(col), mixed(colours.strip, colours.background, 0.5));
            for (int row = 1; row <= board_.columnHeight(col); ++row) {
                const BoxControl& tile = board_.tile(row, col);
                if (!tile.Visible())
                    paintSlot(shape_.tilePlace(tile, Board::columnLeft(col), board_.cellTop(row, col)), colours.strip);
            }
        }
    }
    paintDropMarks(painter, marks);
    painter.setRenderHint(QPainter::Antialiasing, false);
}

/// A little arrow under each letter that can drop; during a drop the guide line in its place.
void BoardPainter::paintDropMarks(QPainter& painter, const BoardMarks& marks) const
{
    painter.setBrush(toQColor(theme_.colours().accent));
    const double below = shape_.strip().bottom();
    if (marks.guideColumn != 0) {
        const QRectF column = waitingPlace(marks.guideColumn);
        const double height = std::max(2.0, shape_.cell() * 0.06);
        painter.drawRoundedRect(QRectF(column.left(), below - height / 2, column.width(), height), height / 2,
                                height / 2);
        return;
    }
    const double size = shape_.cell() * 0.09;
    for (int col = 1; col <= Board::columns; ++col) {
        if ((marks.openColumns & (1U << col)) == 0)
            continue;
        const QPointF top(waitingPlace(col).center().x() + 0.5, below + size / 2);
        painter.drawPolygon(QPolygonF{{top - QPointF(size, 0), top + QPointF(size, 0), top + QPointF(0, size)}});
    }
}

/// Faces, then the links, then the letters: links lie behind letters.
void BoardPainter::paintTiles(QPainter& painter, const BoardMarks& marks, const QRectF& dirty) const
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
        const bool lifted = marks.lifted.tile == tile;
        if (marks.pressed.tile == tile)
            tiles_.paintFace(painter, heldDown(control), place, lifted);
        else
            tiles_.paintFace(painter, control, place, lifted);
    });
    paintLinks(painter, marks.path);
    forEachDirty([&](int tile, const QRectF& place) {
        tiles_.paintLetter(painter, board_.tile(tile), place);
        if (board_.maskcolor(tile) == multiplier::red && marks.redDistance == board_.pushesLeft(tile))
            tiles_.paintRedDistance(painter, board_.tile(tile), place, marks.redDistance);
        if (tile == marks.swapTile)
            tiles_.paintSwapMark(painter, place);
    });
}

void BoardPainter::paintLinks(QPainter& painter, const std::vector<int>& path) const
{
    const auto placeOfTile = [this](int tile) { return shape_.tilePlace(board_.tile(tile)); };
    if (path.size() > 1)
        tiles_.paintStart(painter, placeOfTile(path.front()));
    for (std::size_t i = 1; i < path.size(); ++i)
        tiles_.paintLink(painter, placeOfTile(path[i - 1]), placeOfTile(path[i]));
}

void BoardPainter::paintPanel(QPainter& painter) const
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
