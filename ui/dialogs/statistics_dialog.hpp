#pragma once

#include "flow/windows.hpp"
#include "ui/machine/host.hpp"

namespace lexigrove
{

/// The statistics window `Form4`, with its chart in `Picture1`.
class StatisticsDialog : public StatisticsWindow
{
public:
    explicit StatisticsDialog(Host& host) : host_(host) {}

    void show(const StatisticsForm& form) override;

private:
    Host& host_;
};

} // namespace lexigrove
