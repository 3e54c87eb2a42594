#pragma once

#include "scores/statistics_form.hpp"

#include <QWidget>

namespace lexigrove
{

/// `Picture1`: paints the chart of the statistics half as large again as at the design resolution, so that its small
/// print is readable.
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
