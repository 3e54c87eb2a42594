#pragma once

#include "platform/clock.hpp"
#include "platform/dialogs.hpp"
#include "platform/random.hpp"
#include "platform/screen.hpp"
#include "platform/sound_device.hpp"
#include "platform/status_line.hpp"
#include "platform/windows.hpp"

namespace lexigrove
{

/// The outside world, as a front end provides it to the game. It outlives the game.
struct Ports {
    Dialogs& dialogs;
    Screen& screen;
    SoundDevice& sound;
    const Clock& clock;
    Random& random;
    StatusLine& status;
    Windows& windows;
};

} // namespace lexigrove
