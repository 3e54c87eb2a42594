#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace lexigrove::tools
{

constexpr int samplesPerSecond = 44'100;

/// The bytes of a RIFF wave file of 16-bit mono PCM.
std::string waveFile(const std::vector<std::int16_t>& samples);

} // namespace lexigrove::tools
