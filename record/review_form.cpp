#include "record/review_form.hpp"

namespace lexigrove
{

ReviewForm::ReviewForm(GameRecord record, ReviewLists& lists, Meanings& meanings)
    : review_(std::move(record), lists), meanings_(meanings)
{
    first();
}

std::string ReviewForm::caption() const
{
    return "Game of " + review_.record().begun;
}

std::string ReviewForm::summary() const
{
    return "You took " + std::to_string(review_.taken()) + " of the " + std::to_string(review_.possible(list_)) +
           " points that the best word of each turn would have given";
}

std::vector<ReviewForm::TurnRow> ReviewForm::mostLeftBehind() const
{
    std::vector<TurnRow> left;
    for (const int turn : review_.mostLeftBehind(list_))
        left.push_back(rowOf(turn));
    return left;
}

std::string ReviewForm::textOf(const TurnRow& left)
{
    return "Turn " + std::to_string(left.turn) + ": you made " + left.word + " for " + std::to_string(left.score) +
           ", " + left.bestWord + " would have given " + std::to_string(left.bestScore);
}

std::string ReviewForm::rarestText() const
{
    const std::optional<int> rarest = review_.rarest();
    return rarest ? "Your rarest word was " + review_.turn(*rarest).word : std::string();
}

std::string ReviewForm::notice() const
{
    if (review_.hasWords(list_))
        return {};
    return textOf(list_, review_.record().start.level) + " cannot be read: nobody knows what else was there";
}

std::vector<ReviewForm::TurnRow> ReviewForm::rows() const
{
    std::vector<TurnRow> rows;
    for (int turn = 1; turn <= turnCount(); ++turn)
        rows.push_back(rowOf(turn));
    return rows;
}

ReviewForm::TurnRow ReviewForm::rowOf(int turn) const
{
    const Turn& made = review_.turn(turn);
    const FoundWord& best = review_.there(list_, turn).best;
    return {.turn = turn,
            .maker = made.maker == Maker::Player ? "You" : "Computer",
            .word = made.word,
            .score = made.score,
            .bestWord = best.word,
            .bestScore = best.score};
}

void ReviewForm::goTo(int turn)
{
    if (turn >= 1 && turn <= turnCount())
        turn_ = turn;
}

const BoardPosition& ReviewForm::board() const
{
    return turn_ == 0 ? review_.record().start : review_.turn(turn_).before;
}

std::string ReviewForm::textOf(ReviewList list, int level)
{
    if (list == ReviewList::LevelThree)
        return "Level 3";
    return level == 0 ? "User dictionary" : "Level " + std::to_string(level);
}

std::string ReviewForm::thereText() const
{
    if (turn_ == 0)
        return {};
    const int count = review_.there(list_, turn_).count;
    return std::to_string(count) + (count == 1 ? " word was on the board" : " words were on the board");
}

FoundWord ReviewForm::word(Lit which) const
{
    if (turn_ == 0)
        return {};
    const Turn& made = review_.turn(turn_);
    switch (which) {
    case Lit::Made:
        return {made.word, made.path, made.score};
    case Lit::Best:
        return review_.there(list_, turn_).best;
    case Lit::Longest:
        return review_.there(list_, turn_).longest;
    }
    return {};
}

void ReviewForm::pressMeaning()
{
    if (const std::string lit = word(lit_).word; !lit.empty())
        meanings_.showMeaning(lit);
}

} // namespace lexigrove
