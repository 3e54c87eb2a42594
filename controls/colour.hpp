#pragma once

#include <array>
#include <cstdint>

namespace lexigrove
{

/// A colour: red + 256 * green + 65536 * blue, or a system colour number (0x80000000 + index).
using Colour = std::uint32_t;

constexpr Colour rgb(unsigned red, unsigned green, unsigned blue)
{
    return red + 256U * green + 65536U * blue;
}
constexpr unsigned redOf(Colour c)
{
    return c & 0xFFU;
}
constexpr unsigned greenOf(Colour c)
{
    return (c >> 8) & 0xFFU;
}
constexpr unsigned blueOf(Colour c)
{
    return (c >> 16) & 0xFFU;
}

namespace system_colour
{
constexpr Colour windowBackground = 0x80000005;
constexpr Colour windowText = 0x80000008;
constexpr Colour buttonFace = 0x8000000F;
constexpr Colour buttonShadow = 0x80000010;
constexpr Colour buttonText = 0x80000012;
constexpr Colour highlight3d = 0x80000014;
} // namespace system_colour

constexpr bool isSystemColour(Colour c)
{
    return (c & 0x80000000U) != 0;
}

/// The desktop's colours by system colour index (0 to 24). A front end fills it from the toolkit's palette; until then
/// it holds the colours of a neutral light desktop.
struct SystemPalette {
    SystemPalette();
    std::array<Colour, 25> entries;

    /// `c` as a plain colour: `c` itself, or the entry of a system colour (black for an unknown index).
    [[nodiscard]] Colour resolve(Colour c) const;
};

/// Contrast ratio of two plain colours, 1 to 21, from the relative luminances of WCAG 2.
double contrastRatio(Colour a, Colour b);

/// Black or white, whichever reads better on a plain background.
Colour readableOn(Colour background);

} // namespace lexigrove
