#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace lexigrove
{

enum class CellAlignment { Left, Centre };

struct WordsGridColumn {
    const char* heading;
    int width; ///< units, see geometry.hpp
    CellAlignment alignment;
};

enum class Maker { Player, Computer };

/// A word of the grid.
struct WordsRow {
    int number = 0; ///< the grid's row count before the row was added; set by the grid
    int score = 0;
    std::string word = {};
    Maker maker = Maker::Player;
    std::vector<std::uint8_t> path = {}; ///< the tile numbers of a hint, in order; empty for a word already made

    friend bool operator==(const WordsRow&, const WordsRow&) = default;
};

/// The words grid `WordsMade` of the main window and of the hints window: a heading row, and for each word a row with
/// number, score, length and word. The heading is row 0 and counts in `Rows`; columns are 0 to 3.
class WordsGrid
{
public:
    static constexpr int columnCount = 4;
    static constexpr int numberColumn = 0;
    static constexpr int scoreColumn = 1;
    static constexpr int lengthColumn = 2;
    static constexpr int wordColumn = 3;
    static constexpr std::array<WordsGridColumn, columnCount> columns{{
        {"#", 400, CellAlignment::Centre},
        {"S", 400, CellAlignment::Centre},
        {"L", 300, CellAlignment::Centre},
        {"Word...", 1750, CellAlignment::Left},
    }};

    WordsGrid() = default;
    WordsGrid(const WordsGrid&) = default;
    /// Takes the rows of another grid; the revision goes on from this one's.
    WordsGrid& operator=(const WordsGrid& other);

    /// Removes all words. The heading becomes the current row, and the sort mark stays.
    void clear();

    /// Adds a row below all others, or directly below the heading.
    void add(WordsRow row);
    void insertOnTop(WordsRow row);

    /// Takes rows as they stand, with their numbers, the topmost first; the heading is the current row.
    void assign(std::vector<WordsRow> rows);

    /// The number of rows including the heading: 1 for an empty grid.
    [[nodiscard]] int Rows() const { return static_cast<int>(rows_.size()) + 1; }

    /// A word's row, 1 to Rows - 1. Throws std::out_of_range otherwise.
    [[nodiscard]] const WordsRow& row(int row) const;
    /// The text of a cell, headings included. Throws std::out_of_range outside the grid.
    [[nodiscard]] std::string text(int row, int column) const;

    /// The current row, or 0 (the heading) if no word is current. It stays with its word when rows are inserted above
    /// it or sorted. `setCurrent` takes 0 to Rows - 1 and throws std::out_of_range otherwise.
    [[nodiscard]] int Row() const { return row_; }
    void setCurrent(int row);

    /// The column at a horizontal position (units), or -1 outside all columns.
    [[nodiscard]] static int columnAt(int x);

    /// Sorts by the column under `x` (units), if any: descending when the mark is "A", which then becomes "D";
    /// otherwise ascending, and it becomes "A". One mark serves all columns, so another column is sorted in the
    /// direction opposite to the last sort. Words are compared without regard to case, and equal rows keep their order
    /// in both directions.
    void headingClicked(int x);

    /// The sort mark: "A", "D", or empty before the first sort.
    std::string Tag;

    /// The column by which the rows stand sorted, in the direction of the mark; -1 if rows came in after the sort.
    [[nodiscard]] int sortedColumn() const { return sortedColumn_; }

    /// Increases with every visible change: a front end refills its table when it differs.
    [[nodiscard]] std::uint32_t revision() const { return revision_; }

    /// The same rows in the same order, the same current one and the same sort mark.
    friend bool operator==(const WordsGrid& a, const WordsGrid& b)
    {
        return a.rows_ == b.rows_ && a.row_ == b.row_ && a.Tag == b.Tag;
    }

private:
    std::vector<WordsRow> rows_; ///< without the heading
    int row_ = 0;
    int sortedColumn_ = -1;
    std::uint32_t revision_ = 0;
};

} // namespace lexigrove
