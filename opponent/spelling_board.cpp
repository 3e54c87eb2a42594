#include "opponent/spelling_board.hpp"

#include <algorithm>
#include <bit>
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

Frontier SpellingBoard::extend(const Frontier& paths, char letter)
{
    makeRoom(paths.end + std::size_t{8} * (paths.end - paths.begin) + 1);
    const auto number = static_cast<std::size_t>(letterIndex(letter));
    Step* const begin = steps_.data() + paths.end;
    Step* end = begin;
    LetterSet next = 0;
    for (std::uint32_t path = paths.begin; path != paths.end; ++path) {
        const Step from = steps_[path];
        const Surroundings& around = around_[from.tile];
        unsigned slotBits = around.slotBits[number];
        // Most paths end next to one tile with the letter or none. Its step is written either way and counted only if
        // allowed: a branch here would be mispredicted too often.
        const std::uint64_t found = slotBits != 0;
        do {
            const auto slot = static_cast<unsigned>(std::countr_zero(slotBits | 0x80U));
            slotBits &= slotBits - 1;
            const std::uint8_t tile = around.tiles[slot];
            const std::uint64_t free = found & ~(from.blocked >> ((tile - 1U) % 64U));
            *end = {from.blocked | around.blocks[slot], path, tile};
            end += free;
            next |= (0 - static_cast<LetterSet>(free)) & around_[tile].letters;
        } while (slotBits != 0);
    }
    if (setOf(letter) == otherCharacters)
        end = std::remove_if(begin, end, [&](const Step& step) { return letters_[step.tile] != letter; });
    return {paths.end, paths.end + static_cast<std::uint32_t>(end - begin), next};
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
