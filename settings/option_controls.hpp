#pragma once

#include "controls/colour.hpp"

#include <string>
#include <vector>

namespace lexigrove
{

/// An option button or a check box.
struct Choice {
    std::string name; ///< of the control
    std::string Caption;
    bool Value = false;
};

/// A frame with its choices, top to bottom. At most one option button in a frame is selected.
struct ChoiceFrame {
    std::string Caption;
    std::string ToolTipText;
    std::vector<Choice*> choices;
    bool Enabled = true;
    Colour backColor = system_colour::buttonFace;
};

/// A one-line text box.
struct TextBox {
    std::string Text;
    std::string ToolTipText;
    bool Enabled = true;
};

/// A text with a list to choose from.
struct ComboBox {
    std::string Text;
    std::vector<std::string> list;
    Colour backColor = system_colour::windowBackground;
};

struct PushButton {
    std::string Caption;
    std::string ToolTipText;
    bool Enabled = true;
};

} // namespace lexigrove
