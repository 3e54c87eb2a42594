#include "ui/look/game_icon.hpp"

#include <QPainter>
#include <QPainterPath>

#include <array>
#include <cmath>
#include <numbers>

namespace lexigrove
{

namespace
{

constexpr double side = 256; ///< of the square in which the sign is drawn

/// A hexagon that stands on a corner, its corners rounded from `cut` before each of them.
QPainterPath roundedHexagon(QPointF centre, double radius, double cut)
{
    std::array<QPointF, 6> corners;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const double angle = std::numbers::pi * (static_cast<double>(i) / 3 - 0.5);
        corners[i] = centre + radius * QPointF(std::cos(angle), std::sin(angle));
    }
    const auto between = [&](std::size_t from, std::size_t to) {
        return corners[from] + (corners[to] - corners[from]) * (cut / radius);
    };
    QPainterPath path(between(0, 5));
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const std::size_t before = (i + 5) % corners.size();
        const std::size_t after = (i + 1) % corners.size();
        path.lineTo(between(i, before));
        path.quadTo(corners[i], between(i, after));
    }
    path.closeSubpath();
    return path;
}

QPainterPath letter()
{
    QPainterPath path(QPointF(92, 66));
    for (const QPointF point :
         {QPointF(120, 66), QPointF(120, 152), QPointF(172, 152), QPointF(172, 178), QPointF(92, 178)})
        path.lineTo(point);
    path.closeSubpath();
    return path;
}

QPainterPath leaf()
{
    QPainterPath path(QPointF(134, 134));
    path.cubicTo(130, 100, 150, 74, 184, 72);
    path.cubicTo(188, 106, 168, 134, 134, 134);
    return path;
}

QPainterPath vein()
{
    QPainterPath path(QPointF(134, 134));
    path.cubicTo(146, 114, 158, 98, 176, 82);
    return path;
}

} // namespace

void paintGameIcon(QPainter& painter, const QRectF& place)
{
    const QColor shade("#24573a");
    const QColor green("#4f9d69");
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(place.topLeft());
    painter.scale(place.width() / side, place.height() / side);
    painter.fillPath(roundedHexagon({128, 134}, 118, 26), shade);
    painter.fillPath(roundedHexagon({128, 122}, 118, 26), green);
    painter.fillPath(roundedHexagon({128, 122}, 94, 20), QColor("#fbf7ea"));
    painter.fillPath(letter(), QColor("#24382c"));
    painter.fillPath(leaf(), green);
    painter.strokePath(vein(), QPen(shade, 6, Qt::SolidLine, Qt::RoundCap));
    painter.restore();
}

QIcon gameIcon()
{
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paintGameIcon(painter, pixmap.rect());
        icon.addPixmap(pixmap);
    }
    return icon;
}

} // namespace lexigrove
