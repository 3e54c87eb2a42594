#include "ui/dialogs/chart_view.hpp"

#include "controls/geometry.hpp"
#include "settings/readable_colours.hpp"
#include "ui/look/text.hpp"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QPainter>

#include <cmath>

namespace lexigrove
{

namespace
{

double zoom()
{
    return 1.5 * Theme::textScale();
}

/// In logical pixels.
double unit()
{
    return zoom() / unitsPerPixel;
}
constexpr int unitsPerPoint = 20;
constexpr int substituteStretch = 87; ///< per cent: other sans-serif fonts run wider than the intended one

QFont chartFontOf(const std::string& name, int pointSize)
{
    QFont font(toQString(name));
    font.setStyleHint(name == chartFont ? QFont::Monospace : QFont::SansSerif);
    font.setPixelSize(static_cast<int>(std::lround(pointSize * unitsPerPoint * unit())));
    if (name != chartFont && !QFontInfo(font).exactMatch())
        font.setStretch(substituteStretch);
    return font;
}

/// What is painted in place of one of the chart's own colours: every bar and text reads on the card.
QColor paintedColour(Colour colour, const Theme& theme)
{
    const WindowColours& colours = theme.colours();
    switch (colour) {
    case chart_colour::used:
        return toQColor(
            shadeFor(theme.scheme().tileFace(multiplier::red), colours.card, colours.card, minimumContrast));
    case chart_colour::numbers:
    case chart_colour::letters:
        return toQColor(colours.cardQuietText);
    case chart_colour::frame:
        return toQColor(colours.line);
    default:
        return toQColor(colours.cardText);
    }
}

class ChartPainter
{
public:
    ChartPainter(QPainter& painter, const Theme& theme) : painter_(painter), theme_(theme) {}

    void operator()(const ChartLine& line) const
    {
        painter_.setPen(penOf(line.colour, line.width));
        painter_.drawLine(place(line.x1, line.y1), place(line.x2, line.y2));
    }

    void operator()(const ChartFrame& frame) const
    {
        painter_.setPen(penOf(frame.colour, frame.width));
        painter_.drawRect(QRectF(place(frame.left, frame.top), place(frame.right, frame.bottom)));
    }

    void operator()(const ChartText& text) const
    {
        painter_.setPen(paintedColour(text.colour, theme_));
        painter_.setFont(chartFontOf(text.font, text.pointSize));
        const QPointF corner = place(text.x, text.y);
        painter_.drawText(corner + QPointF(0, QFontMetricsF(painter_.font()).ascent()), toQString(text.text));
    }

private:
    static QPointF place(int x, int y) { return {x * unit(), y * unit()}; }

    [[nodiscard]] QPen penOf(Colour colour, int width) const
    {
        return {paintedColour(colour, theme_), width * zoom(), Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin};
    }

    QPainter& painter_;
    const Theme& theme_;
};

} // namespace

ChartView::ChartView(const StatisticsForm& form, const Theme& theme, QWidget* parent)
    : QWidget(parent), form_(form), theme_(theme)
{
    setObjectName("Picture1");
    const Chart chart = form.chart(1);
    setFixedSize(static_cast<int>(chart.width * unit()), static_cast<int>(chart.height * unit()));
}

void ChartView::paintEvent(QPaintEvent*)
{
    const QFontMetricsF metrics(chartFontOf(chartFont, chartFontSize));
    const Chart chart = form_.chart(static_cast<int>(std::lround(metrics.horizontalAdvance('W') / unit())));
    QPainter painter(this);
    Theme::paintCard(painter, rect(), theme_.colours().card, theme_.colours().line);
    for (const auto& item : chart.items)
        std::visit(ChartPainter(painter, theme_), item);
}

} // namespace lexigrove
