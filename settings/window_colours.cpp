#include "settings/window_colours.hpp"

#include <algorithm>

namespace lexigrove
{

namespace
{

/// The first of the candidates that tells from the tiles and the ground that the link crosses, or the one that does
/// best.
Colour linkColour(const ColourScheme& scheme, Colour ground, Colour accent)
{
    const auto leastDifference = [&](Colour link) {
        return std::min({contrastRatio(link, ground), contrastRatio(link, scheme.selectedFace(1)),
                         contrastRatio(link, scheme.tileFace(1))});
    };
    const Colour triple = scheme.tileFace(3);
    const double enough = 1.25;
    if (leastDifference(triple) >= enough)
        return triple;
    return leastDifference(accent) > leastDifference(triple) ? accent : triple;
}

} // namespace

WindowColours deriveWindowColours(const ColourScheme& scheme)
{
    // Shares of the text's colour in the ground, as the eye liked them in a light and in a dark window.
    constexpr double stripShare = 0.06;
    constexpr double lineShare = 0.20;
    constexpr double rowShare = 0.12;
    constexpr double disabledShare = 0.55;
    constexpr double accentContrast = 5.5;

    WindowColours colours{};
    const Colour letter = scheme.plain(scheme_entry::tileLetter);

    colours.ground = scheme.plain(scheme_entry::ground);
    colours.card = scheme.plain(scheme_entry::wordList);
    colours.dark = readableOn(colours.ground) == rgb(255, 255, 255);

    const Colour onGround = readableText(letter, colours.ground);
    colours.strip = mixed(colours.ground, onGround, stripShare);
    colours.text = readableText(letter, colours.ground, colours.strip);
    colours.quietText = readableText(quietOn(colours.text, colours.ground), colours.ground, colours.strip);
    colours.line = mixed(colours.ground, colours.text, lineShare);

    colours.cardText = readableText(letter, colours.card);
    colours.cardQuietText = quietOn(colours.cardText, colours.card);
    colours.cardSelection = mixed(colours.card, colours.cardText, rowShare);
    colours.cardSelectionText = readableText(colours.cardText, colours.cardSelection);

    colours.accent = shadeFor(scheme.tileFace(2), colours.ground, colours.card, accentContrast);
    colours.accentText = readableText(colours.card, colours.accent);

    colours.button = scheme.tileFace(1);
    colours.buttonText = scheme.tileLetter(1);
    colours.buttonHover = lifted(colours.button, colours.buttonText);
    colours.buttonDisabledText = mixed(colours.buttonText, colours.button, disabledShare);

    colours.computerBack = scheme.plain(scheme_entry::computer);
    colours.computerFore = scheme.computerFore();
    colours.computerText = readableText(colours.computerBack, colours.card);

    colours.tileTop = scheme.plain(scheme_entry::tileTop);
    colours.tileLeft = scheme.plain(scheme_entry::tileLeft);
    colours.tileBottom = scheme.plain(scheme_entry::tileBottom);
    colours.tileRight = scheme.plain(scheme_entry::tileRight);
    colours.link = linkColour(scheme, colours.ground, colours.accent);
    return colours;
}

} // namespace lexigrove
