#include "opponent/board_snapshot.hpp"

namespace lexigrove
{

SearchBoard snapshotOf(const Board& board)
{
    SearchBoard snapshot;
    for (int tile = 1; tile <= Board::tileCount; ++tile) {
        const auto i = static_cast<std::size_t>(tile);
        const std::string& letter = board.letter(tile);
        if (board.isVisible(tile) && !letter.empty() && letter != " ")
            snapshot.letters[i] = letter.front();
        const NeighbourList& list = board.neighbours(tile);
        for (const std::uint8_t neighbour : list) {
            if (board.isVisible(neighbour))
                snapshot.neighbours[i].tiles[snapshot.neighbours[i].count++] = neighbour;
        }
    }
    return snapshot;
}

} // namespace lexigrove
