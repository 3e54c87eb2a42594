#include "platform/random.hpp"

#include <gtest/gtest.h>
#include <set>
#include <vector>

namespace lexigrove
{
namespace
{

class StoppedClock : public Clock
{
public:
    [[nodiscard]] double secondsSinceMidnight() const override { return 43'200.5; }
    [[nodiscard]] std::string shortDate() const override { return {}; }
    [[nodiscard]] std::string shortTime() const override { return {}; }
};

/// Guards against a generator that deals other boards with another compiler or library, and against one that starts
/// afresh within a tick of the clock. Recorded once from this generator.
TEST(Random, FoldsTheTimeAndIsTheSameEverywhere)
{
    Random random(7);
    const StoppedClock clock;
    std::vector<int> places;
    for (int i = 0; i < 8; ++i)
        places.push_back(placeFromDraw(random.reseedAndDraw(clock), 100));
    EXPECT_EQ(places, (std::vector<int>{93, 32, 28, 68, 55, 74, 50, 90}));

    std::set<double> draws;
    for (int i = 0; i < 100; ++i)
        draws.insert(random.reseedAndDraw(clock));
    EXPECT_EQ(draws.size(), 100U);
}

TEST(Random, PlacesStayInTheirRange)
{
    EXPECT_EQ(placeFromDraw(0.0, 64), 1);
    EXPECT_EQ(placeFromDraw(0.999999999999, 64), 64);
    EXPECT_EQ(placeFromDraw(1.0, 64), 64);
    EXPECT_EQ(placeFromDraw(0.5, 1), 1);
}

} // namespace
} // namespace lexigrove
