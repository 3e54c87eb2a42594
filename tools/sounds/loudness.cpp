#include "tools/sounds/loudness.hpp"

#include "tools/sounds/wave_file.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace lexigrove::tools
{

namespace
{

constexpr double fast = 0.125;                                             // seconds, the time constant
constexpr double gainAtThousand = 2.0;                                     // decibels: the weighting is 0 at 1 kHz
constexpr double corners[] = {20.6, 20.6, 107.7, 737.9, 12194.2, 12194.2}; // Hz; the first four cut what is below
constexpr int lowCorners = 4;

/// A filter of the first order that keeps what is above its corner, or below it.
void filter(std::vector<double>& signal, double corner, bool keepsHigh)
{
    const double warped = std::tan(std::numbers::pi * corner / samplesPerSecond);
    const double pole = (1 - warped) / (1 + warped);
    const double gain = (keepsHigh ? 1 : warped) / (1 + warped);
    double before = 0;
    double result = 0;
    for (double& sample : signal) {
        result = pole * result + gain * (keepsHigh ? sample - before : sample + before);
        before = sample;
        sample = result;
    }
}

} // namespace

double loudnessOf(const std::vector<double>& signal)
{
    std::vector<double> weighted = signal;
    for (int i = 0; i < static_cast<int>(std::size(corners)); ++i)
        filter(weighted, corners[i], i < lowCorners);
    double level = 0;
    double highest = 0;
    for (const double sample : weighted) {
        level += (sample * sample - level) / (fast * samplesPerSecond);
        highest = std::max(highest, level);
    }
    return 10 * std::log10(highest) + gainAtThousand;
}

} // namespace lexigrove::tools
