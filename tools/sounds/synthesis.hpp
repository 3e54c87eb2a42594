#pragma once

#include <cstdint>
#include <vector>

namespace lexigrove::tools
{

/// One of the sine waves that a note is made of.
struct Partial {
    double ratio;    ///< its frequency, as a multiple of the note's
    double loudness; ///< relative to the other partials
    double decay;    ///< how long it rings, as a multiple of the note's ring
};
using Timbre = std::vector<Partial>;

Timbre wood();   ///< a wooden bar struck softly: a round tone with a short knock
Timbre glass();  ///< a small bell: the overtones of a string, soft
Timbre hollow(); ///< a stopped pipe: odd overtones only, dull

/// A struck note: it starts softly within a few milliseconds and dies away.
struct Note {
    double pitch;    ///< in semitones above middle C (C4)
    double start;    ///< in seconds
    double ring;     ///< seconds after which it has fallen to about a third (1/e)
    double loudness; ///< relative to the other notes of its sound
    Timbre timbre;
    double bend = 0; ///< semitones off its pitch at the start, gone within a few hundredths of a second
};

/// Mixes the notes, gives them the loudness that all sounds of the game have, and ends with a fade into silence, so
/// that neither start nor end clicks.
std::vector<std::int16_t> synthesize(const std::vector<Note>& notes, double seconds);

} // namespace lexigrove::tools
