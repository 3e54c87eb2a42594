#pragma once

#include "dictionary/letter_tables.hpp"

#include <cstdint>

namespace lexigrove
{

/// A set of letters: bits 1 to 26 are A to Z, bit 0 is all other characters together.
using LetterSet = std::uint32_t;

constexpr LetterSet otherCharacters = 1;

/// How many there are. Where a program must run on every processor of its kind, the standard's own is a call of a
/// library.
constexpr std::uint32_t countOf(LetterSet set)
{
    set -= set >> 1 & 0x5555'5555U;
    set = (set & 0x3333'3333U) + (set >> 2 & 0x3333'3333U);
    return ((set + (set >> 4)) & 0x0F0F'0F0FU) * 0x0101'0101U >> 24;
}

constexpr LetterSet setOf(char letter)
{
    return LetterSet{1} << letterIndex(letter);
}

} // namespace lexigrove
