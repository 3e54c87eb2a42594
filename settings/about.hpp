#pragma once

#include "controls/label.hpp"

namespace lexigrove
{

/// The about box `AboutForm`.
struct AboutForm {
    AboutForm();

    Label AboutText; ///< its lines are separated by CR LF; a click on it closes the box, as `AboutOk` and Esc do
    Label AboutOk;

    /// Whether the key of this character code closes the box.
    static bool closesOnKey(int characterCode) { return characterCode == 27; }
};

} // namespace lexigrove
