#include "controls/words_grid.hpp"

#include <algorithm>
#include <stdexcept>

namespace lexigrove
{

WordsGrid::WordsGrid() : rows_(1)
{
    for (std::size_t column = 0; column < columnCount; ++column)
        rows_[0].cells[column] = {columns[column].heading, system_colour::buttonFace, system_colour::buttonText};
}

void WordsGrid::clear()
{
    rows_.resize(1);
    setCurrent(0, 0);
}

void WordsGrid::addRow(std::string_view cells, std::string payload)
{
    insertRow(Rows(), cells, std::move(payload));
}

void WordsGrid::insertRow(int position, std::string_view cells, std::string payload)
{
    if (position < 1 || position > Rows())
        throw std::out_of_range("a words grid takes rows from 1 to its row count");
    GridRow row;
    row.payload = std::move(payload);
    for (WordsGridCell& cell : row.cells) {
        const std::size_t tab = std::min(cells.find('\t'), cells.size());
        cell.text = cells.substr(0, tab);
        cells.remove_prefix(std::min(tab + 1, cells.size()));
    }
    rows_.insert(rows_.begin() + position, std::move(row));
    if (row_ >= position)
        ++row_;
    ++revision_;
}

const WordsGridCell& WordsGrid::cell(int row, int column) const
{
    return rowAt(row).cells.at(static_cast<std::size_t>(column));
}

const std::string& WordsGrid::payload(int row) const
{
    return rowAt(row).payload;
}

void WordsGrid::setCellColours(int row, int column, Colour backColor, Colour foreColor)
{
    WordsGridCell& cell = rowAt(row).cells.at(static_cast<std::size_t>(column));
    cell.backColor = backColor;
    cell.foreColor = foreColor;
    ++revision_;
}

void WordsGrid::setHeadingForeColor(Colour foreColor)
{
    for (WordsGridCell& cell : rows_[0].cells)
        cell.foreColor = foreColor;
    ++revision_;
}

void WordsGrid::setCurrent(int row, int column)
{
    static_cast<void>(cell(row, column)); // refuses a cell that is not there
    row_ = row;
    column_ = column;
    ++revision_;
}

int WordsGrid::columnAt(int x)
{
    if (x < 0)
        return -1;
    int right = 0;
    for (int column = 0; column < columnCount; ++column) {
        right += columns[static_cast<std::size_t>(column)].width;
        if (x < right)
            return column;
    }
    return -1;
}

void WordsGrid::headingClicked(int x)
{
    const int column = columnAt(x);
    if (column < 0)
        return;
    const bool descending = Tag == "A";
    sort(column, descending ? SortDirection::Descending : SortDirection::Ascending);
    Tag = descending ? "D" : "A";
}

void WordsGrid::sort(int column, SortDirection direction)
{
    std::vector<std::string_view> keys;
    for (int row = 1; row < Rows(); ++row)
        keys.emplace_back(text(row, column));
    const SortBy by = columns[static_cast<std::size_t>(column)].sortBy;

    std::vector<GridRow> sorted;
    sorted.reserve(rows_.size());
    sorted.push_back(std::move(rows_[0]));
    const int current = row_;
    for (const std::size_t place : sortedOrder(keys, by, direction)) {
        if (static_cast<int>(place) + 1 == current)
            row_ = static_cast<int>(sorted.size());
        sorted.push_back(std::move(rows_[place + 1]));
    }
    rows_ = std::move(sorted);
    ++revision_;
}

WordsGrid::GridRow& WordsGrid::rowAt(int row)
{
    return rows_.at(static_cast<std::size_t>(row));
}

const WordsGrid::GridRow& WordsGrid::rowAt(int row) const
{
    return rows_.at(static_cast<std::size_t>(row));
}

} // namespace lexigrove
