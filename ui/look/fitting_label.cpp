#include "ui/look/fitting_label.hpp"

#include "ui/look/theme.hpp"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace lexigrove
{

FittingLabel::FittingLabel(double largest, double letterSpacing, QWidget* parent)
    : QLabel(parent), largest_(largest), letterSpacing_(letterSpacing)
{
    setTextFormat(Qt::PlainText);
}

void FittingLabel::setColour(const QColor& colour)
{
    if (colour == colour_)
        return;
    colour_ = colour;
    update();
}

void FittingLabel::setPlaceholder(const QString& text, const QColor& colour)
{
    placeholder_ = text;
    placeholderColour_ = colour;
    update();
}

void FittingLabel::setLargest(double largest)
{
    largest_ = largest;
    updateGeometry();
    update();
}

QFont FittingLabel::fontOf(double size) const
{
    QFont font = Theme::font(size, true);
    font.setLetterSpacing(QFont::AbsoluteSpacing, size * letterSpacing_);
    return font;
}

QSize FittingLabel::sizeHint() const
{
    const QFontMetricsF metrics(fontOf(largest_));
    const double width = text().isEmpty() ? 0 : metrics.horizontalAdvance(text());
    return {static_cast<int>(std::ceil(width)), static_cast<int>(std::ceil(metrics.height()))};
}

QSize FittingLabel::minimumSizeHint() const
{
    return {0, sizeHint().height()};
}

void FittingLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const Qt::Alignment place = alignment() | Qt::AlignVCenter;
    if (text().isEmpty()) {
        painter.setFont(Theme::font(Theme::quietTextSize + 1));
        painter.setPen(placeholderColour_);
        painter.drawText(rect(), static_cast<int>(place) | Qt::TextWordWrap, placeholder_);
        return;
    }
    const double wanted = QFontMetricsF(fontOf(largest_)).horizontalAdvance(text());
    const double size = wanted > width() ? std::floor(largest_ * width() / wanted) : largest_;
    painter.setFont(fontOf(size));
    painter.setPen(colour_);
    painter.drawText(rect(), static_cast<int>(place), text());
}

} // namespace lexigrove
