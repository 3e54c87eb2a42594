#include "ui/play/pause_cover.hpp"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace lexigrove
{

PauseCover::PauseCover(const Theme& theme, const QString& hint, QWidget* parent)
    : QWidget(parent), theme_(theme), hint_(hint)
{
    setObjectName("PauseCover");
    hide();
}

void PauseCover::setCaption(const QString& caption)
{
    if (caption == caption_)
        return;
    caption_ = caption;
    update();
}

void PauseCover::paintEvent(QPaintEvent* /*event*/)
{
    const WindowColours& colours = theme_.colours();
    QPainter painter(this);
    painter.fillRect(rect(), toQColor(colours.background)); // the corners beside the card
    Theme::paintCard(painter, rect(), colours.strip, colours.line);

    const double size = std::clamp(width() / 12.0, 20.0, 48.0);
    const QRectF upper(0, 0, width(), height() / 2.0 + size);
    painter.setPen(toQColor(colours.text));
    painter.setFont(Theme::fontOfSize(size, true));
    painter.drawText(upper, Qt::AlignHCenter | Qt::AlignBottom, caption_);
    painter.setPen(toQColor(colours.quietText));
    painter.setFont(Theme::font(Theme::quietTextSize + 1));
    const QRectF lower = rect().adjusted(Theme::gap, static_cast<int>(upper.height()) + Theme::grid, -Theme::gap, 0);
    painter.drawText(lower, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, hint_);
}

void PauseCover::mouseReleaseEvent(QMouseEvent* event)
{
    if (rect().contains(event->pos()))
        emit clicked();
}

} // namespace lexigrove
