#pragma once

#include "game/arrangement.hpp"

#include <deque>
#include <string>

namespace lexigrove
{

struct Game;

/// Where the letters come from: the pool of 100, the queue of upcoming letters and the drop row `TopDrop`.
class LetterSupply
{
public:
    explicit LetterSupply(Game& game) : game_(game) {}

    /// Shuffles the pool in place: each of the 100 entries in turn is swapped with a random entry.
    void shufflePool();

    /// Deals the first 64 letters onto the tiles and the others into the queue, fills the drop row, and sets
    /// `TilesLeft` to its start value. Preset letters replace the shuffled ones. Called once per game, after the board
    /// is laid out.
    void dealLetters();

    /// The start value of `TilesLeft`. The queue of a square board holds four letters more.
    static int startCount(Arrangement arrangement) { return arrangement == Arrangement::Staggered ? 32 : 24; }

    /// Takes the first letter off the queue; an empty string if there is none.
    std::string nextLetter();

    /// Puts a new letter in each empty place of the drop row and counts `TilesLeft` down. A game against the computer
    /// never runs out of letters: its queue is topped up with the freshly shuffled pool.
    void refillTopRow();

    /// Puts a letter on the waiting tile over a column and moves the tile home; without a letter the tile is hidden.
    void waitAtHome(int col, const std::string& letter);

    /// Upcoming letters, the next one first. A letter is one character; an empty string is a place without a letter.
    std::deque<std::string> RandomLetters;

private:
    void fillTopRow();

    Game& game_;
};

} // namespace lexigrove
