#pragma once

#include "platform/clock.hpp"

namespace lexigrove
{

/// The machine's clock in its local time zone. Date and time have the short forms of the process's locale (`LC_TIME`),
/// which a program adopts from its environment with `std::setlocale`; where those are not plain ASCII, they look like
/// "2026-11-22" and "20:05:00".
class SystemClock : public Clock
{
public:
    [[nodiscard]] double secondsSinceMidnight() const override;
    [[nodiscard]] std::string shortDate() const override;
    [[nodiscard]] std::string shortTime() const override;
};

/// A clock that is stopped at one time of day, so that a run can be repeated. The date still advances.
class FrozenClock : public SystemClock
{
public:
    /// In [0, 86,400).
    explicit FrozenClock(double secondsSinceMidnight) : seconds_(secondsSinceMidnight) {}

    [[nodiscard]] double secondsSinceMidnight() const override { return seconds_; }
    [[nodiscard]] std::string shortTime() const override;

private:
    double seconds_;
};

} // namespace lexigrove
