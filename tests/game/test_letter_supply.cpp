#include "tests/support/played_game.hpp"

#include <algorithm>
#include <set>

namespace lexigrove
{
namespace
{

/// Guards against a generator that starts afresh within one tick of the clock, which would deal alphabetical runs, and
/// against draws that never reach some place.
TEST(LetterSupply, AFrozenClockStillShufflesWell)
{
    QuietWorld world("");
    GameParts parts(world.ports(), world.folder.path());
    auto& pool = parts.dictionary.letters.pool;
    const auto sorted = pool;
    const auto runs = [&] { // neighbours that stand as in the alphabetical pool
        int count = 0;
        for (std::size_t i = 1; i < 100; ++i)
            count += pool[i] == pool[i + 1] || pool[i] + 1 == pool[i + 1] ? 1 : 0;
        return count;
    };
    ASSERT_EQ(runs(), 99);
    std::array<std::set<char>, 101> seen;
    for (int i = 0; i < 3000; ++i) {
        pool = sorted;
        parts.game.supply.shufflePool();
        EXPECT_LT(runs(), 30);
        for (std::size_t place = 1; place <= 100; ++place)
            seen[place].insert(pool[place]);
    }
    for (std::size_t place = 1; place <= 100; ++place)
        EXPECT_EQ(seen[place].size(), 26U) << place;
    std::sort(pool.begin() + 1, pool.end());
    EXPECT_EQ(sorted, pool) << "a shuffle neither adds nor loses letters";
}

} // namespace
} // namespace lexigrove
