#pragma once

#include "game/board.hpp"
#include "game/game_state.hpp"
#include "settings/game_settings.hpp"

#include <array>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace lexigrove
{

struct Game;

/// A position cannot be read or set up. `what()` names the field, the place and what is wrong.
class PositionError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// The board part of a position: what one line of text tells. docs/position.md has its grammar.
struct BoardPosition {
    static constexpr char none = '.';  ///< an empty cell, or an empty place of the drop row
    static constexpr char blank = '_'; ///< a tile without a letter, as a short preset text leaves them

    struct Cell {
        char letter = none; ///< A to Z, `none` or `blank`
        Colour multiplier = multiplier::plain;

        friend bool operator==(const Cell&, const Cell&) = default;
    };

    Arrangement arrangement = Arrangement::Square;
    int level = 2;                                  ///< the dictionary: 1 to 3, 0 for the user dictionary
    std::array<Cell, Board::tileCount + 1> cells{}; ///< by tile number; entry 0 and tiles out of play stay as they are
    std::array<char, Board::columns + 1> waiting{}; ///< the drop row by column, entry 0 unused: a letter or `none`
    std::string queue;                              ///< the upcoming letters, the next one first; `blank` for none

    BoardPosition();
    friend bool operator==(const BoardPosition&, const BoardPosition&) = default;
};

/// The line of text, and the line read back. Reading throws PositionError and takes letters in any case.
std::string textOf(const BoardPosition& board);
BoardPosition boardPositionOf(std::string_view text);

/// Everything that decides how a game goes on. Of two equal positions the same inputs and draws make the same game.
struct Position {
    BoardPosition board;
    std::string userDictionary; ///< the file of dictionary 0
    std::uint64_t words = 0;    ///< fingerprint of the word list
    Strategy strategy = Strategy::HighestScore;
    GameState state; ///< scores, counters, statistics, the rows of the words made
    int redThreshold = 0;
    std::array<int, 27> letterCounts{}; ///< of the pool, 1 to 26
    std::string pool;                   ///< its 100 letters, in the order in which they are shuffled next
    std::vector<int> path;              ///< the word being built
    bool entryPending = false;          ///< the next right click enters it
    int swapTile = 0;                   ///< the tile that waits for a letter swap, 0 for none
    int secondsLeft = 0;                ///< on the clock of a game against the computer

    friend bool operator==(const Position&, const Position&) = default;
};

/// The game as it stands between two inputs. The clock is the caller's.
Position positionOf(const Game& game);

/// Sets the game up as the position says, whole or not at all: throws PositionError before anything has changed. The
/// words of the position's dictionary are loaded; the clock is the caller's.
void restore(Game& game, const Position& position);

/// Sets up the board part alone: a game at its start with no points and no words, whose counts of red and bonus tiles
/// are those of the board.
void restore(Game& game, const BoardPosition& board);

} // namespace lexigrove
