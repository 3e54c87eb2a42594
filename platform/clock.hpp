#pragma once

#include <chrono>
#include <string>

namespace lexigrove
{

/// The machine's clock.
class Clock
{
public:
    virtual ~Clock() = default;

    /// Local time of day in seconds since midnight, in [0, 86,400), with the full resolution of the machine's clock.
    [[nodiscard]] virtual double secondsSinceMidnight() const = 0;

    /// The current local date.
    [[nodiscard]] virtual std::chrono::year_month_day today() const;

    /// The current date and the current time in the system's short forms.
    [[nodiscard]] virtual std::string shortDate() const = 0;
    [[nodiscard]] virtual std::string shortTime() const = 0;
};

} // namespace lexigrove
