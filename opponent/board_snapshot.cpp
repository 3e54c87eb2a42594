#include "opponent/board_snapshot.hpp"

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
        for (const std::uint8_t neighbour : board.neighbours(tile)) {
            if (board.isVisible(neighbour))
                snapshot.neighbours[i].append(neighbour);
        }
    }
    return snapshot;
}

} // namespace lexigrove
