#pragma once

#include "dictionary/dictionary.hpp"
#include "game/selection.hpp"
#include "platform/status_line.hpp"
#include "settings/sound_cues.hpp"

namespace lexigrove
{

/// `CheckDict`: tells on the status line whether the word being built is in the dictionary. Nothing else changes.
void checkSpelling(const Selection& selection, const Dictionary& dictionary, SoundCues& sounds, StatusLine& status);

} // namespace lexigrove
