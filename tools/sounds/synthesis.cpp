#include "tools/sounds/synthesis.hpp"

#include "tools/sounds/loudness.hpp"
#include "tools/sounds/wave_file.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace lexigrove::tools
{

namespace
{

constexpr double middleC = 261.6256;    // Hz, with A4 at 440
constexpr double attack = 0.004;        // seconds in which a note rises
constexpr double bendTime = 0.015;      // seconds in which a bend falls to 1/e
constexpr double closingFade = 0.03;    // seconds
constexpr double closingSilence = 0.01; // seconds
constexpr double fullScale = 32'767.0;

double frequencyOf(double halfTones)
{
    return middleC * std::exp2(halfTones / 12.0);
}

/// A smooth ramp from 0 to 1.
double rise(double share)
{
    return 0.5 - 0.5 * std::cos(std::numbers::pi * std::clamp(share, 0.0, 1.0));
}

void mix(std::vector<double>& signal, const Note& note)
{
    double whole = 0;
    for (const Partial& partial : note.timbre)
        whole += partial.loudness;
    double phase = 0; // in cycles; accumulated, because a bent note changes its frequency
    for (auto at = static_cast<std::size_t>(note.start * samplesPerSecond); at < signal.size(); ++at) {
        const double time = static_cast<double>(at) / samplesPerSecond - note.start;
        double swing = 0;
        for (const Partial& partial : note.timbre)
            swing += partial.loudness * std::exp(-time / (note.ring * partial.decay)) *
                     std::sin(2 * std::numbers::pi * phase * partial.ratio);
        signal[at] += note.loudness * rise(time / attack) * swing / whole;
        phase += frequencyOf(note.pitch + note.bend * std::exp(-time / bendTime)) / samplesPerSecond;
    }
}

} // namespace

Timbre wood()
{
    return {{1, 1, 1}, {4, 0.3, 0.25}, {9.2, 0.08, 0.1}};
}

Timbre glass()
{
    return {{1, 1, 1}, {2, 0.35, 0.7}, {3, 0.12, 0.45}, {5, 0.05, 0.25}};
}

Timbre hollow()
{
    return {{1, 1, 1}, {3, 0.22, 0.8}, {5, 0.07, 0.6}};
}

std::vector<std::int16_t> synthesize(const std::vector<Note>& notes, double seconds)
{
    std::vector<double> signal(static_cast<std::size_t>(seconds * samplesPerSecond));
    for (const Note& note : notes)
        mix(signal, note);
    const double gain = std::pow(10, (commonLoudness - loudnessOf(signal)) / 20);
    std::vector<std::int16_t> samples;
    samples.reserve(signal.size());
    for (std::size_t at = 0; at < signal.size(); ++at) {
        const double left = seconds - closingSilence - static_cast<double>(at) / samplesPerSecond;
        const double value = std::clamp(gain * signal[at], -1.0, 1.0) * rise(left / closingFade);
        samples.push_back(static_cast<std::int16_t>(std::lround(value * fullScale)));
    }
    return samples;
}

} // namespace lexigrove::tools
