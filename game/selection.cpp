#include "game/selection.hpp"

#include "dictionary/letter_tables.hpp"

#include <numeric>

namespace lexigrove
{

void Selection::tileClicked(int tile, MouseButton button)
{
    if (tile == lastTile()) {
        removeLast();
    } else {
        const bool inPath = board_.tile(tile).Tag() == "X";
        if (inPath || (!isEmpty() && !board_.neighbours(lastTile()).contains(tile)))
            clearPath(); // a used tile, or one that does not touch, starts afresh
        append(tile);
    }
    sounds_.play(cue::tile);
    updateWordDisplay(button);
}

void Selection::clear()
{
    clearPath();
    state_.prompt = Prompt::None;
    state_.currScore.reset();
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
    letters_.push_back(board_.letter(tile));
    board_.tile(tile).Tag("X");
    look_.showSelected(board_.tile(tile));
}

void Selection::removeLast()
{
    BoxControl& tile = board_.tile(lastTile());
    tiles_.pop_back();
    letters_.pop_back();
    tile.Tag("");
    look_.showNormal(tile);
}

void Selection::updateWordDisplay(MouseButton button)
{
    state_.prompt = Prompt::None;
    state_.currScore = wordScore(*this, board_);
    entryPending = button == MouseButton::Right;
}

std::string Selection::word() const
{
    return std::accumulate(letters_.begin(), letters_.end(), std::string());
}

std::string Selection::wordTried() const
{
    switch (state_.prompt) {
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
