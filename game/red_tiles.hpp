#pragma once

#include "controls/multiplier.hpp"

#include <vector>

namespace lexigrove
{

struct Game;

/// The pressure of the solo game: red tiles at the tops of columns, and columns that are pushed down. Neither happens
/// in a game against the computer or while the hold flag is set.
class RedTiles
{
public:
    static constexpr int maxRedTiles = 4;

    explicit RedTiles(Game& game) : game_(game) {}

    /// A tick of `UpdateRedTriggerTimer`: counts, computes the pressure, and makes a red tile when it has risen by the
    /// red threshold since the last one. Returns the new red tile, 0 for none.
    int redTimerTick();

    /// The pressure built up by words, weighted by their lengths, hints, red tiles used, and time.
    [[nodiscard]] int pressure() const;

    /// Turns the topmost plain tile of a random column red. Does nothing with four red tiles on the board or without a
    /// plain tile. The next one needs a little less pressure. Returns the tile, 0 for none.
    int makeRedTile();

    enum class Push {
        Nothing, ///< held, or no special tile on the board
        Pushed,
        Lost, ///< the tile to be pushed out is red; the column is unchanged
    };

    struct PushResult {
        Push outcome = Push::Nothing;
        int col = 0;                    ///< the column drawn, 0 for Nothing
        Colour out = multiplier::plain; ///< the multiplier of the tile that was pushed out
    };

    /// The special tiles of which the next push draws one, to push down its column; none while pushes are held.
    [[nodiscard]] std::vector<int> pushable() const;

    /// A tick of `MoveColDownTimer`: picks a random special tile and pushes its column down by one cell; the waiting
    /// letter falls in at the top.
    PushResult pushTimerTick();

    /// Shows the red tile at the bottom of a column leaving the board: the end of a lost game.
    void pushOutRedTile(int col);

private:
    [[nodiscard]] bool isHeld() const;
    void pushColumn(int col);

    Game& game_;
};

} // namespace lexigrove
