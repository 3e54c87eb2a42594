#pragma once

#include "platform/dialogs.hpp"

#include <string>

namespace lexigrove
{

/// Asks for the `count` letters A to Z of a preset board until they are complete; an empty answer returns an empty
/// string. Excess letters are discarded; missing ones are asked for, keeping those typed.
std::string askForPresetLetters(Dialogs& dialogs, std::size_t count);

} // namespace lexigrove
