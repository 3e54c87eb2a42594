#pragma once

#include <vector>

namespace lexigrove::tools
{

/// How loud a sound is for the ear, in decibels of full scale: its highest level with frequency weighting A and time
/// weighting Fast, as a sound level meter shows it (IEC 61672). `signal` has `samplesPerSecond` samples a second, full
/// scale is 1; silence is at minus infinity.
double loudnessOf(const std::vector<double>& signal);

/// What all sounds of the game have, in the decibels of `loudnessOf`: as loud as the lowest of them can be made without
/// filling the whole scale.
constexpr double commonLoudness = -22;

} // namespace lexigrove::tools
