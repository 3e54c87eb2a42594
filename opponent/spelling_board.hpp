#pragma once

#include "opponent/letter_set.hpp"
#include "opponent/search_board.hpp"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <span>
#include <vector>

namespace lexigrove
{

/// All paths that spell one prefix of a word, in the order in which they were found.
struct Frontier {
    std::uint32_t begin = 0; ///< the paths are [begin, end)
    std::uint32_t end = 0;
    LetterSet next = 0; ///< no other letters are next to the end of a path

    [[nodiscard]] bool empty() const { return begin == end; }
};

/// A board prepared for spelling words on it, letter by letter: from a first letter to the frontier of its tiles, and
/// from a frontier to the frontier with one more letter. Letters are passed in upper case; a tile's letter is used
/// unchanged, so a lower-case tile fits no word.
///
/// A path's digit text is its tile numbers, two digits each. A tile counts as used if its two digits occur anywhere in
/// that text, even across two entries: after tiles 12 and 3 ("1203") tile 20 is used. A step from one tile to another
/// therefore blocks two tiles: the new one, and the one formed by the last digit of the old and the first digit of the
/// new.
class SpellingBoard
{
public:
    void prepare(const SearchBoard& board);

    /// The frontier of a first letter, its tiles in increasing order. It is empty for a letter that is on no tile, and
    /// for one outside the letter index, which covers codes 65 (A) to 128.
    Frontier start(char letter);

    /// Every path of the frontier with one more tile, which shows the letter: path by path, each in the order of its
    /// last tile's neighbour list. The paths of earlier frontiers are kept; earlier extensions of `paths` are
    /// overwritten.
    Frontier extend(const Frontier& paths, char letter);

    /// Writes the tile numbers of a path of `tiles.size()` letters.
    void copyPath(std::uint32_t path, std::span<std::uint8_t> tiles) const;

private:
    /// A path is its last tile and the path before that.
    struct Step {
        std::uint64_t blocked = 0; ///< bit t - 1: the path may not continue to tile t
        std::uint32_t previous = 0;
        std::uint8_t tile = 0;
    };

    /// The neighbours of a path's last tile, in exactly two cache lines. A slot is a position in the neighbour list.
    struct alignas(128) Surroundings {
        std::array<std::uint64_t, 8> blocks{};   ///< by slot: the tiles that the step there blocks
        std::array<std::uint8_t, 8> tiles{};     ///< by slot
        std::array<std::uint8_t, 27> slotBits{}; ///< by the letter's bit in a set: bit s for slot s
        LetterSet letters = 0;
    };

    void makeRoom(std::size_t steps);

    std::array<char, SearchBoard::tileCount + 1> letters_{};
    std::array<Surroundings, SearchBoard::tileCount + 1> around_{};
    /// A quarter of a gigabyte of paths. Ordinary boards need a few thousand; only long runs of one letter on a board
    /// full of it come near this.
    static constexpr std::size_t maxSteps = std::size_t{1} << 24;

    std::vector<Step> steps_ = std::vector<Step>(4'096); ///< the paths of all frontiers; grows as needed
};

// Inline, for a sweep calls it for each letter that it tries.
inline Frontier SpellingBoard::extend(const Frontier& paths, char letter)
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

} // namespace lexigrove
