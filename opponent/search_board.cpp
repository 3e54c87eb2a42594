#include "opponent/search_board.hpp"

#include "game/board.hpp"

namespace lexigrove
{

SearchBoard snapshotOf(const Board& board)
{
    SearchBoard snapshot;
    for (int tile = 1; tile <= Board::tileCount; ++tile) {
        const auto i = static_cast<std::size_t>(tile);
        const std::string& letter = board.letter(tile);
        if (board.isVisible(tile) && !letter.empty())
            snapshot.letters[i] = letter.front();
        snapshot.neighbours[i] = board.neighbours(tile);
    }
    return snapshot;
}

} // namespace lexigrove
