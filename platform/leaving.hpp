#pragma once

namespace lexigrove
{

/// Thrown by a port when the player closes the window while a question, an animation or a wait is open. The stack
/// unwinds to the flow, which runs the leaving sequence.
struct Leaving {
};

/// Thrown when the program must end without asking or saving anything more (for instance, a dictionary cannot be read).
struct ProgramEnd {
};

} // namespace lexigrove
