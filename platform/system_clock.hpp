#pragma once

#include "platform/clock.hpp"

namespace lexigrove
{

/// The machine's clock in its local time zone. The date and the time of day come in the short forms of the process's
/// locale (`LC_TIME`), which a program takes over from its environment with `std::setlocale`; a locale whose short
/// forms are not plain ASCII gets "2026-11-22" and "20:05:00".
class SystemClock : public Clock
{
public:
    [[nodiscard]] double secondsSinceMidnight() const override;
    [[nodiscard]] std::string shortDate() const override;
    [[nodiscard]] std::string shortTime() const override;
};

/// A clock that stands still at one time of day, so that a run can be repeated. The date goes on.
class FrozenClock : public SystemClock
{
public:
    /// 0 up to 86,400, without the latter.
    explicit FrozenClock(double secondsSinceMidnight) : seconds_(secondsSinceMidnight) {}

    [[nodiscard]] double secondsSinceMidnight() const override { return seconds_; }
    [[nodiscard]] std::string shortTime() const override;

private:
    double seconds_;
};

} // namespace lexigrove
