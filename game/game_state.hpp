#pragma once

#include "controls/label.hpp"
#include "controls/words_grid.hpp"
#include "scores/statistics.hpp"

#include <cstdint>
#include <string>

namespace lexigrove
{

/// What the windows and the rules of one game share. Numbers shown in labels live in the labels' captions and are read
/// back from there.
struct GameState {
    /// The colours of a label that no rule has coloured: the window's own.
    static constexpr Colour ownBack = system_colour::windowBackground;
    static constexpr Colour ownFore = system_colour::windowText;

    // The main window's controls
    Label WordTried{"", ownBack, ownFore}; ///< the word being built, "Your move" or "Computer move..."
    Label CurrScore{"", ownBack, ownFore}; ///< its score
    Label YourScore{"0"};                  ///< the player's score
    Label CompScore{"0"};                  ///< the computer's score
    Label TilesLeft;                       ///< letters still to come; "NONE": no further letters are drawn
    Label Label4;                          ///< the developer description of the tile under the pointer
    Label EnterWord{"Enter Word"};
    Label Frame3;   ///< the buttons of the player's actions
    Label Picture1; ///< the board panel
    WordsGrid WordsMade;

    // Flags
    bool developerMode = false;
    bool computerGame = false;
    bool redTileHold = false;            ///< stops both pressure timers
    bool computerTurnInProgress = false; ///< set for the whole of the computer's turn

    // Counted per game
    Statistics statistics; ///< also the word-length counts
    std::int16_t bonusTilesOnBoard = 0;
    std::int16_t redTilesOnBoard = 0;
    std::int16_t redTilesUsed = 0;
    std::int16_t wordsMade = 0;
    std::int16_t hintsUsed = 0;
    std::int16_t tickCount = 0;
    std::int32_t pressure = 0; ///< as the last red tick computed it
    std::int32_t lastPressure = 0;

    /// Back to the start of a game: labels, words and every counter that is counted per game.
    void resetForNewGame();
};

/// 16-bit counters that count time stop at their highest value rather than wrap.
void countUp(std::int16_t& counter);

} // namespace lexigrove
