#pragma once

#include "scores/statistics_form.hpp"
#include "ui/look/theme.hpp"

#include <QWidget>

namespace lexigrove
{

/// `Picture1`: paints the chart of the statistics half as large again as at the design resolution, and in the colours
/// of the windows, so that its bars and its small print are readable.
class ChartView : public QWidget
{
    Q_OBJECT

public:
    ChartView(const StatisticsForm& form, const Theme& theme, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const StatisticsForm& form_;
    const Theme& theme_;
};

} // namespace lexigrove
