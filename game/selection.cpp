#include "game/selection.hpp"

#include "dictionary/letter_tables.hpp"
#include "game/game.hpp"

#include <algorithm>
#include <numeric>

namespace lexigrove
{

void Selection::tileClicked(int tile, MouseButton button)
{
    if (tile == lastTile()) {
        removeLast();
    } else {
        if (contains(tile) || (!isEmpty() && !game_.board.neighbours(lastTile()).contains(tile)))
            clearPath(); // a used tile, or one that does not touch, starts a new path
        append(tile);
    }
    game_.sounds.play(cue::tile);
    updateWordDisplay(button);
}

void Selection::clear()
{
    clearPath();
    game_.state.prompt = Prompt::None;
    game_.state.currScore.reset();
    entryPending = false;
}

void Selection::clearPath()
{
    while (!isEmpty())
        removeLast();
}

void Selection::append(int tile)
{
    tiles_.push_back(tile);
    letters_.push_back(game_.board.letter(tile));
    game_.board.tile(tile).Tag("X");
    game_.look.showSelected(game_.board.tile(tile));
}

void Selection::removeLast()
{
    BoxControl& tile = game_.board.tile(lastTile());
    tiles_.pop_back();
    letters_.pop_back();
    tile.Tag("");
    game_.look.showNormal(tile);
}

void Selection::updateWordDisplay(MouseButton button)
{
    game_.state.prompt = Prompt::None;
    game_.state.currScore = wordScore(*this, game_.board);
    entryPending = button == MouseButton::Right;
}

bool Selection::contains(int tile) const
{
    return std::find(tiles_.begin(), tiles_.end(), tile) != tiles_.end();
}

std::string Selection::word() const
{
    return std::accumulate(letters_.begin(), letters_.end(), std::string());
}

std::string Selection::wordTried() const
{
    switch (game_.state.prompt) {
    case Prompt::YourMove:
        return "Your move";
    case Prompt::ComputerMove:
        return "Computer move...";
    case Prompt::None:
        break;
    }
    return word();
}

WordScore wordScore(const Selection& path, const Board& board)
{
    WordScore result;
    for (const int tile : path.tiles()) {
        const Colour m = board.maskcolor(tile);
        if (m > result.best && m != multiplier::red) {
            result.best = m;
            ++result.bonusCount;
        }
    }
    result.score = static_cast<int>(result.best) * letterSum(path.word());
    return result;
}

} // namespace lexigrove
