#include "ui/dialogs/box_button.hpp"

#include "controls/geometry.hpp"
#include "ui/board/box_painter.hpp"
#include "ui/look/text.hpp"
#include "ui/machine/mouse.hpp"

#include <QFontMetrics>
#include <QMouseEvent>
#include <QPainter>

#include <cstdint>

namespace lexigrove
{

namespace
{

using MouseReport = void (BoxControl::*)(std::int16_t Button, std::int16_t Shift, float X, float Y);

/// Tells the control of the mouse in its own numbers and units.
void report(BoxControl& control, MouseReport what, const QMouseEvent& event)
{
    const Qt::KeyboardModifiers modifiers = event.modifiers();
    const int shift = (modifiers.testFlag(Qt::ShiftModifier) ? 1 : 0) |
                      (modifiers.testFlag(Qt::ControlModifier) ? 2 : 0) | (modifiers.testFlag(Qt::AltModifier) ? 4 : 0);
    const QPointF place = event.position() * unitsPerPixel;
    (control.*what)(static_cast<std::int16_t>(mouseButton(event.button())), static_cast<std::int16_t>(shift),
                    static_cast<float>(place.x()), static_cast<float>(place.y()));
}

} // namespace

BoxButton::BoxButton(BoxControl& control, const Theme& theme, QWidget* parent)
    : QAbstractButton(parent), control_(control), theme_(theme)
{
    setFocusPolicy(Qt::TabFocus); // a click does not move the focus
    setAttribute(Qt::WA_Hover);   // repaints it when the pointer comes and goes
    connect(this, &QAbstractButton::clicked, this, [this] { control_.clicked(); });
    synchronise();
}

void BoxButton::synchronise()
{
    setText(toQString(control_.Caption()));
    setToolTip(toQString(control_.ToolTipText()));
    setEnabled(control_.Enabled());
    update();
}

QSize BoxButton::sizeHint() const
{
    const QFontMetrics metrics(Theme::font(Theme::quietTextSize + 1, true));
    return {metrics.horizontalAdvance(text()) + 4 * Theme::grid, metrics.height() + 2 * Theme::grid};
}

void BoxButton::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const BoxPainter box(theme_);
    box.paintFace(painter, control_, rect(), underMouse() && isEnabled());
    box.paintCaption(painter, control_, rect(), Theme::font(Theme::quietTextSize + 1).pixelSize());
    if (hasFocus()) {
        painter.setPen(toQColor(theme_.colours().accent));
        painter.drawRect(QRectF(rect()).adjusted(2.5, 2.5, -2.5, -2.5));
    }
}

void BoxButton::mousePressEvent(QMouseEvent* event)
{
    report(control_, &BoxControl::mousePressed, *event);
    update();
    QAbstractButton::mousePressEvent(event);
}

void BoxButton::mouseReleaseEvent(QMouseEvent* event)
{
    report(control_, &BoxControl::mouseReleased, *event);
    update();
    QAbstractButton::mouseReleaseEvent(event); // last: a click may close the dialog and this button with it
}

void BoxButton::focusInEvent(QFocusEvent* event)
{
    control_.focusReceived();
    QAbstractButton::focusInEvent(event);
}

void BoxButton::resizeEvent(QResizeEvent* event)
{
    control_.Move(control_.Left(), control_.Top(), width() * unitsPerPixel, height() * unitsPerPixel);
    QAbstractButton::resizeEvent(event);
}

} // namespace lexigrove
