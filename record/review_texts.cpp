#include "record/review_texts.hpp"

namespace lexigrove
{

TurnRow rowOf(const Review& review, ReviewList list, int turn)
{
    const Turn& made = review.turn(turn);
    const FoundWord& best = review.there(list, turn).best;
    return {.turn = turn,
            .maker = made.maker == Maker::Player ? "You" : "Computer",
            .word = made.word,
            .score = made.score,
            .bestWord = best.word,
            .bestScore = best.score};
}

std::string summaryText(const Review& review, ReviewList list)
{
    return "You took " + std::to_string(review.taken()) + " of the " + std::to_string(review.possible(list)) +
           " points that the best word of each turn would have given";
}

std::string leftBehindText(const TurnRow& left)
{
    return "Turn " + std::to_string(left.turn) + ": you made " + left.word + " for " + std::to_string(left.score) +
           ", " + left.bestWord + " would have given " + std::to_string(left.bestScore);
}

std::string rarestText(const Review& review)
{
    const std::optional<int> rarest = review.rarest();
    return rarest ? "Your rarest word was " + review.turn(*rarest).word : std::string();
}

std::string listText(ReviewList list, int level)
{
    if (list == ReviewList::LevelThree)
        return "Level 3";
    return level == 0 ? "User dictionary" : "Level " + std::to_string(level);
}

std::string thereText(const WordsThere& there)
{
    return std::to_string(there.count) + (there.count == 1 ? " word was on the board" : " words were on the board");
}

std::string noticeText(const Review& review, ReviewList list)
{
    if (review.hasWords(list))
        return {};
    return listText(list, review.record().start.level) + " cannot be read: nobody knows what else was there";
}

} // namespace lexigrove
