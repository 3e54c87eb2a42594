#pragma once

#include "record/review.hpp"

#include <string>
#include <vector>

namespace lexigrove
{

/// A turn in a list of turns.
struct TurnRow {
    int turn = 0;
    std::string maker; ///< "You" or "Computer"
    std::string word;
    int score = 0;
    std::string bestWord;
    int bestScore = 0;
};

TurnRow rowOf(const Review& review, ReviewList list, int turn);

/// "You took 187 of the 412 points that the best word of each turn would have given".
std::string summaryText(const Review& review, ReviewList list);

/// "Turn 4: you made CAT for 5, QUIZ would have given 22".
std::string leftBehindText(const TurnRow& left);

/// "Your rarest word was QUIRE"; empty without a word.
std::string rarestText(const Review& review);

/// What to remember of a game: its best word, its longest one where that is another, the greatest loss.
std::vector<std::string> memorableTexts(const Review& review, ReviewList list);

/// The name of a list in a game of this level: "Level 2", "User dictionary".
std::string listText(ReviewList list, int level);

/// "214 words were on the board".
std::string thereText(const WordsThere& there);

/// Says that a list cannot be read, so that nothing is found with it; else empty.
std::string noticeText(const Review& review, ReviewList list);

} // namespace lexigrove
