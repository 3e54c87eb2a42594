#include "settings/window_colours.hpp"

namespace lexigrove
{

namespace
{

/// The bonus colour that shows best on the tiles it joins, or the accent if none shows well.
Colour linkColour(const ColourScheme& scheme, Colour accent)
{
    constexpr double plainToSee = 2.5;
    for (const Colour multiplier : {multiplier::tripled, multiplier::doubled, multiplier::quadrupled}) {
        if (contrastRatio(scheme.tileFace(multiplier), scheme.selectedFace()) >= plainToSee)
            return scheme.tileFace(multiplier);
    }
    return readableText(accent, scheme.selectedFace());
}

/// A background tinted towards its text, or away from it if that would hurt the text.
Colour toned(Colour background, Colour text, double share)
{
    const Colour towards = mixed(background, text, share);
    if (contrastRatio(readableOn(background), towards) >= minimumContrast)
        return towards;
    return mixed(background, readableOn(background) == rgb(0, 0, 0) ? rgb(255, 255, 255) : rgb(0, 0, 0), share);
}

} // namespace

WindowColours deriveWindowColours(const ColourScheme& scheme)
{
    // Shares of the text colour in the background, chosen by eye in light and dark windows.
    constexpr double stripShare = 0.06;
    constexpr double lineShare = 0.20;
    constexpr double strongLineShare = 0.55; // for schemes of the highest contrast, which need lines to match
    constexpr double strongestContrast = 18;
    constexpr double rowShare = 0.12;
    constexpr double disabledShare = 0.55;
    constexpr double accentContrast = 5.5;

    WindowColours colours{};
    const Colour letter = scheme.plain(scheme_entry::tileLetter);

    colours.background = scheme.plain(scheme_entry::background);
    colours.card = scheme.plain(scheme_entry::wordList);
    colours.dark = readableOn(colours.background) == rgb(255, 255, 255);

    const Colour onBackground = readableText(letter, colours.background);
    colours.strip = toned(colours.background, onBackground, stripShare);
    colours.text = readableText(letter, colours.background, colours.strip);
    colours.quietText = readableText(quietOn(colours.text, colours.background), colours.background, colours.strip);
    const bool strong = contrastRatio(colours.text, colours.background) >= strongestContrast;
    colours.line = mixed(colours.background, colours.text, strong ? strongLineShare : lineShare);

    colours.cardText = readableText(letter, colours.card);
    colours.cardQuietText = quietOn(colours.cardText, colours.card);
    colours.cardSelection = mixed(colours.card, colours.cardText, rowShare);
    colours.cardSelectionText = readableText(colours.cardText, colours.cardSelection);

    colours.accent = shadeFor(scheme.tileFace(multiplier::doubled), colours.background, colours.card, accentContrast);
    colours.accentText = readableText(colours.card, colours.accent);

    colours.button = scheme.tileFace(multiplier::plain);
    colours.buttonText = scheme.tileLetter(multiplier::plain);
    colours.buttonHover = lifted(colours.button, colours.buttonText);
    colours.buttonDisabledText = mixed(colours.buttonText, colours.button, disabledShare);

    colours.computerBack = scheme.plain(scheme_entry::computer);
    colours.computerFore = scheme.computerFore();
    colours.computerText = readableText(colours.computerBack, colours.card);

    colours.tileTop = scheme.plain(scheme_entry::tileTop);
    colours.tileLeft = scheme.plain(scheme_entry::tileLeft);
    colours.tileBottom = scheme.plain(scheme_entry::tileBottom);
    colours.tileRight = scheme.plain(scheme_entry::tileRight);
    colours.link = linkColour(scheme, colours.accent);
    return colours;
}

} // namespace lexigrove
