#include "controls/dc.hpp"

#include <gtest/gtest.h>
#include <string>
#include <tuple>

namespace lexigrove
{
namespace
{

/// The four digits with the dots between them: l lit, d dim, h hidden, upper first.
std::string face(const Dc& clock)
{
    std::string text;
    for (int digit = 0; digit < 4; ++digit)
        text += clock.shownDigit(digit) < 0 ? "?" : std::to_string(clock.shownDigit(digit));
    std::string dots;
    for (const int dot : {Dc::upperDot, Dc::lowerDot})
        dots += !clock.lin2(dot).visible ? 'h' : clock.lit(dot) ? 'l' : 'd';
    return text.insert(2, dots);
}

int litSegments(const Dc& clock)
{
    int count = 0;
    for (int digit = 0; digit < 4; ++digit)
        for (int segment = 0; segment < 7; ++segment)
            count += clock.lit(10 * digit + segment) ? 1 : 0;
    return count;
}

// Guards the segment table, in which a swapped pair of segments still "works" but shows wrong figures; and against a
// look-up beyond the figures.
TEST(Dc, figuresLightTheirSegments)
{
    Dc clock;
    EXPECT_EQ(face(clock), "00ll00");
    clock.ClockStartValue(74 * 60); // seven: the top and both right verticals
    for (int segment = 0; segment < 7; ++segment) {
        const bool lights = segment == 0 || segment == 4 || segment == 6;
        EXPECT_EQ(clock.lin2(segment).colour, lights ? rgb(0, 244, 0) : rgb(0, 100, 0)) << segment;
    }
    constexpr std::array<int, 10> lightsOf{6, 2, 5, 5, 4, 5, 6, 3, 7, 6};
    for (std::int16_t figure = 0; figure < 10; ++figure) {
        clock.ClockStartValue(figure);
        EXPECT_EQ(clock.shownDigit(3), figure);
        EXPECT_EQ(litSegments(clock), 18 + lightsOf[static_cast<std::size_t>(figure)]);
    }
    for (const int value : {5999, 6000, 32767, -1, -32768}) {
        clock.ClockStartValue(static_cast<std::int16_t>(value));
        EXPECT_EQ(clock.shownDigit(0), value == 5999 ? 9 : -1) << value;
    }
    for (const int line : {7, 42, -1})
        EXPECT_THROW(static_cast<void>(clock.lin2(line)), std::out_of_range);
}

// Guards the one-tick distance between 00:00 and the expiry, its repetition until the clock is stopped, and against a
// counter that wraps around.
TEST(Dc, aCountdownExpiresOneTickAfterItShowsZero)
{
    Dc clock;
    clock.ClockIncrement(-1);
    clock.ClockStartValue(3);
    EXPECT_FALSE(clock.tick(0));
    EXPECT_EQ(clock.currentValue(), 3) << "a stopped clock does not step";
    clock.StartCountdown();
    for (const char* shown : {"00ll02", "00dd01", "00ll00"}) {
        EXPECT_FALSE(clock.tick(0));
        EXPECT_EQ(face(clock), shown);
    }
    EXPECT_TRUE(clock.tick(0));
    EXPECT_TRUE(clock.tick(0));
    clock.SuspendCountDown();
    EXPECT_FALSE(clock.tick(0));
    clock.ResumeCountDown();
    clock.ClockStartValue(-5); // expires at once, and the face stays
    const std::string before = face(clock);
    EXPECT_TRUE(clock.tick(0));
    EXPECT_EQ(face(clock), before);

    clock.ClockIncrement(10);
    clock.ClockStartValue(32765);
    EXPECT_FALSE(clock.tick(0));
    EXPECT_EQ(clock.currentValue(), 32767);
    clock.ClockIncrement(0);
    EXPECT_FALSE(clock.tick(0)) << "a still clock never expires";
    EXPECT_TRUE(clock.gotFocus());
    clock.ClockStartValue(0);
    clock.ShowTimeOnly(true);
    EXPECT_FALSE(clock.tick(86'400)) << "the time of day never expires, nor does it pass midnight";
    EXPECT_EQ(face(clock), "00lh00");
}

// Guards the themes' asymmetry: they change what is drawn, not the two digit properties.
TEST(Dc, themesColourTheFaceAndLeaveTheProperties)
{
    Dc clock;
    EXPECT_EQ(clock.ClockColor(), "Green");
    EXPECT_EQ(clock.Shapet().fill, 0U) << "the first name is kept without applying it";
    clock.DigitDim(11);
    clock.DigitHighlight(22);
    clock.ClockStartValue(88 * 60 + 28);
    EXPECT_EQ(clock.lin2(0).colour, 22U);

    clock.ClockColor("red");
    EXPECT_EQ(clock.ClockColor(), "red");
    EXPECT_EQ(clock.ClockBackground(), rgb(50, 0, 0));
    EXPECT_EQ(clock.Shapet().border, rgb(50, 0, 0));
    EXPECT_EQ(clock.DigitDim(), 11U);
    EXPECT_EQ(clock.DigitHighlight(), 22U);
    EXPECT_EQ(litSegments(clock), 0) << "dark until the next value";
    EXPECT_EQ(clock.lin2(13).colour, rgb(100, 0, 0));
    EXPECT_EQ(clock.lin2(Dc::lowerDot).colour, rgb(244, 0, 0));

    clock.ClockStartValue(60);
    const std::string shown = face(clock);
    clock.ClockColor("DEFAULT");
    EXPECT_EQ(face(clock), shown) << "no repaint";
    clock.ClockColor("Mauve");
    EXPECT_EQ(litSegments(clock), 0);
    EXPECT_EQ(clock.lin2(Dc::upperDot).colour, rgb(244, 0, 0));
}

// Guards the drawn face: exact places, the middle bars' shift, and one thickness for all thirty lines.
TEST(Dc, linesStandInTheirPlaces)
{
    Dc clock;
    clock.DigitWidth(5);
    using Place = std::tuple<int, int, int, int, int>;
    for (const auto& place :
         {Place{0, 150, 90, 270, 90}, Place{1, 135, 285, 255, 285} /* a pixel to the left */,
          Place{11, 510, 285, 630, 285}, Place{21, 975, 285, 1095, 285} /* so is this */,
          Place{22, 990, 495, 1110, 495}, Place{33, 1290, 135, 1290, 255}, Place{34, 1530, 135, 1530, 255},
          Place{35, 1290, 315, 1290, 435}, Place{36, 1530, 315, 1530, 435}, Place{Dc::upperDot, 810, 210, 825, 225},
          Place{Dc::lowerDot, 810, 405, 825, 420}}) {
        const int index = std::get<0>(place);
        const ClockLine line = clock.lin2(index);
        EXPECT_EQ(line.thickness, 5) << index;
        EXPECT_EQ(Place(index, line.from.x, line.from.y, line.to.x, line.to.y), place);
    }
    EXPECT_EQ(clock.Shapet().size, (Size{1650, 580}));
}

// Guards the frame's clicks, which cycle through the thicknesses and the themes.
TEST(Dc, clicksOnItsFrameChangeItsLook)
{
    Dc clock;
    clock.DigitWidth(5);
    for (const int thickness : {6, 2}) {
        frame10Released(clock, MouseButton::Left);
        EXPECT_EQ(clock.DigitWidth(), thickness);
    }
    clock.DigitWidth(32767);
    frame10Released(clock, MouseButton::Left);
    EXPECT_EQ(clock.DigitWidth(), 2);
    clock.ClockColor("DEFAULT");
    for (const char* next : {"GREEN", "BLUE", "RED", "GREEN"}) {
        frame10Released(clock, MouseButton::Right);
        EXPECT_EQ(clock.ClockColor(), next);
    }
}

// Guards restoring: what was saved comes back, and no setter's effect reaches the face.
TEST(Dc, savedPropertiesComeBackWithoutEffects)
{
    Dc clock;
    clock.ClockBackground(1);
    clock.DigitHighlight(2);
    clock.DigitDim(3);
    clock.ClockStartValue(600);
    clock.ClockIncrement(-1);
    clock.DigitWidth(4);
    clock.ShowTimeOnly(true);
    clock.ClockColor("DEFAULT");
    EXPECT_TRUE(clock.changed());
    PropertyBag bag;
    clock.writeProperties(bag);
    EXPECT_FALSE(clock.changed());
    EXPECT_EQ(bag.values.size(), 8U);

    Dc restored;
    restored.readProperties(bag);
    EXPECT_EQ(face(restored), "00ll00");
    EXPECT_EQ(restored.lin2(0).thickness, Dc().lin2(0).thickness);
    EXPECT_EQ(restored.lin2(0).colour, rgb(0, 244, 0));
    PropertyBag again;
    restored.writeProperties(again);
    EXPECT_EQ(again.values, bag.values);
}

} // namespace
} // namespace lexigrove
