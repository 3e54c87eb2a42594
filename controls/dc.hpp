#pragma once

#include "controls/geometry.hpp"
#include "controls/mouse_button.hpp"
#include "controls/property_bag.hpp"

#include <array>
#include <cstdint>
#include <string>
#include <utility>

namespace lexigrove
{

/// One line of the clock's face as it would be painted.
struct ClockLine {
    Point from;
    Point to;
    int thickness = 1; ///< pixels at the design resolution
    Colour colour = 0;
    bool visible = true;
};

/// The background rectangle of the clock.
struct ClockRectangle {
    Point topLeft;
    Size size;
    Colour fill = 0;
    Colour border = 0;
};

/// The seven-segment clock: a countdown in minutes and seconds, or the time of day in hours and minutes. It paints
/// nothing itself: it holds the colours and places of the lines that a widget then paints. A front end calls `tick`
/// every second while `running()`.
class Dc
{
public:
    static constexpr int Width = 1650; ///< units, see geometry.hpp
    static constexpr int Height = 600;

    /// A stopped clock in green that shows 00:00.
    Dc();

    // The properties, in the order of the control's interface.

    [[nodiscard]] Colour ClockBackground() const { return ClockBackground_; }
    void ClockBackground(Colour value);
    /// The colours last set here. A theme (`ClockColor`) changes the colours drawn, but not these two.
    [[nodiscard]] Colour DigitHighlight() const { return DigitHighlight_; }
    void DigitHighlight(Colour value); ///< leaves all segments unlit until the next value is shown
    [[nodiscard]] Colour DigitDim() const { return DigitDim_; }
    void DigitDim(Colour value); ///< leaves all segments unlit until the next value is shown

    /// Seconds. Setting it also sets the current value and shows it.
    [[nodiscard]] std::int16_t ClockStartValue() const { return ClockStartValue_; }
    void ClockStartValue(std::int16_t value);
    /// Seconds added at each tick; -1 makes a countdown.
    [[nodiscard]] std::int16_t ClockIncrement() const { return ClockIncrement_; }
    void ClockIncrement(std::int16_t value) { store(ClockIncrement_, value); }

    /// Starts the timer and shows both dots. The current value does not change.
    void StartCountdown();

    /// Thickness of every segment and both dots in pixels.
    [[nodiscard]] std::int16_t DigitWidth() const { return DigitWidth_; }
    void DigitWidth(std::int16_t value)
    {
        store(DigitWidth_, value);
        thickness_ = value;
    }
    /// Shows the time of day instead of the countdown, from the next tick on.
    [[nodiscard]] bool ShowTimeOnly() const { return ShowTimeOnly_; }
    void ShowTimeOnly(bool value) { store(ShowTimeOnly_, value); }

    void ResumeCountDown() { running_ = true; }
    void SuspendCountDown() { running_ = false; }

    /// "GREEN", "RED" and "BLUE" in any case apply a theme, and all segments stay unlit until the next value is shown.
    /// "DEFAULT" leaves the colours to the container.
    [[nodiscard]] const std::string& ClockColor() const { return ClockColor_; }
    void ClockColor(std::string name);

    // The timer and the focus. True means that `ClockExpired` is raised.

    [[nodiscard]] bool running() const { return running_; }
    /// One tick of the timer; a stopped clock ignores it. An expired clock raises the event at every tick until it is
    /// stopped.
    [[nodiscard]] bool tick(double secondsSinceMidnight);
    /// Receiving the input focus counts as expiry, so a container that does not want that never gives the clock the
    /// focus.
    [[nodiscard]] bool gotFocus() const { return true; }

    /// Seconds left in the countdown.
    [[nodiscard]] std::int16_t currentValue() const { return currentValue_; }

    // What to paint.

    static constexpr int upperDot = 40;
    static constexpr int lowerDot = 41;

    /// Whether the face has a line of this index: segment s (0 to 6) of digit d (0 to 3) is 10 * d + s; 40 and 41 are
    /// the upper and lower dot.
    [[nodiscard]] static bool hasLine(int index);
    /// A line of the face. Throws std::out_of_range for an index without a line.
    [[nodiscard]] ClockLine lin2(int index) const;
    /// The rectangle behind the digits.
    [[nodiscard]] const ClockRectangle& Shapet() const { return Shapet_; }

    /// True when the line has the lit colour of the colour table.
    [[nodiscard]] bool lit(int index) const;
    /// The figure that the lit segments of digit 0 to 3 form, or -1 when they form none.
    [[nodiscard]] int shownDigit(int digit) const;

    /// Increases with every visible change: a front end repaints when it differs.
    [[nodiscard]] std::uint32_t revision() const { return revision_; }

    // Persistence, under the properties' exact names.

    /// True when a setter has changed any property since the last read or write.
    [[nodiscard]] bool changed() const { return changed_; }
    void writeProperties(PropertyBag& bag);
    /// Restores every property, using defaults for those not saved, without the setters' effects on the face.
    void readProperties(const PropertyBag& bag);

private:
    static constexpr int digitCount = 4;
    static constexpr int segmentCount = 7;

    void showValue(int seconds);
    void showTimeOfDay(double secondsSinceMidnight);
    void showDigit(int digit, int figure);
    void repaint();
    void applyTheme(Colour background, Colour dim, Colour highlight);
    template <typename T>
    void store(T& member, T value)
    {
        member = std::move(value);
        changed_ = true;
        ++revision_;
    }
    template <typename Visit>
    void visitProperties(Visit visit);

    Colour ClockBackground_ = 0;
    Colour DigitHighlight_ = 0;
    Colour DigitDim_ = 0;
    std::int16_t ClockStartValue_ = 0;
    std::int16_t ClockIncrement_ = 0;
    std::int16_t DigitWidth_ = 0;
    bool ShowTimeOnly_ = false;
    std::string ClockColor_ = "Green";

    std::int16_t currentValue_ = 0;
    std::array<Colour, 2> colours_{rgb(0, 100, 0), rgb(0, 244, 0)}; ///< unlit, lit
    std::array<std::uint8_t, 42> lit_{};                            ///< by line index
    std::array<bool, 2> dotVisible_{true, true};                    ///< upper, lower
    int thickness_ = 1;
    ClockRectangle Shapet_;
    std::uint32_t revision_ = 0;
    bool running_ = false;
    bool changed_ = false;
};

/// Handles a mouse button released over `Frame10`, the clock's frame: left makes the lines thicker (2 to 6, then round
/// again), right selects the next theme, any other does nothing.
void frame10Released(Dc& clock, MouseButton button);

} // namespace lexigrove
