#pragma once

#include "platform/dialogs.hpp"

#include <string>

namespace lexigrove
{

/// Asks for the `count` letters A to Z of a preset board until they are all there, or for nothing more: an empty answer
/// gives the empty text. Letters too many are discarded, letters too few are asked for with the typed ones kept.
std::string askForPresetLetters(Dialogs& dialogs, std::size_t count);

} // namespace lexigrove
