#pragma once

#include "controls/colour.hpp"

namespace lexigrove
{

// Pure functions of plain colours; system colours are resolved beforehand.

/// The minimum contrast between a text and its background.
inline constexpr double minimumContrast = 4.5;

/// The mixture of two colours: `share` (0 to 1) of `b`, the rest of `a`.
Colour mixed(Colour a, Colour b, double share);

/// `wanted` as a text colour on one or two backgrounds: unchanged if it has the minimum contrast, otherwise moved
/// towards black or white only as far as needed. If no colour suits both backgrounds, the one that reads best on the
/// worse of them.
Colour readableText(Colour wanted, Colour background);
Colour readableText(Colour wanted, Colour background, Colour otherBackground);

/// A less prominent text: mixed with its background, but with the minimum contrast if the text itself has it.
Colour quietOn(Colour text, Colour background);

/// A face under the pointer: a little lighter, or a little darker if that would not show or would hurt its text.
Colour lifted(Colour face, Colour text);

/// The same hue and saturation at the nearest lightness with the given contrast on both backgrounds.
Colour shadeFor(Colour colour, Colour background, Colour otherBackground, double contrast);

} // namespace lexigrove
