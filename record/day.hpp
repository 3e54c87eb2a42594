#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace lexigrove
{

/// A day of the calendar, as the number of days since 1970-01-01.
using Day = std::chrono::sys_days;

/// "2026-11-23".
std::string textOf(Day day);

/// The day of such a text; nothing where the text has another form or the calendar no such day.
std::optional<Day> dayOf(std::string_view text);

} // namespace lexigrove
