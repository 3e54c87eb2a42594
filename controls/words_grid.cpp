#include "controls/words_grid.hpp"

#include "platform/ascii.hpp"

#include <algorithm>
#include <stdexcept>

namespace lexigrove
{

namespace
{

/// The lower-case form of a Windows-1252 capital letter; any other character is returned unchanged.
unsigned char lowerCase(char c)
{
    const auto code = static_cast<unsigned char>(c);
    if (ascii::isUpper(c) || (code >= 0xC0 && code <= 0xDE && code != 0xD7))
        return static_cast<unsigned char>(code + 0x20);
    if (code == 0x8A || code == 0x8C || code == 0x8E) // S with caron, OE, Z with caron
        return static_cast<unsigned char>(code + 0x10);
    return code == 0x9F ? 0xFF : code; // Y with diaeresis
}

bool isBefore(const WordsRow& a, const WordsRow& b, int column)
{
    switch (column) {
    case WordsGrid::numberColumn:
        return a.number < b.number;
    case WordsGrid::scoreColumn:
        return a.score < b.score;
    case WordsGrid::lengthColumn:
        return a.word.size() < b.word.size();
    default:
        return std::ranges::lexicographical_compare(a.word, b.word, {}, lowerCase, lowerCase);
    }
}

} // namespace

WordsGrid& WordsGrid::operator=(const WordsGrid& other)
{
    rows_ = other.rows_;
    row_ = other.row_;
    sortedColumn_ = other.sortedColumn_;
    Tag = other.Tag;
    ++revision_;
    return *this;
}

void WordsGrid::clear()
{
    assign({});
}

void WordsGrid::add(WordsRow row)
{
    row.number = Rows();
    rows_.push_back(std::move(row));
    sortedColumn_ = -1;
    ++revision_;
}

void WordsGrid::assign(std::vector<WordsRow> rows)
{
    rows_ = std::move(rows);
    sortedColumn_ = -1;
    setCurrent(0);
}

void WordsGrid::insertOnTop(WordsRow row)
{
    row.number = Rows();
    rows_.insert(rows_.begin(), std::move(row));
    if (row_ > 0)
        ++row_;
    sortedColumn_ = -1;
    ++revision_;
}

const WordsRow& WordsGrid::row(int row) const
{
    return rows_.at(static_cast<std::size_t>(row) - 1);
}

std::string WordsGrid::text(int row, int column) const
{
    const WordsGridColumn& shape = columns.at(static_cast<std::size_t>(column));
    if (row == 0)
        return shape.heading;
    const WordsRow& shown = this->row(row);
    switch (column) {
    case numberColumn:
        return std::to_string(shown.number);
    case scoreColumn:
        return std::to_string(shown.score);
    case lengthColumn:
        return std::to_string(shown.word.size());
    default:
        return shown.word;
    }
}

void WordsGrid::setCurrent(int row)
{
    if (row < 0 || row >= Rows())
        throw std::out_of_range("a words grid has no such row");
    row_ = row;
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
    const int current = row_ > 0 ? row(row_).number : 0;
    std::ranges::stable_sort(rows_, [&](const WordsRow& a, const WordsRow& b) {
        return descending ? isBefore(b, a, column) : isBefore(a, b, column);
    });
    if (current > 0) // no two rows have the same number
        row_ = static_cast<int>(std::ranges::find(rows_, current, &WordsRow::number) - rows_.begin()) + 1;
    Tag = descending ? "D" : "A";
    sortedColumn_ = column;
    ++revision_;
}

} // namespace lexigrove
