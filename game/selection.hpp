#pragma once

#include "controls/mouse_button.hpp"
#include "game/word_score.hpp"

#include <string>
#include <vector>

namespace lexigrove
{

class Board;
struct Game;

/// The word path: the chain of touching tiles that is being built, in click order. The computer's turn and a chosen
/// hint use the same path.
class Selection
{
public:
    explicit Selection(Game& game) : game_(game) {}

    /// A mouse button is released over a visible tile, without Shift and not as the second right click: extends,
    /// shortens or restarts the path.
    void tileClicked(int tile, MouseButton button);

    /// Clears the path with its tags and highlights, `WordTried`, `CurrScore` and any pending entry.
    void clear();

    /// Clears the path but keeps its score and the prompt.
    void clearPath();

    /// Puts a tile at the end of the path: tag "X", highlighted.
    void append(int tile);

    /// The path's tiles in click order, and the last of them, or 0 for an empty path.
    [[nodiscard]] const std::vector<int>& tiles() const { return tiles_; }
    [[nodiscard]] int lastTile() const { return tiles_.empty() ? 0 : tiles_.back(); }
    [[nodiscard]] bool isEmpty() const { return tiles_.empty(); }
    [[nodiscard]] bool contains(int tile) const;

    /// The path's letters joined, as they were when their tiles were clicked.
    [[nodiscard]] std::string word() const;

    /// What `WordTried` shows: the word, "Your move" or "Computer move...".
    [[nodiscard]] std::string wordTried() const;

    bool entryPending = false; ///< armed by a right click: the next one enters the word

private:
    void updateWordDisplay(MouseButton button);
    void removeLast();

    Game& game_;
    std::vector<int> tiles_;
    std::vector<std::string> letters_;
};

/// What the word of a path is worth: only its highest multiplier counts; a red tile has none.
WordScore wordScore(const Selection& path, const Board& board);

} // namespace lexigrove
