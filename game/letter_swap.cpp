#include "game/letter_swap.hpp"

#include "game/game.hpp"

namespace lexigrove
{

void LetterSwap::request(int tile)
{
    if (tile == tile_) {
        cancel();
        return;
    }
    cancel();
    if (game_.state.yourScore < price) {
        game_.sounds.play(cue::error);
        game_.ports.status.show("your score must be at least " + std::to_string(price) + " to swap a letter");
        return;
    }
    game_.selection.clear();
    tile_ = tile;
    game_.ports.status.show("Now click the waiting letter to swap it with");
}

void LetterSwap::exchange(int col)
{
    BoxControl& waiting = game_.board.waiting(col);
    if (!waiting.Visible()) {
        game_.sounds.play(cue::error);
        return;
    }
    BoxControl& tile = game_.board.tile(tile_);
    const std::string letter = tile.Caption();
    tile.Caption(waiting.Caption());
    waiting.Caption(letter);
    game_.state.yourScore -= price;
    cancel();
    game_.sounds.play(cue::swap);
}

void LetterSwap::cancel()
{
    if (!isPending())
        return;
    tile_ = 0;
    game_.ports.status.Warn = false;
    game_.ports.status.write("");
}

} // namespace lexigrove
