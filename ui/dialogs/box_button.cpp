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

std::int16_t buttonNumber(Qt::MouseButton button)
{
    return static_cast<std::int16_t>(mouseButton(button));
}

std::int16_t shiftState(Qt::KeyboardModifiers modifiers)
{
    const int state = (modifiers.testFlag(Qt::ShiftModifier) ? 1 : 0) |
                      (modifiers.testFlag(Qt::ControlModifier) ? 2 : 0) | (modifiers.testFlag(Qt::AltModifier) ? 4 : 0);
    return static_cast<std::int16_t>(state);
}

float units(double pixels)
{
    return static_cast<float>(pixels * unitsPerPixel);
}

} // namespace

BoxButton::BoxButton(BoxControl& control, const Theme& theme, QWidget* parent)
    : QAbstractButton(parent), control_(control), theme_(theme)
{
    setCursor(Qt::ArrowCursor);
    setFocusPolicy(Qt::TabFocus); // a click does not move the focus
    setAttribute(Qt::WA_Hover);   // repaints when the pointer comes and goes
    connect(&theme, &Theme::changed, this, [this] { update(); });
    connect(this, &QAbstractButton::clicked, this, [this] { control_.clicked(); });
    synchronise();
}

void BoxButton::synchronise()
{
    setText(toQString(control_.Caption()));
    setToolTip(toQString(control_.ToolTipText()));
    setAccessibleName(text());
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
    box.paintCaption(painter, control_, rect(), Theme::quietTextSize + 1);
    if (hasFocus()) {
        painter.setPen(toQColor(theme_.colours().accent));
        painter.drawRect(QRectF(rect()).adjusted(2.5, 2.5, -2.5, -2.5));
    }
}

void BoxButton::mousePressEvent(QMouseEvent* event)
{
    control_.mousePressed(buttonNumber(event->button()), shiftState(event->modifiers()), units(event->position().x()),
                          units(event->position().y()));
    update();
    QAbstractButton::mousePressEvent(event);
}

void BoxButton::mouseReleaseEvent(QMouseEvent* event)
{
    control_.mouseReleased(buttonNumber(event->button()), shiftState(event->modifiers()), units(event->position().x()),
                           units(event->position().y()));
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
