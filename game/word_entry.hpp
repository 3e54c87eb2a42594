#pragma once

#include "controls/colour.hpp"

#include <string>

namespace lexigrove
{

struct Game;

enum class EnterResult {
    Passed,   ///< a game against the computer without a word: the computer's turn follows
    TooShort, ///< nothing happened
    NotFound, ///< the status line says so; the path stays
    Entered,  ///< the word is made; in a game against the computer its turn follows
};

/// Enters the word on the path: checks it, scores it, takes its tiles off the board and may award a bonus tile.
class WordEntry
{
public:
    explicit WordEntry(Game& game) : game_(game) {}

    EnterResult enterWord();

    /// Turns a random plain tile into a bonus tile with this multiplier (2, 3 or 4). Does nothing in a game against the
    /// computer, with four bonus tiles on the board, or if no visible tile is plain.
    void awardBonusTile(Colour multiplier);

private:
    [[nodiscard]] bool isAccepted(const std::string& word) const;
    void defuseRedTiles();
    void awardBonusFor(std::size_t wordLength);

    Game& game_;
};

} // namespace lexigrove
