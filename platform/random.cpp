#include "platform/random.hpp"

#include <algorithm>
#include <bit>

namespace lexigrove
{

namespace
{

/// The output function of SplitMix64 (Steele, Lea and Flood, 2014): every bit of the state affects every bit of the
/// result.
std::uint64_t mix(std::uint64_t z)
{
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9U;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBU;
    return z ^ (z >> 31);
}

} // namespace

void Random::reseed(double secondsSinceMidnight)
{
    state_ = mix(state_ ^ std::bit_cast<std::uint64_t>(secondsSinceMidnight));
}

double Random::next()
{
    state_ += 0x9E3779B97F4A7C15U; // the golden ratio in 64 bits: the state visits every value
    return static_cast<double>(mix(state_) >> 11) * 0x1.0p-53;
}

int placeFromDraw(double draw, int count)
{
    return std::min(static_cast<int>(draw * count) + 1, count);
}

} // namespace lexigrove
