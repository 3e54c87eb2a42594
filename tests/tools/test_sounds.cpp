#include "platform/text_file.hpp"
#include "tools/sounds/loudness.hpp"
#include "tools/sounds/wave_file.hpp"

#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <map>
#include <set>

namespace lexigrove::tools
{
namespace
{

std::uint32_t number(const std::string& bytes, std::size_t at, int size)
{
    std::uint32_t value = 0;
    for (int byte = size - 1; byte >= 0; --byte)
        value = value << 8U | static_cast<std::uint8_t>(bytes.at(at + static_cast<std::size_t>(byte)));
    return value;
}

/// The samples of a wave file, after checking its header as strictly as any player: PCM with one channel and 16 bits.
std::vector<int> samplesOf(const std::string& file)
{
    EXPECT_EQ(file.substr(0, 4) + file.substr(8, 8) + file.substr(36, 4), "RIFFWAVEfmt data");
    EXPECT_EQ(number(file, 4, 4), file.size() - 8);
    EXPECT_EQ(number(file, 40, 4), file.size() - 44);
    const std::vector<std::pair<std::size_t, std::uint32_t>> format{
        {16, 16}, {20, 1 | 1 << 16}, {24, 44'100}, {28, 88'200}, {32, 2 | 16 << 16}};
    for (const auto& [place, value] : format)
        EXPECT_EQ(number(file, place, 4), value) << place;
    std::vector<int> samples;
    for (std::size_t at = 44; at + 1 < file.size(); at += 2)
        samples.push_back(static_cast<std::int16_t>(number(file, at, 2)));
    return samples;
}

/// How often the sound crosses zero, per second of its audible part: a rough pitch, in half cycles.
double roughPitch(const std::vector<int>& samples)
{
    int crossings = 0;
    int audible = 0;
    int last = 0;
    for (const int sample : samples) {
        if (std::abs(sample) < 100)
            continue;
        ++audible;
        crossings += last != 0 && (sample > 0) != (last > 0) ? 1 : 0;
        last = sample;
    }
    return crossings * static_cast<double>(samplesPerSecond) / audible / 2;
}

// Guards against files that a player refuses, that are cut off, distorted, or too long or loud for a game; two events
// that sound alike, or one that is louder for the ear than the others; and an error sound that is not the lowest.
TEST(Sounds, AreShortSoftCleanAndTellApart)
{
    std::map<std::string, double> pitch;
    std::map<std::string, std::size_t> length;
    std::set<std::string> contents;
    for (const char* name : {"cnqmenu.wav", "cnqwon.wav", "err3.wav", "beep3.wav", "beep4.wav", "click.wav",
                             "cnqendgm.wav", "thanks.wav", "push.wav", "redtile.wav"}) {
        SCOPED_TRACE(name);
        const std::string file = readFile(std::string(GAME_FILES) + name);
        EXPECT_TRUE(contents.insert(file).second);
        const std::vector<int> samples = samplesOf(file);
        pitch[name] = roughPitch(samples);
        length[name] = samples.size();
        EXPECT_GE(samples.size(), samplesPerSecond / 20U);
        EXPECT_LE(samples.size(), samplesPerSecond * 3U / 2U);
        int peak = 0;
        int jump = 0;
        int last = 0;
        for (const int sample : samples) {
            peak = std::max(peak, std::abs(sample));
            jump = std::max(jump, std::abs(sample - last));
            last = sample;
        }
        EXPECT_LT(peak, 26'000) << "room for two at once";
        std::vector<double> signal(samples.begin(), samples.end());
        for (double& sample : signal)
            sample /= 32'767;
        EXPECT_NEAR(loudnessOf(signal), commonLoudness, 0.5);
        EXPECT_LT(jump, peak / 2) << "a step that clicks";
        EXPECT_EQ(samples.front(), 0);
        for (std::size_t back = 1; back <= samplesPerSecond / 200; ++back)
            ASSERT_EQ(samples[samples.size() - back], 0) << "ends in silence";
    }
    EXPECT_LT(pitch["beep4.wav"], 0.75 * pitch["beep3.wav"]) << "the removal lies below the tick";
    for (const auto& [name, value] : pitch)
        EXPECT_LE(pitch["err3.wav"], name == "err3.wav" ? value : 0.6 * value) << name;
    EXPECT_GT(length["cnqwon.wav"], 5 * length["beep3.wav"]) << "a flourish, not a tick";
}

} // namespace
} // namespace lexigrove::tools
