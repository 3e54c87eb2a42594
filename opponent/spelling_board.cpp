#include "opponent/spelling_board.hpp"

#include <algorithm>
#include <stdexcept>

namespace lexigrove
{

namespace
{

constexpr std::uint64_t tileBit(int tile)
{
    return tile >= 1 && tile <= SearchBoard::tileCount ? std::uint64_t{1} << (tile - 1) : 0;
}

constexpr bool hasIndexEntry(char letter)
{
    const int entry = static_cast<unsigned char>(letter) - 64;
    return entry >= 1 && entry <= 64;
}

} // namespace

void SpellingBoard::prepare(const SearchBoard& board)
{
    letters_ = board.letters;
    for (std::size_t tile = 1; tile < around_.size(); ++tile) {
        const NeighbourList& neighbours = board.neighbours[tile];
        Surroundings& around = around_[tile];
        around = {};
        for (std::size_t slot = 0; slot < neighbours.count; ++slot) {
            const std::uint8_t neighbour = neighbours.tiles[slot];
            const int acrossEntries = static_cast<int>(tile) % 10 * 10 + neighbour / 10;
            const char letter = letters_[neighbour];
            around.tiles[slot] = neighbour;
            around.blocks[slot] = tileBit(neighbour) | tileBit(acrossEntries);
            if (letter == 0)
                continue;
            around.slotBits[static_cast<std::size_t>(letterIndex(letter))] |= static_cast<std::uint8_t>(1U << slot);
            around.letters |= setOf(letter);
        }
    }
}

Frontier SpellingBoard::start(char letter)
{
    Frontier paths;
    if (!hasIndexEntry(letter))
        return paths;
    makeRoom(SearchBoard::tileCount);
    for (std::size_t tile = 1; tile < letters_.size(); ++tile) {
        if (letters_[tile] != letter)
            continue;
        steps_[paths.end++] = {tileBit(static_cast<int>(tile)), 0, static_cast<std::uint8_t>(tile)};
        paths.next |= around_[tile].letters;
    }
    return paths;
}

void SpellingBoard::copyPath(std::uint32_t path, std::span<std::uint8_t> tiles) const
{
    for (std::size_t place = tiles.size(); place-- > 0;) {
        tiles[place] = steps_[path].tile;
        path = steps_[path].previous;
    }
}

void SpellingBoard::makeRoom(std::size_t steps)
{
    if (steps > maxSteps)
        throw std::length_error("There are too many ways to spell one word on this board");
    if (steps_.size() < steps)
        steps_.resize(std::max(steps, 2 * steps_.size()));
}

} // namespace lexigrove
