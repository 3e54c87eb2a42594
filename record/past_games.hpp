#pragma once

#include "record/day.hpp"
#include "record/record_folder.hpp"
#include "record/review_form.hpp"

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace lexigrove
{

/// A game of the list.
struct PastGame {
    std::string name;  ///< of its file
    std::string begun; ///< "2026-11-23 04:15"
    Arrangement arrangement = Arrangement::Square;
    int level = 2; ///< 0 for a user dictionary
    GameKind kind = GameKind::Normal;
    bool computerGame = false;
    int score = 0;
    int words = 0;                ///< the player's
    std::string longestWord = {}; ///< of the player, the first of the longest
    int minutes = 0;              ///< in play, rounded
};

PastGame pastGameOf(const NamedRecord& game);

/// The window "Past Games": the list, the chart, the bests, and the calendar of the daily boards.
class PastGamesForm
{
public:
    enum class Column { Date, Arrangement, Level, Kind, Score, Words, LongestWord, Minutes };
    static constexpr int columnCount = 8;
    static constexpr std::array<const char*, columnCount> headings{"Date",  "Board", "Level",   "Kind",
                                                                   "Score", "Words", "Longest", "Min."};

    /// `programFolder` ends with its separator. The lists and the meanings outlive the form.
    PastGamesForm(const std::string& programFolder, LevelLists& lists, Meanings& meanings);

    /// Reads the folder for a showing: all levels, the newest game first.
    void activate(Day today);
    void pressClose() { visible_ = false; }
    [[nodiscard]] bool isVisible() const { return visible_; }

    // The list, of one level or all

    /// The rows as they are filtered and sorted.
    [[nodiscard]] const std::vector<PastGame>& rows() const { return rows_; }
    [[nodiscard]] static std::string text(const PastGame& game, Column column);
    [[nodiscard]] static bool isNumber(Column column)
    {
        return column == Column::Score || column == Column::Words || column == Column::Minutes;
    }
    /// Sorts by a column: the greatest or last first, and the other way round at the next click on the same heading.
    /// Equal rows stand the newest first.
    void headingClicked(Column column);
    [[nodiscard]] Column sortedBy() const { return column_; }
    [[nodiscard]] bool isAscending() const { return ascending_; }
    void filter(std::optional<int> level); ///< level 0 to 3, or all
    [[nodiscard]] std::optional<int> filteredLevel() const { return level_; }
    /// "2 games cannot be read"; empty when all can.
    [[nodiscard]] std::string damagedText() const;

    /// Row 0 up to the number of rows. Throws FileError or PositionError when the file has gone bad meanwhile.
    [[nodiscard]] std::unique_ptr<ReviewForm> openRow(std::size_t row) const;

    // The chart and the bests

    struct ChartPoint {
        std::string begun;
        int score = 0;
    };
    /// The scores of the rows over time, the oldest first, however the rows are sorted.
    [[nodiscard]] std::vector<ChartPoint> chart() const;

    /// The best normal game that was played alone, of a level in an arrangement.
    struct Best {
        int level = 2;
        Arrangement arrangement = Arrangement::Square;
        int score = 0;
        std::string begun; ///< the first game of that score
    };
    /// Of every level and arrangement that has one, whatever the filter: level 0 first, square before staggered.
    [[nodiscard]] std::vector<Best> bests() const;

    // The daily boards, of the filter's level or of any

    static constexpr int calendarDays = 30;
    struct CalendarDay {
        Day day;
        std::optional<int> best; ///< score of that day's board
    };
    /// The last 30 days, today last.
    [[nodiscard]] std::vector<CalendarDay> calendar() const;
    /// The best of these days.
    [[nodiscard]] std::optional<int> bestOfCalendar() const;
    /// Days in a row with a daily game, up to today, or up to yesterday while today's is still to come; of any level.
    [[nodiscard]] int streak() const;

private:
    void arrange();

    RecordFolder folder_;
    LevelLists& lists_;
    Meanings& meanings_;
    std::vector<PastGame> games_; ///< all, the oldest first
    std::vector<PastGame> rows_;
    int damaged_ = 0;
    Day today_{};
    Column column_ = Column::Date;
    bool ascending_ = false;
    std::optional<int> level_;
    bool visible_ = false;
};

} // namespace lexigrove
