#include "record/day.hpp"

#include <algorithm>
#include <charconv>

namespace lexigrove
{

namespace
{

/// The digits of a text from a place on; nothing where there is another character.
std::optional<unsigned> digits(std::string_view text, std::size_t place, std::size_t count)
{
    const std::string_view part = text.substr(place, count);
    unsigned number = 0;
    const auto [end, failure] = std::from_chars(part.data(), part.data() + part.size(), number);
    if (failure != std::errc{} || end != part.data() + part.size())
        return std::nullopt;
    return number;
}

std::string padded(unsigned number, std::size_t width)
{
    const std::string text = std::to_string(number);
    return std::string(width - std::min(width, text.size()), '0') + text;
}

} // namespace

std::string textOf(Day day)
{
    const std::chrono::year_month_day date(day);
    return padded(static_cast<unsigned>(static_cast<int>(date.year())), 4) + '-' +
           padded(static_cast<unsigned>(date.month()), 2) + '-' + padded(static_cast<unsigned>(date.day()), 2);
}

std::optional<Day> dayOf(std::string_view text)
{
    if (text.size() != 10 || text[4] != '-' || text[7] != '-')
        return std::nullopt;
    const auto year = digits(text, 0, 4);
    const auto month = digits(text, 5, 2);
    const auto day = digits(text, 8, 2);
    if (!year || !month || !day)
        return std::nullopt;
    const std::chrono::year_month_day date{std::chrono::year(static_cast<int>(*year)), std::chrono::month(*month),
                                           std::chrono::day(*day)};
    return date.ok() ? std::optional<Day>(date) : std::nullopt;
}

} // namespace lexigrove
