#pragma once

#include "scores/statistics_form.hpp"

#include <QWidget>

namespace lexigrove
{

/// `Picture1`: paints the chart of the statistics at its own size, which is half as large again as the picture's units
/// make it at the design resolution, so that its small print can be read.
class ChartView : public QWidget
{
    Q_OBJECT

public:
    explicit ChartView(const StatisticsForm& form, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const StatisticsForm& form_;
};

} // namespace lexigrove
