#include "game/selection.hpp"

#include "dictionary/letter_tables.hpp"

namespace lexigrove
{

void Selection::tileClicked(int tile, MouseButton button)
{
    if (length_ > 0 && tile == lastTile_) {
        removeLast();
    } else {
        const bool inPath = board_.tile(tile).Tag() == "X";
        if (length_ > 0 && (inPath || !board_.neighbours(lastTile_).contains(tile)))
            clearPath(); // a used tile, or one that does not touch, starts afresh
        append(tile);
    }
    sounds_.play(cue::tile);
    updateWordDisplay(button);
}

void Selection::clear()
{
    clearPath();
    state_.WordTried.Caption.clear();
    state_.CurrScore.Caption.clear();
    state_.CurrScore.backColor = look_.scoreGround(1);
    entryPending = false;
}

void Selection::clearPath()
{
    while (length_ > 0)
        removeLast();
}

void Selection::append(int tile)
{
    ++length_;
    lastTile_ = tile;
    tiles_[static_cast<std::size_t>(length_)] = static_cast<std::int16_t>(tile);
    letters_[static_cast<std::size_t>(length_)] = board_.letter(tile);
    board_.tile(tile).Tag("X");
    look_.showSelected(board_.tile(tile));
}

void Selection::removeLast()
{
    BoxControl& tile = board_.tile(lastTile_);
    tiles_[static_cast<std::size_t>(length_)] = 0;
    letters_[static_cast<std::size_t>(length_)].clear();
    --length_;
    lastTile_ = length_ > 0 ? tileAt(length_) : 0;
    tile.Tag("");
    look_.showNormal(tile);
}

void Selection::updateWordDisplay(MouseButton button)
{
    const std::string path = word();
    const WordScore score = wordScore(path, *this, board_);
    state_.WordTried.Caption = path;
    state_.CurrScore.Caption = std::to_string(score.score);
    state_.CurrScore.backColor = look_.scoreGround(score.best);
    entryPending = button == MouseButton::Right;
}

std::string Selection::word() const
{
    std::string word;
    for (int place = 1; place <= length_; ++place)
        word += letterAt(place);
    return word;
}

WordScore wordScore(const std::string& word, const Selection& path, const Board& board)
{
    WordScore result;
    for (int place = 1; place <= path.length(); ++place) {
        const Colour m = board.maskcolor(path.tileAt(place));
        if (m > static_cast<Colour>(result.best) && m != multiplier::red) {
            result.best = static_cast<int>(m);
            ++result.bonusCount;
        }
    }
    result.score = result.best * letterSum(word);
    return result;
}

} // namespace lexigrove
