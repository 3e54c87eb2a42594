#pragma once

namespace lexigrove
{

/// Thrown by a port when the player closes the window while a question, an animation or a wait is open. The stack
/// unwinds to the one place of the front end that catches it and runs the leaving sequence.
struct Leaving {
};

/// Thrown when the program is over and nothing more is to be asked or saved (a dictionary that cannot be read).
struct ProgramEnd {
};

} // namespace lexigrove
