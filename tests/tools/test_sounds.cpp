#include "platform/text_file.hpp"
#include "tools/sounds/cues.hpp"
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

const std::set<std::string> names{"cnqmenu.wav", "cnqwon.wav", "err3.wav",     "beep3.wav",
                                  "beep4.wav",   "click.wav",  "cnqendgm.wav", "thanks.wav"};

std::uint32_t number(const std::string& bytes, std::size_t at, int size)
{
    std::uint32_t value = 0;
    for (int byte = size - 1; byte >= 0; --byte)
        value = value << 8U | static_cast<std::uint8_t>(bytes.at(at + static_cast<std::size_t>(byte)));
    return value;
}

/// The samples of a built wave file, its header checked as a strict player would.
std::vector<int> samplesOf(const std::string& name)
{
    const std::string file = readFile(GAME_FILES + name);
    EXPECT_EQ(file.substr(0, 4) + file.substr(8, 8) + file.substr(36, 4), "RIFFWAVEfmt data");
    EXPECT_EQ(number(file, 4, 4), file.size() - 8);
    EXPECT_EQ(number(file, 16, 4), 16U);
    EXPECT_EQ(number(file, 20, 2), 1U) << "PCM";
    EXPECT_EQ(number(file, 22, 2), 1U) << "mono";
    EXPECT_EQ(number(file, 24, 4), 44'100U);
    EXPECT_EQ(number(file, 28, 4), 88'200U);
    EXPECT_EQ(number(file, 32, 2), 2U);
    EXPECT_EQ(number(file, 34, 2), 16U);
    EXPECT_EQ(number(file, 40, 4), file.size() - 44);
    std::vector<int> samples;
    for (std::size_t at = 44; at + 1 < file.size(); at += 2)
        samples.push_back(static_cast<std::int16_t>(number(file, at, 2)));
    return samples;
}

/// How often the sound swings through zero, per second of its audible part: a rough pitch, in half turns.
double roughPitch(const std::vector<int>& samples)
{
    int crossings = 0;
    int audible = 0;
    int sign = 0;
    for (const int sample : samples) {
        if (std::abs(sample) < 100)
            continue;
        ++audible;
        const int now = sample > 0 ? 1 : -1;
        crossings += sign != 0 && now != sign ? 1 : 0;
        sign = now;
    }
    return crossings * static_cast<double>(samplesPerSecond) / audible / 2;
}

// Guards against files that a player refuses, that are cut off, distorted, or too long or loud for a game.
TEST(Sounds, AreShortSoftAndClean)
{
    for (const std::string& name : names) {
        SCOPED_TRACE(name);
        const std::vector<int> samples = samplesOf(name);
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
        EXPECT_GT(peak, 3'000) << "audible";
        EXPECT_LT(peak, 22'000) << "soft, and room for two at once";
        EXPECT_LT(jump, peak / 2) << "a step that clicks";
        EXPECT_EQ(samples.front(), 0);
        for (std::size_t back = 1; back <= samplesPerSecond / 200; ++back)
            ASSERT_EQ(samples[samples.size() - back], 0) << "ends in silence";
    }
}

// Guards against two events that sound alike, and against an error that is not the low one.
TEST(Sounds, TellTheirEventsApart)
{
    std::map<std::string, double> pitch;
    std::set<std::string> contents;
    for (const std::string& name : names) {
        contents.insert(readFile(GAME_FILES + name));
        pitch[name] = roughPitch(samplesOf(name));
    }
    EXPECT_EQ(contents.size(), names.size());
    EXPECT_LT(pitch["beep4.wav"], 0.75 * pitch["beep3.wav"]) << "the removal lies below the tick";
    for (const std::string& name : names) {
        if (name == "err3.wav")
            continue;
        EXPECT_LT(pitch["err3.wav"], 0.6 * pitch[name]) << name;
    }
    EXPECT_GT(samplesOf("cnqwon.wav").size(), 5 * samplesOf("beep3.wav").size()) << "a flourish, not a tick";
}

// Guards against a wrap-around, the ugliest of noises, where notes add up to more than full scale.
TEST(Sounds, AnOverloadIsHeldAtFullScale)
{
    const std::vector<Note> notes(20, Note{0, 0, 1, 0.9, glass()});
    const std::vector<std::int16_t> samples = synthesize(notes, 0.2);
    for (std::size_t at = 1; at < samples.size(); ++at)
        ASSERT_LT(std::abs(samples[at] - samples[at - 1]), 40'000) << at;
}

} // namespace
} // namespace lexigrove::tools
