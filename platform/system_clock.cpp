#include "platform/system_clock.hpp"

#include "platform/system.hpp"

#include <algorithm>
#include <array>
#include <chrono>
#include <ctime>

namespace lexigrove
{

namespace
{

using SystemTime = std::chrono::system_clock;

std::tm localTimeAt(SystemTime::time_point moment)
{
    return localTime(SystemTime::to_time_t(moment));
}

std::string formatted(const char* form, const std::tm& time)
{
    std::array<char, 128> text{};
    const std::size_t length = std::strftime(text.data(), text.size(), form, &time);
    return {text.data(), length};
}

/// The game's texts are single-byte; a locale's need not be.
std::string shortForm(const char* localeForm, const char* plainForm, const std::tm& time)
{
    const std::string text = formatted(localeForm, time);
    const bool plain = std::all_of(text.begin(), text.end(), [](char c) { return c >= ' ' && c <= '~'; });
    return plain && !text.empty() ? text : formatted(plainForm, time);
}

std::string shortTimeOf(const std::tm& time)
{
    return shortForm("%X", "%H:%M:%S", time);
}

} // namespace

std::chrono::year_month_day Clock::today() const
{
    const std::tm local = localTimeAt(SystemTime::now());
    return std::chrono::year(local.tm_year + 1900) / (local.tm_mon + 1) / local.tm_mday;
}

double SystemClock::secondsSinceMidnight() const
{
    const SystemTime::time_point now = SystemTime::now();
    const std::chrono::duration<double> fraction = now - std::chrono::floor<std::chrono::seconds>(now);
    const std::tm local = localTimeAt(now);
    return local.tm_hour * 3600 + local.tm_min * 60 + std::min(local.tm_sec, 59) + fraction.count();
}

std::string SystemClock::shortDate() const
{
    return shortForm("%x", "%Y-%m-%d", localTimeAt(SystemTime::now()));
}

std::string SystemClock::shortTime() const
{
    return shortTimeOf(localTimeAt(SystemTime::now()));
}

std::string FrozenClock::shortTime() const
{
    std::tm time = localTimeAt(SystemTime::now());
    const int seconds = static_cast<int>(seconds_);
    time.tm_hour = seconds / 3600;
    time.tm_min = seconds / 60 % 60;
    time.tm_sec = seconds % 60;
    return shortTimeOf(time);
}

} // namespace lexigrove
