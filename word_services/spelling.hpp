#pragma once

#include "dictionary/dictionary.hpp"
#include "game/selection.hpp"
#include "platform/status_line.hpp"
#include "settings/sound_cues.hpp"

namespace lexigrove
{

/// `CheckDict`: says on the status line whether the word being built is in the dictionary, and changes nothing else.
void checkSpelling(const Selection& selection, const Dictionary& dictionary, SoundCues& sounds, StatusLine& status);

} // namespace lexigrove
