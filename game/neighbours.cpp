#include "game/neighbours.hpp"

#include <algorithm>

namespace lexigrove
{

namespace
{

/// Offsets from a tile's number to those of its neighbours, in their order; 0 ends them.
using Offsets = std::array<int, 8>;

/// Overwrites the lists of tiles first, first + step, ... last with the neighbours at these offsets that are on the
/// board.
void setNeighbours(NeighbourTable& table, int first, int last, int step, const Offsets& offsets)
{
    for (int tile = first; tile <= last; tile += step) {
        NeighbourList list;
        for (const int offset : offsets) {
            const int candidate = tile + offset;
            if (offset != 0 && candidate >= 1 && candidate <= 64)
                list.append(candidate);
        }
        table[static_cast<std::size_t>(tile)] = list;
    }
}

struct StaggeredRow {
    int first;
    int last;
    Offsets offsets;
};

/// Runs of tiles with the same offsets; a later row overwrites an earlier one. The order within a row decides which of
/// two equal words is found first, and so which path the computer plays.
constexpr StaggeredRow staggeredRows[] = {
    {1, 6, {+1, -1, +8, +9}},           // column 1, rows 1 to 6
    {10, 15, {-1, +1, -9, -8, +7, +8}}, // inner rows of the long columns 2, 4, 6
    {26, 31, {-1, +1, -9, -8, +7, +8}}, //
    {42, 47, {-1, +1, -9, -8, +7, +8}}, //
    {18, 22, {-1, +1, -7, -8, +8, +9}}, // inner rows of the short columns 3, 5, 7
    {34, 38, {-1, +1, -7, -8, +8, +9}}, //
    {50, 54, {-1, +1, -7, -8, +8, +9}}, //
    {58, 63, {+1, -1, -9, -8}},         // column 8, rows 2 to 7
    {1, 1, {+1, +9, +8}},               // top of column 1
    {9, 9, {-8, +8, +1}},               // tops of the long columns 2, 4, 6
    {25, 25, {-8, +8, +1}},             //
    {41, 41, {-8, +8, +1}},             //
    {17, 17, {+1, -7, -8, +8, +9}},     // tops of the short columns 3, 5, 7
    {33, 33, {+1, -7, -8, +8, +9}},     //
    {49, 49, {+1, -7, -8, +8, +9}},     //
    {7, 7, {+8, +9, -1}},               // bottom of column 1
    {57, 57, {+1, -8}},                 // top of column 8
    {16, 16, {-1, -9, +7}},             // bottoms of the long columns 2, 4, 6
    {32, 32, {-1, -9, +7}},             //
    {48, 48, {-1, -9, +7}},             //
    {23, 23, {-1, -7, -8, +8, +9}},     // bottoms of the short columns 3, 5, 7
    {39, 39, {-1, -7, -8, +8, +9}},     //
    {55, 55, {-1, -7, -8, +8, +9}},     //
    {64, 64, {-1, -9}},                 // bottom of column 8
};

} // namespace

bool NeighbourList::contains(int tile) const
{
    return std::find(begin(), end(), tile) != end();
}

std::string NeighbourList::text() const
{
    std::string text;
    for (const int tile : *this)
        text += std::to_string(tile) + ',';
    return text;
}

NeighbourTable squareNeighbours()
{
    NeighbourTable table;
    setNeighbours(table, 1, 64, 1, {-1, +1, -7, +7, -8, +8, -9, +9});
    setNeighbours(table, 1, 8, 1, {-1, +1, +7, +8, +9});   // left column
    setNeighbours(table, 57, 64, 1, {-1, +1, -7, -8, -9}); // right column
    // The first call wraps around at the top and bottom edges; these two replace those lists.
    setNeighbours(table, 1, 57, 8, {+1, -7, -8, +8, +9}); // top row
    setNeighbours(table, 8, 64, 8, {-1, +7, -8, +8, -9}); // bottom row
    return table;
}

NeighbourTable staggeredNeighbours()
{
    NeighbourTable table;
    for (const StaggeredRow& row : staggeredRows)
        setNeighbours(table, row.first, row.last, 1, row.offsets);
    return table;
}

} // namespace lexigrove
