#include "ui/board/box_painter.hpp"

#include "controls/geometry.hpp"
#include "settings/readable_colours.hpp"
#include "ui/look/text.hpp"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace lexigrove
{

namespace
{

constexpr int designDotsPerInch = 1440 / unitsPerPixel;

/// A control stretched over a place, in whole device pixels.
class Stretched
{
public:
    Stretched(const QPainter& painter, const BoxControl& control, const QRectF& place)
        : ratio_(painter.device()->devicePixelRatioF()),
          surface_(snap(place)),
          scale_(control.Width() > 0 ? surface_.width() / control.Width() : 1.0 / unitsPerPixel),
          border_(control.BorderStyle() == 0 ? 0 : length(1))
    {
    }

    [[nodiscard]] double snap(double logical) const { return std::round(logical * ratio_) / ratio_; }

    /// Logical pixels per unit.
    [[nodiscard]] double scale() const { return scale_; }

    /// A thickness in pixels at the design resolution.
    [[nodiscard]] double length(int designPixels) const
    {
        const double wanted = designPixels * unitsPerPixel * scale_ * ratio_;
        return std::max(1.0, std::round(wanted)) / ratio_;
    }

    [[nodiscard]] const QRectF& surface() const { return surface_; }
    [[nodiscard]] double border() const { return border_; }
    [[nodiscard]] QRectF inner() const { return surface_.adjusted(border_, border_, -border_, -border_); }

    /// A line with square ends.
    [[nodiscard]] QRectF line(const FrameLine& line) const
    {
        const double thickness = length(line.thickness);
        const QRectF room = inner();
        const QPointF from = room.topLeft() + QPointF(line.from.x, line.from.y) * scale_;
        const QPointF to = room.topLeft() + QPointF(line.to.x, line.to.y) * scale_;
        const double half = line.thickness * unitsPerPixel * scale_ / 2;
        if (line.from.y == line.to.y)
            return {from.x() - half, across(from.y(), half, thickness, room.top(), room.bottom()),
                    to.x() - from.x() + 2 * half, thickness};
        return {across(from.x(), half, thickness, room.left(), room.right()), from.y() - half, thickness,
                to.y() - from.y() + 2 * half};
    }

private:
    /// Where a line begins, from its middle and half its exact thickness. A line that ends less than half a design
    /// pixel before the edge ends at the edge, at every scale.
    [[nodiscard]] double across(double middle, double half, double thickness, double low, double high) const
    {
        const double halfPixel = unitsPerPixel * scale_ / 2;
        if (high - (middle + half) < halfPixel)
            return high - thickness;
        return std::max(low, snap(middle - half));
    }

    [[nodiscard]] QRectF snap(const QRectF& place) const
    {
        return {QPointF(snap(place.left()), snap(place.top())), QPointF(snap(place.right()), snap(place.bottom()))};
    }

    double ratio_;
    QRectF surface_;
    double scale_;
    double border_;
};

} // namespace

Colour BoxPainter::faceColour(const BoxControl& control, bool lifted) const
{
    const auto plain = [this](Colour colour) {
        const QColor shown = theme_.colour(colour);
        return rgb(static_cast<unsigned>(shown.red()), static_cast<unsigned>(shown.green()),
                   static_cast<unsigned>(shown.blue()));
    };
    const Colour face = plain(control.backcolor());
    return lifted ? lexigrove::lifted(face, plain(control.ForeColor())) : face;
}

void BoxPainter::paintFace(QPainter& painter, const BoxControl& control, const QRectF& place, bool lifted) const
{
    const Stretched shape(painter, control, place);
    const Colour face = faceColour(control, lifted);

    painter.save();
    painter.setClipRect(shape.surface(), Qt::IntersectClip);
    if (shape.border() > 0) {
        constexpr double borderShare = 0.35;
        painter.fillRect(shape.surface(), toQColor(mixed(face, readableOn(face), borderShare)));
    }
    painter.fillRect(shape.inner(), toQColor(face));
    for (const int number : {7, 6, 5, 1, 2, 3, 4}) {
        const FrameLine line = control.line(number);
        if (line.visible && line.solid && number != 7) // the seventh has no place: it only holds the face's colour
            painter.fillRect(shape.line(line), theme_.colour(line.colour));
    }
    painter.restore();
}

void BoxPainter::paintCaption(QPainter& painter, const BoxControl& control, const QRectF& place, double pixelSize,
                              const QRectF& taken) const
{
    if (control.Caption().empty())
        return;
    const Stretched shape(painter, control, place);
    constexpr double pixelsPerPoint = designDotsPerInch / 72.0;
    const double ownSize = control.FontSize() * pixelsPerPoint * unitsPerPixel * shape.scale();
    const QFont font = Theme::fontOfSize(pixelSize > 0 ? pixelSize : ownSize, control.FontBold());
    const QString caption = toQString(control.Caption());

    // The label's height is that of its capitals, so that they are centred, without the room for accents above.
    const QFontMetricsF metrics(font);
    const double width = metrics.horizontalAdvance(caption);
    const double height = metrics.capHeight();
    const ExactPoint at = control.captionPlace(
        {static_cast<int>(std::lround(width / shape.scale())), static_cast<int>(std::lround(height / shape.scale()))});
    QPointF corner = shape.inner().topLeft() + QPointF(at.x, at.y) * shape.scale();
    const QRectF ink = metrics.tightBoundingRect(caption).translated(corner.x(), corner.y() + height);
    if (ink.intersects(taken)) // the tail of a Q
        corner.ry() -= ink.bottom() - taken.top();
    painter.setFont(font);
    painter.setPen(theme_.colour(control.ForeColor()));
    painter.drawText(QPointF(shape.snap(corner.x()), shape.snap(corner.y() + height)), caption);
}

} // namespace lexigrove
