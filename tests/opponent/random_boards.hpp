#pragma once

#include "opponent/search_board.hpp"

#include <random>
#include <string_view>

namespace lexigrove::test
{

/// A board of random letters in which the top `emptyCells` rows of each column, a number drawn up to the one given, are
/// empty.
inline SearchBoard randomBoard(std::mt19937& random, bool square, std::string_view letters, unsigned mostEmptyCells)
{
    SearchBoard board;
    const NeighbourTable table = square ? squareNeighbours() : staggeredNeighbours();
    for (unsigned col = 0; col < 8; ++col) {
        const unsigned height = square || col % 2 == 1 ? 8 : 7;
        const unsigned empty = mostEmptyCells == 0 ? 0 : static_cast<unsigned>(random() % (mostEmptyCells + 1));
        for (unsigned row = empty; row < height; ++row)
            board.letters[col * 8 + row + 1] = letters[random() % letters.size()];
    }
    for (std::size_t tile = 1; tile < table.size(); ++tile) {
        for (const std::uint8_t neighbour : table[tile]) {
            if (board.letters[tile] != 0 && board.letters[neighbour] != 0)
                board.neighbours[tile].append(neighbour);
        }
    }
    return board;
}

} // namespace lexigrove::test
