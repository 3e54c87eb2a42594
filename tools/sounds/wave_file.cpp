#include "tools/sounds/wave_file.hpp"

namespace lexigrove::tools
{

namespace
{

constexpr std::uint32_t bytesPerSample = 2;
constexpr std::uint32_t formatSize = 16;
constexpr std::uint32_t headerSize = 36; // everything between the RIFF size and the samples

/// Appends the `bytes` lowest bytes of a number, lowest first.
void append(std::string& file, std::uint32_t number, int bytes)
{
    for (int byte = 0; byte < bytes; ++byte)
        file += static_cast<char>((number >> (8 * byte)) & 0xFFU);
}

} // namespace

std::string waveFile(const std::vector<std::int16_t>& samples)
{
    const auto dataSize = static_cast<std::uint32_t>(samples.size()) * bytesPerSample;
    std::string file = "RIFF";
    append(file, headerSize + dataSize, 4);
    file += "WAVEfmt ";
    append(file, formatSize, 4);
    append(file, 1, 2); // PCM
    append(file, 1, 2); // mono
    append(file, samplesPerSecond, 4);
    append(file, samplesPerSecond * bytesPerSample, 4);
    append(file, bytesPerSample, 2);
    append(file, bytesPerSample * 8, 2);
    file += "data";
    append(file, dataSize, 4);
    for (const std::int16_t sample : samples)
        append(file, static_cast<std::uint16_t>(sample), 2);
    return file;
}

} // namespace lexigrove::tools
