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

/// The eight sounds. All take their notes from one scale, C major without F and B, in which any two sound well
/// together, as they must when a sound starts before the one before it has ended.
std::vector<Cue> cues();

} // namespace lexigrove::tools
