#pragma once

#include "controls/colour.hpp"
#include "settings/colour_scheme.hpp"
#include "settings/readable_colours.hpp"

namespace lexigrove
{

/// All colours of the windows, plain ones, derived from the 13 of a scheme. Every text reads with at least
/// `leastContrast` on the ground that its comment names. Where a pair falls short the text moves, never a colour that
/// the scheme gives.
struct WindowColours {
    Colour ground;    ///< of windows, frames and panels
    Colour text;      ///< on the ground and on the strip
    Colour quietText; ///< labels and the status line, on the ground and on the strip
    Colour strip;     ///< under the drop row
    Colour line;      ///< between areas, around cards and buttons

    Colour card;          ///< number cards, word frame, lists
    Colour cardText;      ///< on the card
    Colour cardQuietText; ///< captions on the card
    Colour cardSelection; ///< the chosen row of a list
    Colour cardSelectionText;

    Colour accent;     ///< frame of the word being built, its score, the primary button; reads on ground and card
                       ///< where any colour can
    Colour accentText; ///< on the accent

    Colour button;     ///< the quiet buttons and text boxes
    Colour buttonText; ///< on the button
    Colour buttonHover;
    Colour buttonDisabledText; ///< greyed on purpose, so without the least contrast

    Colour computerBack; ///< word cells and `WordTried` of the computer
    Colour computerFore; ///< on the computer's back colour
    Colour computerText; ///< the computer's colour as a text on the card: its score, headings

    Colour tileTop, tileLeft, tileBottom, tileRight; ///< edge lines
    Colour link;                                     ///< between the tiles of the path; shows on a selected tile

    bool dark; ///< the ground is nearer to black
};

/// Derives the whole window from a scheme and the desktop's palette that it holds.
WindowColours deriveWindowColours(const ColourScheme& scheme);

} // namespace lexigrove
