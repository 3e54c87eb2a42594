#pragma once

#include "controls/multiplier.hpp"
#include "game/arrangement.hpp"

#include <array>
#include <stdexcept>
#include <string>
#include <string_view>

namespace lexigrove
{

/// A position cannot be read or set up. `what()` names the field, the place and what is wrong.
class PositionError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// The board part of a position: what one line of text tells. docs/position.md has its grammar.
struct BoardPosition {
    static constexpr int tileCount = 64;
    static constexpr int columns = 8;
    static constexpr char none = '.';  ///< an empty cell, or an empty place of the drop row
    static constexpr char blank = '_'; ///< a tile without a letter, as a short preset text leaves them

    struct Cell {
        char letter = none; ///< A to Z, `none` or `blank`
        Colour multiplier = multiplier::plain;

        friend bool operator==(const Cell&, const Cell&) = default;
    };

    Arrangement arrangement = Arrangement::Square;
    int level = 2;                           ///< the dictionary: 1 to 3, 0 for the user dictionary
    std::array<Cell, tileCount + 1> cells{}; ///< by tile number; entry 0 and tiles out of play stay as they are
    std::array<char, columns + 1> waiting{}; ///< the drop row by column, entry 0 unused: a letter or `none`
    std::string queue;                       ///< the upcoming letters, the next one first; `blank` for none

    BoardPosition();
    friend bool operator==(const BoardPosition&, const BoardPosition&) = default;
};

/// The line of text, and the line read back. Reading throws PositionError and takes letters in any case.
std::string textOf(const BoardPosition& board);
BoardPosition boardPositionOf(std::string_view text);

} // namespace lexigrove
