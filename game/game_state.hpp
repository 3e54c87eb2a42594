#pragma once

#include "controls/words_grid.hpp"
#include "game/turn.hpp"
#include "game/word_score.hpp"
#include "scores/statistics.hpp"

#include <optional>
#include <string>
#include <vector>

namespace lexigrove
{

/// What `WordTried` shows in place of the word being built.
enum class Prompt { None, YourMove, ComputerMove };

/// How a game was begun.
enum class GameKind {
    Normal,
    Preset,   ///< from preset letters
    Position, ///< from a position that was set up
    Shared,   ///< from a board that somebody shared
    Daily,    ///< from the board of a day
    Relaxed,  ///< without red tiles and pushes, and not recorded
};

/// Whether letters come from the queue, and so what `TilesLeft` shows: nothing before the deal, the count, "NONE".
enum class LetterDraw { NotDealt, Going, Ended };

/// The values that the rules of a game share. Texts are made from them where they are shown.
struct GameState {
    int yourScore = 0; ///< `YourScore`
    int compScore = 0; ///< `CompScore`
    Prompt prompt = Prompt::None;
    std::optional<WordScore> currScore; ///< `CurrScore`: of the word being built; nothing before its first letter
    LetterDraw letterDraw = LetterDraw::NotDealt;
    int tilesLeft = 0;   ///< letters still to come; may fall below 0, because not all of them are counted
    int hoveredTile = 0; ///< the tile that `Label4` describes, 0 for none
    WordsGrid WordsMade;

    GameKind kind = GameKind::Normal;
    bool computerGame = false;
    bool developerMode = false;
    bool redTileHold = false;            ///< stops both pressure timers
    bool computerTurnInProgress = false; ///< set for the whole of the computer's turn

    std::string begun;       ///< when: "2026-11-23 04:15"
    std::string start;       ///< the board that the game began with, as a line of text
    std::vector<Turn> turns; ///< every word of the game, the first one first
    int secondsPlayed = 0;   ///< in play, pauses left out

    // Counted per game; what counts up stops at 32,767
    Statistics statistics; ///< also the word-length counts
    int bonusTilesOnBoard = 0;
    int redTilesOnBoard = 0;
    int redTilesUsed = 0;
    int wordsMade = 0;
    int hintsUsed = 0;
    int redTilesMade = 0;
    int pushes = 0; ///< columns pushed down
    int tickCount = 0;
    int pressure = 0; ///< as of the last red tick
    int lastPressure = 0;

    /// Resets to the start of a game, but keeps developer mode, the kind of game, the hold and the words' sort mark.
    void resetForNewGame();

    friend bool operator==(const GameState&, const GameState&) = default;

    /// The caption of `TilesLeft`.
    [[nodiscard]] std::string tilesLeftText() const;
    /// The caption of `CurrScore`.
    [[nodiscard]] std::string currScoreText() const;
    /// `EnterWord` is hidden while the computer looks for its word.
    [[nodiscard]] bool showsEnterWord() const { return prompt != Prompt::ComputerMove; }
};

/// Adds one. A counter has 16 bits and stops at its highest value.
void countUp(int& counter);

} // namespace lexigrove
