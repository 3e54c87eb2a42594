#pragma once

#include "controls/colour.hpp"

namespace lexigrove
{

/// What a tile's `MaskColor` means for the board: the word multiplier, or a red tile.
namespace multiplier
{
constexpr Colour plain = 1;
constexpr Colour doubled = 2;
constexpr Colour tripled = 3;
constexpr Colour quadrupled = 4;
constexpr Colour red = 9;
constexpr Colour all[] = {plain, doubled, tripled, quadrupled, red};

/// A bonus tile: double, triple or quadruple word score.
constexpr bool isBonus(Colour maskcolor)
{
    return maskcolor >= doubled && maskcolor <= quadrupled;
}
} // namespace multiplier

} // namespace lexigrove
