#pragma once

#include "record/saved_game.hpp"

#include <string>

namespace lexigrove
{

/// The question "Continue the last game?" of a start, with what it shows of the game.
struct ContinueForm {
    static constexpr const char* question = "Continue the last game?";

    SavedGame game;
    bool accepted = false; ///< the answer; closing the window is No
};

} // namespace lexigrove
