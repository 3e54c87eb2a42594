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

    /// Mixes the time of day into the state without replacing it, so that draws within one tick of the clock still
    /// differ.
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

/// Maps a draw from [0, 1) to a place from 1 to `count`: the integer part of draw * count + 1, at most `count`.
int placeFromDraw(double draw, int count);

} // namespace lexigrove
