#include "record/past_games.hpp"

#include <algorithm>
#include <iterator>
#include <map>
#include <set>
#include <utility>

namespace lexigrove
{

namespace
{

std::string kindText(const PastGame& game)
{
    if (game.computerGame && game.kind == GameKind::Normal)
        return "Computer";
    constexpr const char* names[] = {"Normal", "Preset", "Position", "Shared", "Daily", "Relaxed"};
    return names[static_cast<std::size_t>(game.kind)] + std::string(game.computerGame ? ", computer" : "");
}

bool isBefore(const PastGame& a, const PastGame& b, PastGamesForm::Column column)
{
    using enum PastGamesForm::Column;
    switch (column) {
    case Date:
        return a.name < b.name;
    case Level:
        return a.level < b.level;
    case Score:
        return a.score < b.score;
    case Words:
        return a.words < b.words;
    case LongestWord:
        return a.longestWord.size() < b.longestWord.size();
    case Minutes:
        return a.minutes < b.minutes;
    case Arrangement:
    case Kind:
        break;
    }
    return PastGamesForm::text(a, column) < PastGamesForm::text(b, column);
}

/// The day of a game on the board of a day.
std::optional<Day> dailyDay(const PastGame& game)
{
    return game.kind == GameKind::Daily ? dayOf(std::string_view(game.begun).substr(0, 10)) : std::nullopt;
}

} // namespace

PastGame pastGameOf(const NamedRecord& game)
{
    const GameRecord& record = game.record;
    PastGame row{.name = game.name,
                 .begun = record.begun,
                 .arrangement = record.start.arrangement,
                 .level = record.start.level,
                 .kind = record.kind,
                 .computerGame = record.computerGame,
                 .score = record.yourScore,
                 .minutes = (record.secondsPlayed + 30) / 60};
    for (const Turn& turn : record.turns) {
        if (turn.maker != Maker::Player)
            continue;
        ++row.words;
        if (turn.word.size() > row.longestWord.size())
            row.longestWord = turn.word;
    }
    return row;
}

PastGamesForm::PastGamesForm(const std::string& programFolder, LevelLists& lists, Meanings& meanings)
    : folder_(programFolder), lists_(lists), meanings_(meanings)
{
}

void PastGamesForm::activate(Day today)
{
    today_ = today;
    const RecordFolder::Contents contents = folder_.list();
    damaged_ = contents.damaged;
    games_.clear();
    std::transform(contents.records.rbegin(), contents.records.rend(), std::back_inserter(games_), pastGameOf);
    column_ = Column::Date;
    ascending_ = false;
    level_.reset();
    arrange();
    visible_ = true;
}

std::string PastGamesForm::text(const PastGame& game, Column column)
{
    switch (column) {
    case Column::Date:
        return game.begun;
    case Column::Arrangement:
        return game.arrangement == Arrangement::Square ? "Square" : "Staggered";
    case Column::Level:
        return game.level == 0 ? "User" : std::to_string(game.level);
    case Column::Kind:
        return kindText(game);
    case Column::Score:
        return std::to_string(game.score);
    case Column::Words:
        return std::to_string(game.words);
    case Column::LongestWord:
        return game.longestWord;
    case Column::Minutes:
        return std::to_string(game.minutes);
    }
    return {};
}

void PastGamesForm::headingClicked(Column column)
{
    ascending_ = column == column_ && !ascending_;
    column_ = column;
    arrange();
}

void PastGamesForm::filter(std::optional<int> level)
{
    level_ = level;
    arrange();
}

void PastGamesForm::arrange()
{
    rows_.clear();
    std::copy_if(games_.rbegin(), games_.rend(), std::back_inserter(rows_),
                 [this](const PastGame& game) { return !level_ || game.level == *level_; });
    std::stable_sort(rows_.begin(), rows_.end(), [this](const PastGame& a, const PastGame& b) {
        return ascending_ ? isBefore(a, b, column_) : isBefore(b, a, column_);
    });
}

std::string PastGamesForm::damagedText() const
{
    if (damaged_ == 0)
        return {};
    return std::to_string(damaged_) + (damaged_ == 1 ? " game cannot be read" : " games cannot be read");
}

std::unique_ptr<ReviewForm> PastGamesForm::openRow(std::size_t row) const
{
    return std::make_unique<ReviewForm>(folder_.load(rows_.at(row).name), lists_, meanings_);
}

std::vector<PastGamesForm::ChartPoint> PastGamesForm::chart() const
{
    std::vector<ChartPoint> points;
    for (const PastGame& game : games_) {
        if (!level_ || game.level == *level_)
            points.push_back({game.begun, game.score});
    }
    return points;
}

std::vector<PastGamesForm::Best> PastGamesForm::bests() const
{
    std::map<std::pair<int, Arrangement>, Best> bests;
    for (const PastGame& game : games_) {
        if (game.kind != GameKind::Normal || game.computerGame)
            continue;
        const auto [best, isFirst] = bests.try_emplace({game.level, game.arrangement});
        if (isFirst || game.score > best->second.score)
            best->second = {game.level, game.arrangement, game.score, game.begun};
    }
    std::vector<Best> list;
    std::transform(bests.begin(), bests.end(), std::back_inserter(list), [](const auto& best) { return best.second; });
    return list;
}

std::vector<PastGamesForm::CalendarDay> PastGamesForm::calendar() const
{
    std::vector<CalendarDay> days;
    for (int back = calendarDays - 1; back >= 0; --back)
        days.push_back({today_ - std::chrono::days(back), std::nullopt});
    for (const PastGame& game : games_) {
        const std::optional<Day> day = dailyDay(game);
        if (!day || *day < days.front().day || *day > today_ || (level_ && game.level != *level_))
            continue;
        std::optional<int>& best = days[static_cast<std::size_t>((*day - days.front().day).count())].best;
        best = std::max(best.value_or(game.score), game.score);
    }
    return days;
}

std::optional<int> PastGamesForm::bestOfCalendar() const
{
    std::optional<int> best; // nothing is less than any number
    for (const CalendarDay& day : calendar())
        best = std::max(best, day.best);
    return best;
}

int PastGamesForm::streak() const
{
    std::set<Day> played;
    for (const PastGame& game : games_) {
        if (const std::optional<Day> day = dailyDay(game))
            played.insert(*day);
    }
    Day day = played.contains(today_) ? today_ : today_ - std::chrono::days(1);
    int days = 0;
    for (; played.contains(day); day -= std::chrono::days(1))
        ++days;
    return days;
}

} // namespace lexigrove
