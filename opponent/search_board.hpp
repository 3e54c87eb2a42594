#pragma once

#include <array>
#include <cstdint>

namespace lexigrove
{

/// What a search sees of the board at one moment. Tiles are numbered 1 to 64; entry 0 is the hidden template.
struct SearchBoard {
    static constexpr int tileCount = 64;

    /// A tile's neighbour list: tile numbers 1 to 64, in the order of its `Neibors`, without hidden tiles.
    struct Neighbours {
        std::array<std::uint8_t, 8> tiles{};
        std::uint8_t count = 0;
    };

    /// Letters by tile number, any single byte; 0 for a tile that is hidden or shows no letter.
    std::array<char, tileCount + 1> letters{};
    std::array<Neighbours, tileCount + 1> neighbours{};
};

} // namespace lexigrove
