#pragma once

#include "controls/mouse_button.hpp"

#include <Qt>

namespace lexigrove
{

/// The button as the models know it; any other one counts as the middle button.
inline MouseButton mouseButton(Qt::MouseButton button)
{
    if (button == Qt::LeftButton)
        return MouseButton::Left;
    return button == Qt::RightButton ? MouseButton::Right : MouseButton::Middle;
}

} // namespace lexigrove
