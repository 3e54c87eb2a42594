#pragma once

#include "platform/system_clock.hpp"

namespace lexigrove
{

/// The machine's clock, and the desktop's short forms of date and time.
class QtClock : public SystemClock
{
public:
    [[nodiscard]] std::string shortDate() const override;
    [[nodiscard]] std::string shortTime() const override;
};

} // namespace lexigrove
