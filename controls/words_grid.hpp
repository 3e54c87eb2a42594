#pragma once

#include "controls/colour.hpp"
#include "controls/sort_order.hpp"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lexigrove
{

enum class CellAlignment { Left, Centre };

struct WordsGridColumn {
    const char* heading;
    int width; ///< units, see geometry.hpp
    CellAlignment alignment;
    SortBy sortBy;
};

struct WordsGridCell {
    std::string text;
    Colour backColor = system_colour::windowBackground;
    Colour foreColor = system_colour::windowText;
};

/// The words grid `WordsMade` of the main window and of the hints window: a heading row and one row a word with the
/// cells number, score, length and word. The heading is row 0 and counts in `Rows`; columns are 0 to 3.
class WordsGrid
{
public:
    static constexpr int columnCount = 4;
    static constexpr int numberColumn = 0;
    static constexpr int scoreColumn = 1;
    static constexpr int lengthColumn = 2;
    static constexpr int wordColumn = 3;
    static constexpr std::array<WordsGridColumn, columnCount> columns{{
        {"#", 400, CellAlignment::Centre, SortBy::Number},
        {"S", 400, CellAlignment::Centre, SortBy::Number},
        {"L", 300, CellAlignment::Centre, SortBy::Number},
        {"Word...", 1750, CellAlignment::Left, SortBy::Text},
    }};

    WordsGrid();

    /// Leaves the heading row alone, in its colours, and makes it the current row. The sort mark stays.
    void clear();

    /// Adds a row below all others, or so that it stands at `position` (1 to `Rows`; throws std::out_of_range
    /// elsewhere). The cells are separated by tabs; missing ones are empty. The payload is what only the rules read,
    /// such as a path.
    void addRow(std::string_view cells, std::string payload = {});
    void insertRow(int position, std::string_view cells, std::string payload = {});

    /// The number of rows, the heading counted: 1 for an empty grid.
    [[nodiscard]] int Rows() const { return static_cast<int>(rows_.size()); }

    // Rows are 0 to Rows - 1 and columns 0 to 3; std::out_of_range elsewhere.

    [[nodiscard]] const WordsGridCell& cell(int row, int column) const;
    [[nodiscard]] const std::string& text(int row, int column) const { return cell(row, column).text; }
    [[nodiscard]] const std::string& payload(int row) const;
    void setCellColours(int row, int column, Colour backColor, Colour foreColor);
    void setHeadingForeColor(Colour foreColor);

    /// The current cell; row 0 (the heading) when no word is current. The current row stays with its word when rows
    /// come in above it or are sorted.
    [[nodiscard]] int Row() const { return row_; }
    [[nodiscard]] int Col() const { return column_; }
    void setCurrent(int row, int column);

    /// The column at a horizontal position over the heading, from the running sum of the widths; -1 beside all columns.
    [[nodiscard]] static int columnAt(int x);

    /// Sorts by the column under `x` (units), if any: descending when the mark is "A", which then becomes "D";
    /// otherwise ascending, and it becomes "A". One mark serves all columns, so another column is sorted in the
    /// direction opposite to the last sort.
    void headingClicked(int x);

    /// The sort mark: "A", "D", or empty before the first sort.
    std::string Tag;

    /// Rises with every change that shows: a front end fills its table again when it differs.
    [[nodiscard]] std::uint32_t revision() const { return revision_; }

private:
    struct GridRow {
        std::array<WordsGridCell, columnCount> cells;
        std::string payload;
    };

    void sort(int column, SortDirection direction);
    [[nodiscard]] GridRow& rowAt(int row);
    [[nodiscard]] const GridRow& rowAt(int row) const;

    std::vector<GridRow> rows_; ///< the heading first
    int row_ = 0;
    int column_ = 0;
    std::uint32_t revision_ = 0;
};

} // namespace lexigrove
