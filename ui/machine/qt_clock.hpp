#pragma once

#include "platform/clock.hpp"

namespace lexigrove
{

/// The machine's clock, and the desktop's short forms of date and time.
class QtClock : public Clock
{
public:
    [[nodiscard]] double secondsSinceMidnight() const override;
    [[nodiscard]] std::string shortDate() const override;
    [[nodiscard]] std::string shortTime() const override;
};

} // namespace lexigrove
