#include "platform/random.hpp"
#include "tests/support/quiet_ports.hpp"

#include <gtest/gtest.h>
#include <set>

namespace lexigrove
{
namespace
{

/// Guards against a generator that starts over within a tick of the clock, and against places beyond the last.
TEST(Random, DrawsDifferWhileTheClockStandsAndStayInTheirRange)
{
    Random random(7);
    const StillClock clock;
    std::set<double> draws;
    for (int i = 0; i < 100; ++i)
        draws.insert(random.reseedAndDraw(clock));
    EXPECT_EQ(draws.size(), 100U);
    EXPECT_EQ(placeFromDraw(0.0, 64), 1);
    EXPECT_EQ(placeFromDraw(0.999999999999, 64), 64);
    EXPECT_EQ(placeFromDraw(1.0, 64), 64);
}

} // namespace
} // namespace lexigrove
