#include "ui/look/arrow_box.hpp"

#include <QPainter>

namespace lexigrove
{

ArrowBox::ArrowBox(const Theme& theme) : theme_(theme)
{
    setStyleSheet("QComboBox::drop-down { border: none; width: 24px; } QComboBox::down-arrow { image: none; }");
}

void ArrowBox::paintEvent(QPaintEvent* event)
{
    QComboBox::paintEvent(event);
    const QPointF middle(width() - 2.0 * Theme::grid, height() / 2.0);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(toQColor(theme_.colours().cardQuietText), 1.5));
    painter.drawPolyline(QPolygonF{middle + QPointF(-4, -2), middle + QPointF(0, 2), middle + QPointF(4, -2)});
}

} // namespace lexigrove
