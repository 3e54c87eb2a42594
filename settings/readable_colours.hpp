#pragma once

#include "controls/colour.hpp"

namespace lexigrove
{

// Pure functions of plain colours; system colours are resolved before.

/// The least contrast of a text and its ground.
inline constexpr double leastContrast = 4.5;

/// The mixture of two colours: `share` (0 to 1) of `b`, the rest of `a`.
Colour mixed(Colour a, Colour b, double share);

/// `wanted` as a text on a ground, or on two: itself where it reads with the least contrast, else moved towards black
/// or white, only so far as it must. Two grounds that no text can serve get the one that reads best on the worse of
/// them.
Colour readableText(Colour wanted, Colour ground);
Colour readableText(Colour wanted, Colour ground, Colour otherGround);

/// A text that stands back: mixed with its ground, yet with the least contrast where the text itself has it.
Colour quietOn(Colour text, Colour ground);

/// A face under the pointer: a little lighter, or a little darker where that would not show or its text would suffer.
Colour lifted(Colour face, Colour text);

/// The same hue and saturation at the nearest lightness that reads on both grounds with the given contrast.
Colour shadeFor(Colour colour, Colour ground, Colour otherGround, double contrast);

} // namespace lexigrove
