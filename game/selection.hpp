#pragma once

#include "game/board.hpp"
#include "game/game_state.hpp"
#include "game/tile_look.hpp"
#include "platform/screen.hpp"
#include "settings/sound_cues.hpp"

#include <array>
#include <cstdint>
#include <string>

namespace lexigrove
{

enum class MouseButton { Left, Right, Middle };

/// The word path: the chain of touching tiles that is being built, in click order. The computer's turn and a taken hint
/// play through the same path.
class Selection
{
public:
    Selection(GameState& state, Board& board, TileLook& look, SoundCues& sounds)
        : state_(state), board_(board), look_(look), sounds_(sounds)
    {
    }

    /// A mouse button released over a visible tile, without the shift key and not the second right click: extends,
    /// shortens or restarts the path.
    void tileClicked(int tile, MouseButton button);

    /// Empties the path: every entry, the tags and highlights, `WordTried` and `CurrScore`; takes back entry pending.
    void clear();

    /// Empties the path and leaves the captions alone.
    void clearPath();

    /// Puts a tile at the end of the path: tag "X", highlighted.
    void append(int tile);

    /// `WordTried` and `CurrScore` from the path; a right click arms entry pending.
    void updateWordDisplay(MouseButton button);

    [[nodiscard]] int length() const { return length_; }
    [[nodiscard]] int lastTile() const { return lastTile_; }
    /// Tile and letter at place 1 to length() of the path.
    [[nodiscard]] int tileAt(int place) const { return tiles_[static_cast<std::size_t>(place)]; }
    [[nodiscard]] const std::string& letterAt(int place) const { return letters_[static_cast<std::size_t>(place)]; }

    /// The path letters joined.
    [[nodiscard]] std::string word() const;

    bool entryPending = false; ///< armed by a right click: the next one enters the word

private:
    void removeLast();

    GameState& state_;
    Board& board_;
    TileLook& look_;
    SoundCues& sounds_;
    int length_ = 0;
    int lastTile_ = 0;
    std::array<std::int16_t, Board::tileCount + 1> tiles_{};
    std::array<std::string, Board::tileCount + 1> letters_;
};

/// What a word over the path is worth.
struct WordScore {
    int score = 0;      ///< best multiplier times the letter sum
    int bonusCount = 0; ///< tiles that raised the running best, in path order
    int best = 1;       ///< the multiplier that counts: 1 to 4
};

/// Only the highest multiplier of the path counts; a red tile has none.
WordScore wordScore(const std::string& word, const Selection& path, const Board& board);

} // namespace lexigrove
