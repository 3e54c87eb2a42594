#pragma once

#include "tools/sounds/synthesis.hpp"

#include <string>
#include <vector>

namespace lexigrove::tools
{

/// One of the game's sounds.
struct Cue {
    std::string file;
    double seconds;
    std::vector<Note> notes;
};

/// The sounds. All use one scale, C major without F and B, in which any two notes sound well together, because a
/// sound may start before the previous one has ended.
std::vector<Cue> cues();

} // namespace lexigrove::tools
