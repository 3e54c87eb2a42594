#pragma once

#include "controls/colour.hpp"
#include "scores/statistics.hpp"

#include <array>
#include <string>
#include <variant>
#include <vector>

namespace lexigrove
{

/// A straight line of the chart.
struct ChartLine {
    int x1, y1, x2, y2;
    Colour colour;
    int width; ///< in pixels
};

/// The outline of a rectangle between two corners.
struct ChartFrame {
    int left, top, right, bottom;
    Colour colour;
    int width; ///< in pixels
};

/// A text whose upper left corner is at (x, y).
struct ChartText {
    int x, y;
    std::string text;
    Colour colour;
    std::string font;
    int pointSize;
};

/// The chart's colours; a front end may paint others in their place. The first four have a number in the sixteen-colour
/// palette.
namespace chart_colour
{
inline constexpr Colour provided = rgb(0, 0, 0);    ///< 0, black
inline constexpr Colour used = rgb(255, 0, 0);      ///< 12, light red
inline constexpr Colour numbers = rgb(255, 255, 0); ///< 14, yellow
inline constexpr Colour frame = rgb(255, 255, 255); ///< 15, white
inline constexpr Colour background = rgb(120, 120, 120);
inline constexpr Colour letters = rgb(220, 220, 220);
} // namespace chart_colour

/// What `Picture1` of the statistics window shows: items in the order in which they are painted over the background.
/// All places are in units of 1/1440 inch, with y increasing downwards. Whatever runs past the picture's edge is
/// clipped.
struct Chart {
    Colour background;
    int width, height; ///< the part of the plane that the picture shows
    std::vector<std::variant<ChartLine, ChartFrame, ChartText>> items;
};

/// The font that determines the chart's letter width: a front end measures its "W", rounded to a whole number of
/// picture units.
inline constexpr const char* chartFont = "courier new";
inline constexpr int chartFontSize = 10;

/// The statistics window `Form4`: the counts of both sides, and the bar chart of letters provided and letters used.
class StatisticsForm
{
public:
    explicit StatisticsForm(const Statistics& statistics) : statistics_(statistics) {}

    /// Fills the window from the table, on every activation. `lettersProvided` 1 to 26 are the pool's letter counts,
    /// which are also percentages, because the pool holds 100 letters. In a solo game the computer's column is disabled
    /// and keeps what it last showed.
    void activate(bool computerGame, const std::array<int, 27>& lettersProvided);

    /// The chart for letters `letterWidth` units wide.
    [[nodiscard]] Chart chart(int letterWidth) const;

    /// The percentage that letter 1 to 26 has among the letters used, rounded down.
    [[nodiscard]] int usedPercentage(int letter) const { return used_.at(static_cast<std::size_t>(letter)); }

    std::array<std::string, 17> sval; ///< the value labels 1 to 16: the player's and, in `Frame2`, the computer's

    /// Whether the game is against the computer: `Frame2` is enabled.
    [[nodiscard]] bool isComputerGame() const { return computerGame_; }

private:
    const Statistics& statistics_;
    bool computerGame_ = false;
    std::array<int, 27> provided_{};
    std::array<int, 27> used_{};
};

} // namespace lexigrove
