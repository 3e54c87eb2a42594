#pragma once

#include "platform/clock.hpp"

#include <cstdint>

namespace lexigrove
{

/// The game's random generator. Its results are the same with every compiler and standard library.
class Random
{
public:
    explicit Random(std::uint64_t seed = 0) : state_(seed) {}

    /// Folds the time of day into the generator's state. The state is never replaced, so that a hundred draws within
    /// one tick of the clock are a hundred different draws.
    void reseed(double secondsSinceMidnight);

    /// A number in [0, 1), uniform in steps of 2^-53.
    double next();

    /// Reseeds from the clock's time of day, then draws.
    double reseedAndDraw(const Clock& clock)
    {
        reseed(clock.secondsSinceMidnight());
        return next();
    }

private:
    std::uint64_t state_;
};

/// The integer part of draw * count + 1, at most count: a draw of [0, 1) as a place from 1 to `count`.
int placeFromDraw(double draw, int count);

} // namespace lexigrove
