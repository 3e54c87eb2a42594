#pragma once

#include "game/board_position.hpp"
#include "game/game_state.hpp"
#include "settings/game_settings.hpp"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace lexigrove
{

class Board;
struct Game;

/// Everything that decides how a game goes on. Of two equal positions the same inputs and draws make the same game.
struct Position {
    BoardPosition board;
    std::string userDictionary; ///< the file of dictionary 0
    std::uint64_t words = 0;    ///< fingerprint of the word list
    Strategy strategy = Strategy::HighestScore;
    Vocabulary vocabulary = Vocabulary::Every;
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

/// The board part of the game as it stands.
BoardPosition boardOf(const Game& game);

/// Lays out a board of its own, without the queue, to be looked at. The tiles' colours are the caller's.
void showOn(Board& board, const BoardPosition& position);

/// A word that is about to be made of the path, which is on the board; its score is the caller's.
Turn turnOf(const Game& game, Maker maker);

/// The game as it stands between two inputs. The clock is the caller's.
Position positionOf(const Game& game);

/// Sets the game up as the position says, whole or not at all: throws PositionError before anything has changed. The
/// words of the position's dictionary are loaded; the clock is the caller's.
void restore(Game& game, const Position& position);

/// Sets up the board part alone: a game at its start with no points and no words, whose counts of red and bonus tiles
/// are those of the board.
void restore(Game& game, const BoardPosition& board);

} // namespace lexigrove
