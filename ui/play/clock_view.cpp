#include "ui/play/clock_view.hpp"

#include "controls/dc.hpp"
#include "controls/geometry.hpp"
#include "flow/game_flow.hpp"
#include "settings/readable_colours.hpp"
#include "ui/machine/mouse.hpp"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>

namespace lexigrove
{

namespace
{

/// The digits' colour as it is painted: their own, or the nearest shade of it that reads.
Colour readableDigits(Colour digits, Colour panel)
{
    constexpr double digitContrast = 4;
    return shadeFor(digits, panel, panel, digitContrast);
}

/// Tells the time when it is asked, and reports no second: the last minute is the speaker's.
class ClockAccess : public QAccessibleWidget
{
public:
    explicit ClockAccess(ClockFrame& frame) : QAccessibleWidget(&frame, QAccessible::Clock), frame_(frame) {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? frame_.time() : QAccessibleWidget::text(kind);
    }

private:
    const ClockFrame& frame_;
};

QAccessibleInterface* clockInterface(const QString& /*className*/, QObject* object)
{
    auto* const frame = qobject_cast<ClockFrame*>(object);
    return frame != nullptr ? new ClockAccess(*frame) : nullptr;
}

} // namespace

ClockView::ClockView(GameFlow& flow, const Theme& theme, QWidget* parent) : QWidget(parent), flow_(flow), theme_(theme)
{
    setObjectName("Dc1");
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_TransparentForMouseEvents); // the frame takes the clicks
}

void ClockView::paintEvent(QPaintEvent* /*event*/)
{
    constexpr double unlitShare = 0.1;
    const Dc& clock = flow_.view().clock;
    const Colour panel = clock.Shapet().fill;
    const bool windowColours = clock.ClockColor() == "DEFAULT";
    const Colour windowDigits = readableDigits(theme_.colours().accent, panel);
    const double scale = std::min(static_cast<double>(width()) / Dc::Width, static_cast<double>(height()) / Dc::Height);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate((width() - Dc::Width * scale) / 2, (height() - clock.Shapet().size.height * scale) / 2);
    painter.scale(scale, scale);
    for (int index = 0; index <= Dc::lowerDot; ++index) {
        if (!Dc::hasLine(index) || !clock.lin2(index).visible)
            continue;
        const ClockLine line = clock.lin2(index);
        const double thickness = line.thickness * unitsPerPixel;
        Colour colour = clock.lit(index) ? readableDigits(line.colour, panel) : line.colour;
        if (windowColours)
            colour = clock.lit(index) ? windowDigits : mixed(panel, windowDigits, unlitShare);
        painter.setPen(QPen(toQColor(colour), thickness, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(line.from.x, line.from.y, line.to.x, line.to.y);
    }
}

void ClockView::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    flow_.clockGotFocus();
}

ClockFrame::ClockFrame(GameFlow& flow, const Theme& theme, QWidget* parent)
    : QWidget(parent), flow_(flow), theme_(theme), view_(new ClockView(flow, theme, this))
{
    setObjectName("Frame10");
    QAccessible::installFactory(clockInterface);
    setToolTip(tr("Click (Space) for thicker digits, right-click (Shift+Space) for another colour"));
    setFocusPolicy(Qt::TabFocus);
    auto* const room = new QVBoxLayout(this);
    room->setContentsMargins(Theme::grid, Theme::grid, Theme::grid, Theme::grid);
    room->addWidget(view_);
}

void ClockFrame::synchronise()
{
    const Dc& clock = flow_.view().clock;
    if (clock.revision() == shownRevision_)
        return;
    shownRevision_ = clock.revision();
    update();
}

QString ClockFrame::time() const
{
    const auto figure = [this](int digit) { return QString::number(flow_.view().clock.shownDigit(digit)); };
    return tr("Clock %1%2:%3%4").arg(figure(0), figure(1), figure(2), figure(3));
}

QSize ClockFrame::sizeHint() const
{
    return {18 * Theme::grid, 8 * Theme::grid};
}

void ClockFrame::paintEvent(QPaintEvent* /*event*/)
{
    const ClockRectangle& background = flow_.view().clock.Shapet();
    QPainter painter(this);
    const bool themed = background.fill != theme_.colours().background; // otherwise the line shows where the clock is
    QRect panel = rect();
    if (hasFocus()) { // a ring with a gap, which is seen beside any panel
        Theme::paintCard(painter, panel, theme_.colours().background, theme_.colours().text, 2);
        panel = panel.marginsRemoved({4, 4, 4, 4});
    }
    Theme::paintCard(painter, panel, background.fill, themed ? background.border : theme_.colours().line);
}

void ClockFrame::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Space)
        return QWidget::keyPressEvent(event);
    const bool shift = event->modifiers().testFlag(Qt::ShiftModifier);
    flow_.releaseClockFrame(shift ? MouseButton::Right : MouseButton::Left);
}

void ClockFrame::mouseReleaseEvent(QMouseEvent* event)
{
    if (rect().contains(event->pos()))
        flow_.releaseClockFrame(mouseButton(event->button()));
}

} // namespace lexigrove
