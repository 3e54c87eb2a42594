#pragma once

namespace lexigrove
{

struct Game;

/// Exchanges the letter of a board tile with a waiting one, for ten points.
class LetterSwap
{
public:
    static constexpr int price = 10;

    explicit LetterSwap(Game& game) : game_(game) {}

    /// Requests a swap of this tile: clears the path and marks the tile, or says that the score is too low. A second
    /// request for the marked tile cancels.
    void request(int tile);

    /// Exchanges the marked tile's letter with the one waiting over a column, charges the price and plays the sound.
    /// The tile keeps its multiplier. An empty place refuses with a sound, and the tile stays marked.
    void exchange(int col);

    /// Removes the mark, at no cost.
    void cancel();

    /// Marks a tile, 0 for none, without asking for its price.
    void mark(int tile) { tile_ = tile; }

    [[nodiscard]] bool isPending() const { return tile_ != 0; }
    /// The marked tile, 0 for none.
    [[nodiscard]] int tile() const { return tile_; }

private:
    Game& game_;
    int tile_ = 0;
};

} // namespace lexigrove
