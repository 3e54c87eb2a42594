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

std::vector<std::string> memorableTexts(const Review& review, ReviewList list)
{
    const Turn* best = nullptr;
    const Turn* longest = nullptr;
    for (const Turn& turn : review.record().turns) {
        if (turn.maker != Maker::Player)
            continue;
        if (best == nullptr || turn.score > best->score)
            best = &turn;
        if (longest == nullptr || turn.word.size() > longest->word.size())
            longest = &turn;
    }
    std::vector<std::string> texts;
    if (best == nullptr)
        return texts;
    texts.push_back("Your best word was " + best->word + " for " + std::to_string(best->score));
    if (longest->word != best->word)
        texts.push_back("Your longest word was " + longest->word);
    if (!review.hasWords(list))
        return texts;
    if (const std::vector<int> left = review.mostLeftBehind(list); !left.empty())
        texts.push_back(leftBehindText(rowOf(review, list, left.front())));
    return texts;
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
