#include "controls/dc.hpp"

#include "platform/ascii.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace lexigrove
{

namespace
{

/// The segments of each figure from 0 to 9: top, middle, bottom, upper left, upper right, lower left, lower right.
constexpr std::array<std::string_view, 10> patterns{
    "1011111", "0000101", "1110110", "1110101", "0101101", "1111001", "1111011", "1000101", "1111111", "1111101",
};

constexpr std::array<int, 4> digitLeft{90, 450, 930, 1290};

std::int16_t toInt16(int value)
{
    constexpr int lowest = std::numeric_limits<std::int16_t>::min();
    constexpr int highest = std::numeric_limits<std::int16_t>::max();
    return static_cast<std::int16_t>(std::clamp(value, lowest, highest));
}

int divideDown(int dividend, int divisor)
{
    return static_cast<int>(std::floor(static_cast<double>(dividend) / divisor));
}

/// The two ends of a segment. By design, the middle bars of digits 0 and 2 are a pixel further left.
std::pair<Point, Point> segmentPlace(int digit, int segment)
{
    const int left = digitLeft.at(static_cast<std::size_t>(digit));
    const int right = left + 240;
    const int middleShift = digit % 2 == 0 ? -unitsPerPixel : 0;
    switch (segment) {
    case 0:
        return {{left + 60, 90}, {left + 180, 90}};
    case 1:
        return {{left + 60 + middleShift, 285}, {left + 180 + middleShift, 285}};
    case 2:
        return {{left + 60, 495}, {left + 180, 495}};
    case 3:
        return {{left, 135}, {left, 255}};
    case 4:
        return {{right, 135}, {right, 255}};
    case 5:
        return {{left, 315}, {left, 435}};
    default:
        return {{right, 315}, {right, 435}};
    }
}

} // namespace

Dc::Dc() : Shapet_{{0, 0}, {Width, 580}, 0, 0}
{
    repaint();
    showValue(0);
}

void Dc::ClockBackground(Colour value)
{
    store(ClockBackground_, value);
    Shapet_.fill = Shapet_.border = value;
}

void Dc::DigitHighlight(Colour value)
{
    store(DigitHighlight_, value);
    colours_[1] = value;
    repaint();
}

void Dc::DigitDim(Colour value)
{
    store(DigitDim_, value);
    colours_[0] = value;
    repaint();
}

void Dc::ClockStartValue(std::int16_t value)
{
    store(ClockStartValue_, value);
    currentValue_ = value;
    showValue(value);
}

void Dc::StartCountdown()
{
    running_ = true;
    dotVisible_ = {true, true};
    ++revision_;
}

void Dc::ClockColor(std::string name)
{
    const std::string theme = ascii::upperCase(name);
    store(ClockColor_, std::move(name));
    if (theme == "DEFAULT")
        return;
    if (theme == "GREEN")
        applyTheme(rgb(0, 50, 0), rgb(0, 100, 0), rgb(0, 244, 0));
    else if (theme == "RED")
        applyTheme(rgb(50, 0, 0), rgb(100, 0, 0), rgb(244, 0, 0));
    else if (theme == "BLUE")
        applyTheme(rgb(0, 0, 50), rgb(0, 0, 100), rgb(0, 0, 244));
    repaint();
}

void Dc::applyTheme(Colour background, Colour dim, Colour highlight)
{
    ClockBackground(background);
    colours_ = {dim, highlight};
}

bool Dc::tick(double secondsSinceMidnight)
{
    if (!running_)
        return false;
    if (ShowTimeOnly_) {
        showTimeOfDay(secondsSinceMidnight);
        return false;
    }
    if (currentValue_ <= 0)
        return true;
    currentValue_ = toInt16(currentValue_ + ClockIncrement_);
    showValue(currentValue_);
    return false;
}

void Dc::showValue(int seconds)
{
    const int minutes = divideDown(seconds, 60);
    const int rest = seconds - 60 * minutes;
    const int tens = divideDown(minutes, 10);
    showDigit(0, tens);
    showDigit(1, minutes - 10 * tens);
    showDigit(2, rest / 10);
    showDigit(3, rest % 10);
    lit_[upperDot] = lit_[lowerDot] = rest % 2 == 0;
    ++revision_;
}

void Dc::showTimeOfDay(double secondsSinceMidnight)
{
    constexpr int day = 24 * 60 * 60;
    const int time = static_cast<int>(std::clamp(secondsSinceMidnight, 0.0, static_cast<double>(day))) % day;
    const int hours = time / 3600;
    const int minutes = time / 60 % 60;
    showDigit(0, hours / 10);
    showDigit(1, hours % 10);
    showDigit(2, minutes / 10);
    showDigit(3, minutes % 10);
    const bool secondHalf = time % 60 > 29;
    dotVisible_ = {!secondHalf, secondHalf};
    ++revision_;
}

/// A figure without a pattern (a hundred minutes or more, or a negative value) leaves its digit dark.
void Dc::showDigit(int digit, int figure)
{
    const bool known = figure >= 0 && figure <= 9;
    const std::string_view pattern = known ? patterns[static_cast<std::size_t>(figure)] : "0000000";
    const std::ptrdiff_t first = 10 * static_cast<std::ptrdiff_t>(digit);
    std::transform(pattern.begin(), pattern.end(), lit_.begin() + first, [](char c) { return c == '1'; });
}

void Dc::repaint()
{
    lit_.fill(false);
    lit_[upperDot] = lit_[lowerDot] = true;
    Shapet_.fill = Shapet_.border = ClockBackground_;
    ++revision_;
}

ClockLine Dc::lin2(int index) const
{
    const Colour colour = colours_[lit(index) ? 1 : 0];
    if (index == upperDot)
        return {{810, 210}, {825, 225}, thickness_, colour, dotVisible_[0]};
    if (index == lowerDot)
        return {{810, 405}, {825, 420}, thickness_, colour, dotVisible_[1]};
    const auto [from, to] = segmentPlace(index / 10, index % 10);
    return {from, to, thickness_, colour, true};
}

bool Dc::hasLine(int index)
{
    const bool segment = index >= 0 && index < 10 * digitCount && index % 10 < segmentCount;
    return segment || index == upperDot || index == lowerDot;
}

bool Dc::lit(int index) const
{
    if (!hasLine(index))
        throw std::out_of_range("the clock has no such line");
    return lit_[static_cast<std::size_t>(index)];
}

int Dc::shownDigit(int digit) const
{
    std::string pattern;
    for (int segment = 0; segment < segmentCount; ++segment)
        pattern += lit(10 * digit + segment) ? '1' : '0';
    const auto found = std::find(patterns.begin(), patterns.end(), pattern);
    return found == patterns.end() ? -1 : static_cast<int>(found - patterns.begin());
}

template <typename Visit>
void Dc::visitProperties(Visit visit)
{
    visit("ClockBackground", ClockBackground_, 0);
    visit("DigitHighlight", DigitHighlight_, 0);
    visit("DigitDim", DigitDim_, 0);
    visit("ClockStartValue", ClockStartValue_, 0);
    visit("ClockIncrement", ClockIncrement_, 0);
    visit("DigitWidth", DigitWidth_, 0);
    visit("ShowTimeOnly", ShowTimeOnly_, false);
    visit("ClockColor", ClockColor_, "Green");
    changed_ = false;
}

void Dc::writeProperties(PropertyBag& bag)
{
    visitProperties(PropertyWriter{bag});
}

void Dc::readProperties(const PropertyBag& bag)
{
    visitProperties(PropertyReader{bag});
}

void frame10Released(Dc& clock, MouseButton button)
{
    if (button == MouseButton::Left) {
        const int thicker = clock.DigitWidth() + 1;
        clock.DigitWidth(toInt16(thicker >= 7 ? 2 : thicker));
    } else if (button == MouseButton::Right) {
        const std::string theme = ascii::upperCase(clock.ClockColor());
        clock.ClockColor(theme == "GREEN" ? "BLUE" : theme == "BLUE" ? "RED" : "GREEN");
    }
}

} // namespace lexigrove
