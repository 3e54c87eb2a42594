#include "controls/colour.hpp"

#include <algorithm>
#include <cmath>

namespace lexigrove
{

namespace
{

/// Relative luminance of WCAG 2.1, 0 for black to 1 for white.
double luminance(Colour c)
{
    const auto linear = [](unsigned channel) {
        const double share = channel / 255.0;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(redOf(c)) + 0.7152 * linear(greenOf(c)) + 0.0722 * linear(blueOf(c));
}

} // namespace

SystemPalette::SystemPalette()
    : entries{
          rgb(232, 232, 232), // 0 scrollbar
          rgb(214, 218, 216), // 1 desktop
          rgb(62, 98, 140),   // 2 active title bar
          rgb(196, 200, 204), // 3 inactive title bar
          rgb(240, 240, 240), // 4 menu bar
          rgb(255, 255, 255), // 5 window background
          rgb(100, 100, 100), // 6 window frame
          rgb(26, 26, 26),    // 7 menu text
          rgb(26, 26, 26),    // 8 window text
          rgb(255, 255, 255), // 9 title bar text
          rgb(180, 180, 180), // 10 active border
          rgb(212, 212, 212), // 11 inactive border
          rgb(171, 171, 171), // 12 application workspace
          rgb(42, 98, 168),   // 13 highlight
          rgb(255, 255, 255), // 14 highlight text
          rgb(240, 240, 240), // 15 button face
          rgb(160, 160, 160), // 16 button shadow
          rgb(109, 109, 109), // 17 grey text
          rgb(26, 26, 26),    // 18 button text
          rgb(60, 60, 60),    // 19 inactive caption text
          rgb(255, 255, 255), // 20 3D highlight
          rgb(105, 105, 105), // 21 3D dark shadow
          rgb(227, 227, 227), // 22 3D light
          rgb(26, 26, 26),    // 23 info text
          rgb(255, 252, 230), // 24 info background
      }
{
}

Colour SystemPalette::resolve(Colour c) const
{
    if (!isSystemColour(c))
        return c;
    const std::size_t index = c & 0x7FFFFFFFU;
    return index < entries.size() ? entries[index] : rgb(0, 0, 0);
}

double contrastRatio(Colour a, Colour b)
{
    const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)}); // the list overload returns copies
    return (lighter + 0.05) / (darker + 0.05);
}

Colour readableOn(Colour background)
{
    constexpr Colour black = rgb(0, 0, 0);
    constexpr Colour white = rgb(255, 255, 255);
    return contrastRatio(black, background) >= contrastRatio(white, background) ? black : white;
}

} // namespace lexigrove
