#include "settings/readable_colours.hpp"

#include <algorithm>
#include <cmath>

namespace lexigrove
{

namespace
{

constexpr Colour black = rgb(0, 0, 0);
constexpr Colour white = rgb(255, 255, 255);
constexpr int steps = 50; // a fiftieth of the way is too small a step to see

double worseContrast(Colour text, Colour background, Colour otherBackground)
{
    return std::min(contrastRatio(text, background), contrastRatio(text, otherBackground));
}

/// Hue in sixths of the circle, saturation and lightness 0 to 1.
struct Hsl {
    double hue, saturation, lightness;
};

Hsl hslOf(Colour colour)
{
    const double r = redOf(colour) / 255.0;
    const double g = greenOf(colour) / 255.0;
    const double b = blueOf(colour) / 255.0;
    const double high = std::max({r, g, b});
    const double low = std::min({r, g, b});
    const double range = high - low;
    Hsl hsl{0, 0, (high + low) / 2};
    if (range == 0)
        return hsl;
    hsl.saturation = range / (1 - std::abs(high + low - 1));
    if (high == r)
        hsl.hue = (g - b) / range + (g < b ? 6 : 0);
    else
        hsl.hue = high == g ? (b - r) / range + 2 : (r - g) / range + 4;
    return hsl;
}

Colour colourOf(const Hsl& hsl)
{
    const double chroma = (1 - std::abs(2 * hsl.lightness - 1)) * hsl.saturation;
    const auto channel = [&](double place) { // the distance from the channel's own hue determines its strength
        const double distance = std::abs(std::remainder(hsl.hue - place, 6.0));
        const double full = std::clamp(2 - distance, 0.0, 1.0);
        return static_cast<unsigned>(std::lround(255 * (hsl.lightness - chroma / 2 + chroma * full)));
    };
    return rgb(channel(0), channel(2), channel(4));
}

} // namespace

Colour mixed(Colour a, Colour b, double share)
{
    const auto mix = [share](unsigned x, unsigned y) {
        return static_cast<unsigned>(std::lround(x + (static_cast<double>(y) - x) * share));
    };
    return rgb(mix(redOf(a), redOf(b)), mix(greenOf(a), greenOf(b)), mix(blueOf(a), blueOf(b)));
}

Colour readableText(Colour wanted, Colour background)
{
    return readableText(wanted, background, background);
}

Colour readableText(Colour wanted, Colour background, Colour otherBackground)
{
    const bool darker =
        worseContrast(black, background, otherBackground) >= worseContrast(white, background, otherBackground);
    const Colour end = darker ? black : white;
    for (int i = 0; i < steps; ++i) {
        const Colour text = mixed(wanted, end, static_cast<double>(i) / steps);
        if (worseContrast(text, background, otherBackground) >= minimumContrast)
            return text;
    }
    return end;
}

Colour quietOn(Colour text, Colour background)
{
    constexpr double quietest = 0.35;
    for (int i = 0; i < steps; ++i) {
        const Colour quiet = mixed(text, background, quietest * (steps - i) / steps);
        if (contrastRatio(quiet, background) >= minimumContrast)
            return quiet;
    }
    return text;
}

Colour lifted(Colour face, Colour text)
{
    constexpr double visibly = 1.06;
    const Colour lighter = mixed(face, white, 0.10);
    const Colour darker = mixed(face, black, 0.07);
    const bool lighterReads = contrastRatio(text, lighter) >= minimumContrast;
    const bool darkerReads = contrastRatio(text, darker) >= minimumContrast;
    if (lighterReads && (contrastRatio(lighter, face) >= visibly || !darkerReads))
        return lighter;
    return darker;
}

Colour shadeFor(Colour colour, Colour background, Colour otherBackground, double contrast)
{
    const bool darker =
        worseContrast(black, background, otherBackground) >= worseContrast(white, background, otherBackground);
    Hsl hsl = hslOf(colour);
    const double end = darker ? 0 : 1;
    const double start = hsl.lightness;
    for (int i = 0; i < steps; ++i) {
        hsl.lightness = start + (end - start) * i / steps;
        const Colour shade = colourOf(hsl);
        if (worseContrast(shade, background, otherBackground) >= contrast)
            return shade;
    }
    return darker ? black : white;
}

} // namespace lexigrove
