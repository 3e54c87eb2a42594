#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace lexigrove
{

/// The tiles that touch a tile, in the order in which paths and searches try them.
struct NeighbourList {
    std::array<std::uint8_t, 8> tiles{};
    std::uint8_t count = 0;

    void append(int tile) { tiles[count++] = static_cast<std::uint8_t>(tile); }
    [[nodiscard]] bool contains(int tile) const;
    [[nodiscard]] const std::uint8_t* begin() const { return tiles.data(); }
    [[nodiscard]] const std::uint8_t* end() const { return tiles.data() + count; }

    /// The `Neibors` text: decimal tile numbers, each followed by a comma.
    [[nodiscard]] std::string text() const;

    friend bool operator==(const NeighbourList&, const NeighbourList&) = default;
};

/// The lists for tiles 1 to 64; entry 0, the template tile, stays empty.
using NeighbourTable = std::array<NeighbourList, 65>;

/// All eight surrounding tiles; at the edges, those that are on the board.
NeighbourTable squareNeighbours();

/// Honeycomb adjacency: above, below and two tiles in each neighbouring column. Tiles 8, 24, 40 and 56 are not in play.
NeighbourTable staggeredNeighbours();

} // namespace lexigrove
