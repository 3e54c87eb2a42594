#pragma once

#include <string>

namespace lexigrove
{

/// The choices that reach beyond the options dialog.
struct GameSettings {
    static constexpr int startDelay = 250;
    static constexpr int presetLength = 100;

    /// Drop-animation delay: event-yield rounds per animation step, 0 to 32,767; 0 drops without animation.
    int dropDelay = startDelay;

    /// How the computer picks its word; exactly one is set after a choice.
    bool highestScoreMode = true;
    bool longestWordMode = false;
    bool anyWordMode = false;

    /// 100 letters A to Z (1 to 64 fill the tiles, 65 to 100 the queue), empty, or "x" for a game whose score is not
    /// recorded.
    std::string presetLetters;

    int boardTileCount = 64;
};

} // namespace lexigrove
