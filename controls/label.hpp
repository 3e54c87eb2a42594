#pragma once

#include "controls/colour.hpp"

#include <string>
#include <string_view>

namespace lexigrove
{

/// A label, button, frame or text box of a window, as far as the rules know it.
struct Label {
    std::string Caption;
    Colour backColor = system_colour::buttonFace;
    Colour foreColor = system_colour::buttonText;
    bool Visible = true;
    bool Enabled = true;
};

/// The number at the start of a caption, as the labels of scores and counters are read back: blanks are passed over, no
/// digit at all is 0, a number beyond `int` becomes the nearest `int`.
int numberOf(std::string_view caption);

} // namespace lexigrove
