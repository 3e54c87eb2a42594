#include "ui/board/tile_painter.hpp"

#include "dictionary/letter_tables.hpp"
#include "game/board.hpp"
#include "settings/readable_colours.hpp"

#include <QFontMetricsF>
#include <QLineF>
#include <QPainter>
#include <QPolygonF>

#include <algorithm>

namespace lexigrove
{

namespace
{

// As fractions of the tile's width.
constexpr double letterShare = 0.52;
constexpr double smallShare = 0.21; ///< value and mark
constexpr double marginShare = 0.09;
constexpr double gapShare = 0.015; ///< between letter and value
constexpr double linkShare = 0.11;
constexpr double linkReach = 0.14; ///< of the tiles' distance, from the middle between them to each end

constexpr double roomForSmall = 1.85; // of the value's font, for value and mark together

} // namespace

void TilePainter::paintLetter(QPainter& painter, const BoxControl& tile, const QRectF& place) const
{
    if (tile.Caption().empty())
        return;
    const double size = place.width();
    const double margin = size * marginShare;
    const QRectF inside = place.adjusted(margin, margin * 0.85, -margin, -margin * 0.85);
    const QFont valueFont = Theme::fontOfSize(size * smallShare);
    const QFontMetricsF metrics(valueFont);
    const QString value = QString::number(letterValue(tile.Caption().front()));
    const double left = inside.right() - metrics.horizontalAdvance(value);
    const double gap = size * gapShare;
    const QRectF taken(QPointF(left - gap, inside.bottom() - metrics.capHeight() - gap), inside.bottomRight());
    // On the smallest tiles the letter makes room for the small texts, which have a smallest size.
    const double letterSize = std::min(size * letterShare, size - roomForSmall * valueFont.pixelSize());
    box_.paintCaption(painter, tile, place, letterSize, taken);

    painter.setPen(theme_.colour(tile.ForeColor()));
    painter.setFont(valueFont);
    painter.drawText(QPointF(left, inside.bottom()), value);

    const Colour mark = tile.MaskColor();
    if (multiplier::isBonus(mark)) {
        painter.setFont(Theme::fontOfSize(size * smallShare, true));
        painter.drawText(inside.topLeft() + QPointF(0, metrics.capHeight()), QString::number(mark) + QChar(u'\u00D7'));
    } else if (mark == multiplier::red) {
        paintRedMark(painter, inside);
    }
}

/// An arrow down, where a red tile is heading.
void TilePainter::paintRedMark(QPainter& painter, const QRectF& place) const
{
    const double size = std::max(6.0, place.width() * smallShare);
    const QPointF corner = place.topLeft() + QPointF(0, size * 0.15);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(painter.pen().color());
    painter.setPen(Qt::NoPen);
    painter.drawPolygon(QPolygonF{{corner, corner + QPointF(size, 0), corner + QPointF(size / 2, size * 0.8)}});
    painter.restore();
}

void TilePainter::paintRedDistance(QPainter& painter, const BoxControl& tile, const QRectF& place, int pushes) const
{
    const double margin = place.width() * marginShare;
    const double mark = std::max(6.0, place.width() * smallShare) * 1.2;
    painter.setPen(theme_.colour(tile.ForeColor()));
    painter.setFont(Theme::fontOfSize(place.width() * smallShare, true));
    painter.drawText(place.adjusted(margin + mark, margin * 0.6, -margin, 0), Qt::AlignLeft | Qt::AlignTop,
                     QString::number(pushes));
}

void TilePainter::paintLink(QPainter& painter, const QRectF& from, const QRectF& to) const
{
    const QLineF whole(from.center(), to.center());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(toQColor(theme_.colours().link), from.width() * linkShare, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QLineF(whole.pointAt(0.5 - linkReach), whole.pointAt(0.5 + linkReach)));
    painter.restore();
}

void TilePainter::paintStart(QPainter& painter, const QRectF& place) const
{
    const double size = place.width() * smallShare * 0.7;
    const double margin = place.width() * marginShare * 1.3;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(toQColor(theme_.colours().link));
    painter.drawEllipse(QRectF(place.left() + margin, place.bottom() - margin - size, size, size));
    painter.restore();
}

void TilePainter::paintSwapMark(QPainter& painter, const QRectF& place) const
{
    const double width = std::max(2.0, place.width() * 0.07);
    painter.save();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(toQColor(theme_.colours().accent), width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(place.adjusted(width / 2, width / 2, -width / 2, -width / 2));
    painter.restore();
}

} // namespace lexigrove
