#pragma once

#include "controls/colour.hpp"
#include "settings/colour_scheme.hpp"
#include "settings/readable_colours.hpp"

namespace lexigrove
{

/// All colours of the windows, as plain colours, derived from the 13 of a scheme. Every text has at least
/// `minimumContrast` on the background that its comment names. Low contrast adjusts the text, never a scheme colour.
struct WindowColours {
    Colour background; ///< of windows, frames and panels
    Colour text;       ///< on the background and the strip
    Colour quietText;  ///< labels and the status line, on the background and the strip
    Colour strip;      ///< behind the drop row
    Colour line;       ///< between areas, around cards and buttons

    Colour card;          ///< number cards, word frame, lists
    Colour cardText;      ///< on the card
    Colour cardQuietText; ///< captions on the card
    Colour cardSelection; ///< the chosen row of a list
    Colour cardSelectionText;

    Colour accent; ///< frame of the word being built, its score, the primary button; readable on background and card
                   ///< if any colour is
    Colour accentText; ///< on the accent

    Colour button;     ///< the quiet buttons and text boxes
    Colour buttonText; ///< on the button
    Colour buttonHover;
    Colour buttonDisabledText; ///< deliberately greyed, so without the minimum contrast

    Colour computerBack; ///< word cells and `WordTried` of the computer
    Colour computerFore; ///< on the computer's back colour
    Colour computerText; ///< the computer's colour as a text on the card: its score, headings

    Colour tileTop, tileLeft, tileBottom, tileRight; ///< edge lines
    Colour link;                                     ///< between the tiles of the path; visible on a selected tile

    bool dark; ///< the background is closer to black
};

/// Derives all window colours from a scheme and its desktop palette.
WindowColours deriveWindowColours(const ColourScheme& scheme);

} // namespace lexigrove
