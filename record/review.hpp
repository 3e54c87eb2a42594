#pragma once

#include "dictionary/level_lists.hpp"
#include "record/game_record.hpp"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace lexigrove
{

/// A word on a board, with the path over which it scores most. Without a word all is empty.
struct FoundWord {
    std::string word;
    std::vector<int> path;
    int score = 0; ///< as a player earns it: the letters' sum times the best bonus on the path
};

/// What was on a board.
struct WordsThere {
    int count = 0;     ///< the words that Get Hint would have shown
    FoundWord best;    ///< by score; of equal ones the first of the list
    FoundWord longest; ///< likewise by length
};

/// The words of which list: of the game's own dictionary, or of level 3.
enum class ReviewList { Own, LevelThree };

/// Looks back on a game: what was on the board before each of its turns. Turns are numbered from 1. The words of a list
/// are looked for when the list is first asked for, for all turns at once: of a game of 60 turns in well below 100 ms.
class Review
{
public:
    /// The lists outlive the review.
    Review(GameRecord record, LevelLists& lists) : record_(std::move(record)), lists_(lists) {}

    [[nodiscard]] const GameRecord& record() const { return record_; }
    [[nodiscard]] int turnCount() const { return static_cast<int>(record_.turns.size()); }
    /// Turn 1 to `turnCount`; std::out_of_range elsewhere, here and below.
    [[nodiscard]] const Turn& turn(int number) const { return record_.turns.at(static_cast<std::size_t>(number) - 1); }

    /// Whether the list has words: a user dictionary may be gone.
    [[nodiscard]] bool hasWords(ReviewList list) const;

    /// What was there before a turn. A word that was made and scored more than any word found is the best one.
    [[nodiscard]] const WordsThere& there(ReviewList list, int turn) const;

    /// The points of the player's words, and those that the best word of each of these turns would have given.
    [[nodiscard]] int taken() const;
    [[nodiscard]] int possible(ReviewList list) const;

    /// What the best word would have given more than the word made; 0 for a turn of the computer.
    [[nodiscard]] int leftBehind(ReviewList list, int turn) const;
    /// The player's turns that left most behind, the greatest loss first: three, or fewer where fewer left anything.
    [[nodiscard]] std::vector<int> mostLeftBehind(ReviewList list) const;

    /// The turn of the player's rarest word: the one in the fewest of the three levels' lists; of equal ones that of
    /// the higher letter sum, then the longer, then the earlier. Nothing in a game without a player's word.
    [[nodiscard]] std::optional<int> rarest() const;

private:
    [[nodiscard]] const WordList& wordsOf(ReviewList list) const;

    GameRecord record_;
    LevelLists& lists_;
    mutable std::array<std::vector<WordsThere>, 2> there_; ///< by list; empty before it is asked for
};

} // namespace lexigrove
