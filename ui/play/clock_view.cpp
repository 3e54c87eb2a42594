#include "ui/play/clock_view.hpp"

#include "controls/geometry.hpp"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace lexigrove
{

ClockView::ClockView(const Dc& clock, QWidget* parent) : QWidget(parent), clock_(clock)
{
    setObjectName("Dc1");
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_TransparentForMouseEvents); // the frame takes the clicks
}

void ClockView::synchronise()
{
    if (clock_.revision() == shownRevision_)
        return;
    shownRevision_ = clock_.revision();
    const auto figure = [this](int digit) { return QString::number(clock_.shownDigit(digit)); };
    setAccessibleName(tr("Clock %1%2:%3%4").arg(figure(0), figure(1), figure(2), figure(3)));
    update();
}

void ClockView::paintEvent(QPaintEvent* /*event*/)
{
    const double scale = std::min(static_cast<double>(width()) / Dc::Width, static_cast<double>(height()) / Dc::Height);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate((width() - Dc::Width * scale) / 2, (height() - clock_.Shapet().size.height * scale) / 2);
    painter.scale(scale, scale);
    for (int index = 0; index <= Dc::lowerDot; ++index) {
        if (!Dc::hasLine(index) || !clock_.lin2(index).visible)
            continue;
        const ClockLine line = clock_.lin2(index);
        const double thickness = line.thickness * unitsPerPixel;
        painter.setPen(QPen(toQColor(line.colour), thickness, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(line.from.x, line.from.y, line.to.x, line.to.y);
    }
}

void ClockView::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    emit focusReceived();
}

ClockFrame::ClockFrame(const Dc& clock, const Theme& theme, QWidget* parent)
    : QWidget(parent), clock_(clock), theme_(theme), view_(new ClockView(clock, this))
{
    setObjectName("Frame10");
    setToolTip(tr("Click for thicker digits, right-click for another colour"));
    connect(&theme, &Theme::changed, this, [this] { update(); });
}

void ClockFrame::synchronise()
{
    view_->synchronise();
    if (clock_.revision() != shownRevision_) {
        shownRevision_ = clock_.revision();
        update();
    }
}

QSize ClockFrame::sizeHint() const
{
    return {18 * Theme::grid, 8 * Theme::grid};
}

void ClockFrame::paintEvent(QPaintEvent* /*event*/)
{
    const ClockRectangle& background = clock_.Shapet();
    QPainter painter(this);
    const bool themed = background.fill != theme_.colours().background; // otherwise the line shows where the clock is
    Theme::paintCard(painter, rect(), background.fill, themed ? background.border : theme_.colours().line);
}

void ClockFrame::resizeEvent(QResizeEvent* /*event*/)
{
    view_->setGeometry(rect().adjusted(Theme::grid, Theme::grid, -Theme::grid, -Theme::grid));
}

void ClockFrame::mouseReleaseEvent(QMouseEvent* event)
{
    if (rect().contains(event->pos()))
        emit released(event->button());
}

} // namespace lexigrove
