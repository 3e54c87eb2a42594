#include "record/review_form.hpp"

#include "record/daily.hpp"

namespace lexigrove
{

ReviewForm::ReviewForm(GameRecord record, LevelLists& lists, Meanings& meanings)
    : review_(std::move(record), lists), meanings_(meanings)
{
    first();
}

std::vector<TurnRow> ReviewForm::mostLeftBehind() const
{
    std::vector<TurnRow> left;
    for (const int turn : review_.mostLeftBehind(list_))
        left.push_back(rowOf(review_, list_, turn));
    return left;
}

std::string ReviewForm::dailySummary() const
{
    const GameRecord& record = review_.record();
    return record.kind == GameKind::Daily ? lexigrove::dailySummary(record) : std::string();
}

std::vector<TurnRow> ReviewForm::rows() const
{
    std::vector<TurnRow> rows;
    for (int turn = 1; turn <= turnCount(); ++turn)
        rows.push_back(rowOf(review_, list_, turn));
    return rows;
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

std::string ReviewForm::thereText() const
{
    return turn_ == 0 ? std::string() : lexigrove::thereText(review_.there(list_, turn_));
}

FoundWord ReviewForm::word(Lit which) const
{
    if (turn_ == 0)
        return {};
    if (which == Lit::Made) {
        const Turn& made = review_.turn(turn_);
        return {made.word, made.path, made.score};
    }
    const WordsThere& there = review_.there(list_, turn_);
    return which == Lit::Best ? there.best : there.longest;
}

void ReviewForm::pressMeaning()
{
    if (const std::string lit = word(lit_).word; !lit.empty())
        meanings_.showMeaning(lit);
}

} // namespace lexigrove
