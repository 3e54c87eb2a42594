#pragma once

#include "dictionary/letter_tables.hpp"

#include <cstdint>

namespace lexigrove
{

/// A set of letters: bits 1 to 26 are A to Z, bit 0 is all other characters together.
using LetterSet = std::uint32_t;

constexpr LetterSet otherCharacters = 1;

constexpr LetterSet setOf(char letter)
{
    return LetterSet{1} << letterIndex(letter);
}

} // namespace lexigrove
