#pragma once

namespace lexigrove
{

/// The mouse buttons, with the numbers that the controls' events carry.
enum class MouseButton { Left = 1, Right = 2, Middle = 4 };

} // namespace lexigrove
