#include "ui/dialogs/score_chart.hpp"

#include "ui/look/text.hpp"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <utility>

namespace lexigrove
{

namespace
{

int daySize()
{
    return Theme::scaled(3 * Theme::grid);
}
constexpr int daysInRow = 10;

} // namespace

ScoreChart::ScoreChart(const Theme& theme, QWidget* parent) : QWidget(parent), theme_(theme)
{
    setObjectName("ScoreChart");
    setMinimumHeight(Theme::scaled(14 * Theme::grid));
}

void ScoreChart::show(std::vector<PastGamesForm::ChartPoint> points)
{
    points_ = std::move(points);
    const auto best = std::max_element(points_.begin(), points_.end(),
                                       [](const auto& a, const auto& b) { return a.score < b.score; });
    setAccessibleName(points_.empty() ? tr("No scores yet")
                                      : tr("Scores of %1 games, the best %2").arg(points_.size()).arg(best->score));
    update();
}

QSize ScoreChart::sizeHint() const
{
    return {Theme::scaled(30 * Theme::grid), Theme::scaled(16 * Theme::grid)};
}

void ScoreChart::paintEvent(QPaintEvent* /*event*/)
{
    const WindowColours& colours = theme_.colours();
    QPainter painter(this);
    Theme::paintCard(painter, rect(), colours.card, colours.line);
    painter.setFont(Theme::font(Theme::smallestText));
    painter.setPen(toQColor(colours.cardQuietText));
    if (points_.size() < 2) {
        painter.drawText(rect(), Qt::AlignCenter, tr("Two games make a line"));
        return;
    }
    int best = 1;
    for (const auto& point : points_)
        best = std::max(best, point.score);
    const QRectF area = QRectF(rect()).adjusted(Theme::scaled(5 * Theme::grid), Theme::scaled(Theme::gap), -Theme::gap,
                                                -Theme::scaled(Theme::gap));
    painter.drawText(QRectF(0, area.top() - Theme::scaled(Theme::grid), area.left() - Theme::grid / 2.0,
                            Theme::scaled(2 * Theme::grid)),
                     Qt::AlignRight | Qt::AlignVCenter, QString::number(best));
    painter.drawText(QRectF(0, area.bottom() - Theme::scaled(Theme::grid), area.left() - Theme::grid / 2.0,
                            Theme::scaled(2 * Theme::grid)),
                     Qt::AlignRight | Qt::AlignVCenter, "0");
    painter.setRenderHint(QPainter::Antialiasing);
    QPolygonF line;
    for (std::size_t i = 0; i < points_.size(); ++i) {
        const double x = area.left() + area.width() * static_cast<double>(i) / static_cast<double>(points_.size() - 1);
        line.append(QPointF(x, area.bottom() - area.height() * std::max(points_[i].score, 0) / best));
    }
    painter.setPen(QPen(toQColor(colours.accent), 2));
    painter.drawPolyline(line);
    painter.setBrush(toQColor(colours.accent));
    for (const QPointF& point : line)
        painter.drawEllipse(point, 2.5, 2.5);
}

DayCalendar::DayCalendar(const Theme& theme, QWidget* parent) : QWidget(parent), theme_(theme)
{
    setObjectName("DayCalendar");
}

void DayCalendar::show(std::vector<PastGamesForm::CalendarDay> days)
{
    days_ = std::move(days);
    const auto played = std::count_if(days_.begin(), days_.end(), [](const auto& day) { return day.best.has_value(); });
    setAccessibleName(tr("Board of the day, played on %1 of the last %2 days").arg(played).arg(days_.size()));
    update();
}

QSize DayCalendar::sizeHint() const
{
    return {daysInRow * daySize(), 3 * daySize()};
}

QRect DayCalendar::placeOf(std::size_t day) const
{
    const int column = static_cast<int>(day) % daysInRow;
    const int row = static_cast<int>(day) / daysInRow;
    return {column * daySize(), row * daySize(), daySize() - 3, daySize() - 3};
}

void DayCalendar::paintEvent(QPaintEvent* /*event*/)
{
    const WindowColours& colours = theme_.colours();
    QPainter painter(this);
    painter.setFont(Theme::font(Theme::smallestText));
    for (std::size_t i = 0; i < days_.size(); ++i) {
        const bool played = days_[i].best.has_value();
        Theme::paintCard(painter, placeOf(i), played ? colours.accent : colours.strip, colours.line);
        const std::chrono::year_month_day date(days_[i].day);
        painter.setPen(toQColor(played ? colours.accentText : colours.quietText));
        painter.drawText(placeOf(i), Qt::AlignCenter, QString::number(static_cast<unsigned>(date.day())));
    }
}

bool DayCalendar::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    auto* const help = static_cast<QHelpEvent*>(event);
    for (std::size_t i = 0; i < days_.size(); ++i) {
        if (!placeOf(i).contains(help->pos()))
            continue;
        const QString day = toQString(textOf(days_[i].day));
        QToolTip::showText(help->globalPos(), days_[i].best ? tr("%1: %2 points").arg(day).arg(*days_[i].best)
                                                            : tr("%1: not played").arg(day));
        return true;
    }
    QToolTip::hideText();
    return true;
}

} // namespace lexigrove
