#pragma once

#include "record/past_games.hpp"
#include "ui/look/theme.hpp"

#include <QWidget>

#include <vector>

namespace lexigrove
{

/// The scores of games over time, from left to right.
class ScoreChart : public QWidget
{
public:
    explicit ScoreChart(const Theme& theme, QWidget* parent = nullptr);

    void show(std::vector<PastGamesForm::ChartPoint> points);
    using QWidget::show;

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Theme& theme_;
    std::vector<PastGamesForm::ChartPoint> points_;
};

/// The last days with the best score of each day's board, a small square a day.
class DayCalendar : public QWidget
{
public:
    explicit DayCalendar(const Theme& theme, QWidget* parent = nullptr);

    void show(std::vector<PastGamesForm::CalendarDay> days);
    using QWidget::show;

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    [[nodiscard]] QRect placeOf(std::size_t day) const;

    const Theme& theme_;
    std::vector<PastGamesForm::CalendarDay> days_;
};

} // namespace lexigrove
