#include "opponent/spelling_board.hpp"

#include "dictionary/word_text.hpp"

#include <algorithm>
#include <bit>

namespace lexigrove
{

namespace
{

constexpr std::uint64_t tileBit(int tile)
{
    return tile >= 1 && tile <= SearchBoard::tileCount ? std::uint64_t{1} << (tile - 1) : 0;
}

constexpr bool hasIndexEntry(unsigned char letter)
{
    return letter > 64 && letter <= 64 + 64;
}

} // namespace

void SpellingBoard::prepare(const SearchBoard& board)
{
    // A number for each letter of the board; there are no more of them than tiles.
    std::array<std::uint8_t, 256> numbers{};
    std::array<bool, 256> shown{};
    std::uint8_t count = 0;
    letterTiles_ = {};
    for (int tile = 1; tile <= SearchBoard::tileCount; ++tile) {
        const auto letter = static_cast<unsigned char>(board.letters[static_cast<std::size_t>(tile)]);
        if (letter == 0)
            continue;
        if (!shown[letter])
            numbers[letter] = count++;
        shown[letter] = true;
        letterTiles_[numbers[letter]] |= tileBit(tile);
    }
    for (std::size_t code = 0; code < letterSets_.size(); ++code) {
        const unsigned char letter = upperCase(static_cast<unsigned char>(code));
        letterSets_[code] = shown[letter] ? LetterSet{1} << numbers[letter] : 0;
        letterNumbers_[code] = numbers[letter];
    }

    for (std::size_t tile = 1; tile < around_.size(); ++tile) {
        const NeighbourList& neighbours = board.neighbours[tile];
        Surroundings& around = around_[tile];
        around = {};
        for (std::size_t slot = 0; slot < neighbours.count; ++slot) {
            const std::uint8_t neighbour = neighbours.tiles[slot];
            const int acrossEntries = static_cast<int>(tile) % 10 * 10 + neighbour / 10;
            around.tiles[slot] = neighbour;
            around.blocks[slot] = tileBit(neighbour) | tileBit(acrossEntries);
            const auto letter = static_cast<unsigned char>(board.letters[neighbour]);
            if (!shown[letter])
                continue;
            around.slotBits[numbers[letter]] |= static_cast<std::uint8_t>(1U << slot);
            around.letters |= LetterSet{1} << numbers[letter];
        }
    }
}

Frontier SpellingBoard::start(char letter)
{
    Frontier paths;
    const auto code = static_cast<unsigned char>(letter);
    if (letterSets_[code] == 0 || !hasIndexEntry(upperCase(code)))
        return paths;
    makeRoom(SearchBoard::tileCount);
    for (std::uint64_t tiles = letterTiles_[letterNumbers_[code]]; tiles != 0; tiles &= tiles - 1) {
        const int tile = std::countr_zero(tiles) + 1;
        steps_[paths.end++] = {tileBit(tile), 0, static_cast<std::uint8_t>(tile)};
        paths.next |= around_[static_cast<std::size_t>(tile)].letters;
    }
    return paths;
}

Frontier SpellingBoard::extend(const Frontier& paths, char letter)
{
    makeRoom(paths.end + std::size_t{8} * (paths.end - paths.begin) + 1);
    const unsigned number = letterNumbers_[static_cast<unsigned char>(letter)];
    Step* const begin = steps_.data() + paths.end;
    Step* end = begin;
    LetterSet next = 0;
    for (std::uint32_t path = paths.begin; path != paths.end; ++path) {
        const Step from = steps_[path];
        const Surroundings& around = around_[from.tile];
        unsigned slots = around.slotBits[number];
        // Most ends of paths have one neighbour with the letter or none. Its step is written either way and counted
        // only if it may be taken: a branch here would be guessed wrong too often.
        const std::uint64_t found = slots != 0;
        do {
            const auto slot = static_cast<unsigned>(std::countr_zero(slots | 0x80U));
            slots &= slots - 1;
            const std::uint8_t tile = around.tiles[slot];
            const std::uint64_t free = found & ~(from.blocked >> ((tile - 1U) % 64U));
            *end = {from.blocked | around.blocks[slot], path, tile};
            end += free;
            next |= (0 - free) & around_[tile].letters;
        } while (slots != 0);
    }
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
    if (steps_.size() < steps)
        steps_.resize(std::max(steps, 2 * steps_.size()));
}

} // namespace lexigrove
