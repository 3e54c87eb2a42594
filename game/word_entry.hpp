#pragma once

#include "dictionary/dictionary.hpp"
#include "game/board.hpp"
#include "game/game_state.hpp"
#include "game/selection.hpp"
#include "game/tile_look.hpp"
#include "game/tile_removal.hpp"
#include "platform/ports.hpp"
#include "settings/sound_cues.hpp"

#include <string>

namespace lexigrove
{

enum class EnterResult {
    Passed,   ///< a game against the computer without a word: the computer's turn follows
    TooShort, ///< nothing happened
    NotFound, ///< told on the status line; the path stays
    Entered,  ///< the word is made; in a game against the computer its turn follows
};

/// Enters the word on the path: checks it, scores it, takes its tiles off the board and may award a bonus tile.
class WordEntry
{
public:
    WordEntry(GameState& state, Board& board, Selection& selection, TileRemoval& removal, const TileLook& look,
              const Dictionary& dictionary, SoundCues& sounds, const Ports& ports)
        : state_(state),
          board_(board),
          selection_(selection),
          removal_(removal),
          look_(look),
          dictionary_(dictionary),
          sounds_(sounds),
          ports_(ports)
    {
    }

    EnterResult enterWord();

    /// Makes a plain tile, drawn at random, a bonus tile with this multiplier (2, 3 or 4). Nothing happens in a game
    /// against the computer, with four bonus tiles on the board, or where no visible tile is plain.
    void awardBonusTile(Colour multiplier);

private:
    [[nodiscard]] bool isAccepted(const std::string& word) const;
    void defuseRedTiles();
    void awardBonusFor(std::size_t wordLength);

    GameState& state_;
    Board& board_;
    Selection& selection_;
    TileRemoval& removal_;
    const TileLook& look_;
    const Dictionary& dictionary_;
    SoundCues& sounds_;
    const Ports& ports_;
};

} // namespace lexigrove
