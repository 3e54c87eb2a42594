#include "controls/item_list.hpp"
#include "controls/words_grid.hpp"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>

namespace lexigrove
{
namespace
{

using testing::ElementsAre;

std::vector<std::string> itemsOf(const ItemList& list)
{
    std::vector<std::string> items;
    items.reserve(static_cast<std::size_t>(list.ListCount()));
    for (int i = 0; i < list.ListCount(); ++i)
        items.emplace_back(list.list(i));
    return items;
}

std::vector<std::string> columnOf(const WordsGrid& grid, int column)
{
    std::vector<std::string> texts;
    for (int row = 1; row < grid.Rows(); ++row)
        texts.push_back(grid.text(row, column));
    return texts;
}

// Guards binary order (a signed comparison puts accented letters first) and the merge of an unsorted tail.
TEST(ItemList, sortsInBinaryOrder)
{
    const unsigned seed = std::random_device{}();
    std::mt19937 random(seed);
    for (int round = 0; round < 200; ++round) {
        ItemList list;
        std::vector<std::string> expected;
        const auto add = [&](const std::string& text) {
            list.Additem(text);
            expected.push_back(text);
        };
        for (auto i = random() % 20; i > 0; --i) {
            std::string text(random() % 4, ' ');
            for (char& c : text)
                c = "AB z\xC4\xFF"[random() % 6];
            add(text);
        }
        list.SortAscending();
        add("AB"); // a word added to a sorted list
        list.SortAscending();
        std::sort(expected.begin(), expected.end(), [](const std::string& a, const std::string& b) {
            return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
                return static_cast<unsigned char>(x) < static_cast<unsigned char>(y);
            });
        });
        ASSERT_EQ(itemsOf(list), expected) << "seed " << seed << ", round " << round;
    }
}

// Guards column keys: a missing column, numbers taken as text, and places beyond the list.
TEST(ItemList, sortsByColumn)
{
    ItemList list;
    for (const char* item : {"b\t10\tx", "A\t9\ty", "c", "a\t9\tz"})
        list.Additem(item);
    list.sortByColumn(1, SortBy::Number, SortDirection::Ascending);
    EXPECT_THAT(itemsOf(list), ElementsAre("c", "A\t9\ty", "a\t9\tz", "b\t10\tx"));
    list.sortByColumn(1, SortBy::Text, SortDirection::Descending);
    EXPECT_THAT(itemsOf(list), ElementsAre("A\t9\ty", "a\t9\tz", "b\t10\tx", "c"));
    list.sortByColumn(0, SortBy::Text, SortDirection::Descending);
    EXPECT_THAT(itemsOf(list), ElementsAre("c", "b\t10\tx", "A\t9\ty", "a\t9\tz"));
    EXPECT_THROW(static_cast<void>(list.list(4)), std::out_of_range);
    EXPECT_THROW(static_cast<void>(list.list(-1)), std::out_of_range);
    list.Clear();
    EXPECT_EQ(list.ListCount(), 0);
    list.SortAscending();
    list.sortByColumn(2, SortBy::Number, SortDirection::Descending);
    EXPECT_EQ(list.ListCount(), 0);
}

WordsGrid filledGrid()
{
    WordsGrid grid;
    grid.addRow("1\t9\t3\tcat", "051213");
    grid.addRow("2\t11\t2\tQI", "0102");
    grid.addRow("3\t9\t10\t\xC4ste", "0304");
    grid.addRow("4\t100\t4\tBarn", "0506");
    return grid;
}

// Guards the one sort mark of all columns, numbers taken as text ("100" before "9"), and equal rows that change places.
TEST(WordsGrid, oneMarkServesAllColumns)
{
    WordsGrid grid = filledGrid();
    constexpr int score = 400;
    constexpr int length = 1099;
    constexpr int word = 1100;
    grid.headingClicked(score);
    EXPECT_EQ(grid.Tag, "A");
    EXPECT_THAT(columnOf(grid, 3), ElementsAre("cat", "\xC4ste", "QI", "Barn"));
    grid.headingClicked(score);
    EXPECT_EQ(grid.Tag, "D");
    EXPECT_THAT(columnOf(grid, 3), ElementsAre("Barn", "QI", "cat", "\xC4ste"));
    grid.headingClicked(length); // another column, in the direction opposite to the last sort
    EXPECT_THAT(columnOf(grid, 2), ElementsAre("2", "3", "4", "10"));
    grid.headingClicked(word);
    EXPECT_EQ(grid.Tag, "D");
    EXPECT_THAT(columnOf(grid, 3), ElementsAre("\xC4ste", "QI", "cat", "Barn"));
    grid.headingClicked(2850); // beside the last column
    grid.headingClicked(-1);
    EXPECT_EQ(grid.Tag, "D");
    EXPECT_THAT(columnOf(grid, 3), ElementsAre("\xC4ste", "QI", "cat", "Barn"));
    EXPECT_EQ(grid.text(0, 3), "Word...") << "the heading took part";
    grid.headingClicked(0);
    EXPECT_THAT(columnOf(grid, 0), ElementsAre("1", "2", "3", "4"));
}

// Guards what belongs to a row: path, colours and being the current one must go where the row goes.
TEST(WordsGrid, aRowKeepsItsPathColoursAndMark)
{
    WordsGrid grid = filledGrid();
    grid.setCurrent(2, 0);
    grid.setCellColours(2, WordsGrid::wordColumn, rgb(1, 1, 1), rgb(2, 2, 2));
    grid.headingClicked(0);
    grid.headingClicked(0);
    grid.insertRow(1, "5\t1\t2\tAT");
    EXPECT_EQ(grid.text(grid.Row(), 3), "QI");
    EXPECT_EQ(grid.payload(grid.Row()), "0102");
    EXPECT_EQ(grid.cell(grid.Row(), 3).backColor, rgb(1, 1, 1));
    EXPECT_EQ(grid.cell(grid.Row(), 2).backColor, system_colour::windowBackground);
    EXPECT_EQ(grid.text(1, 3), "AT");
    EXPECT_EQ(grid.Rows(), 6);
}

// Guards short and long rows, places outside of the grid, and a heading lost when a game starts again.
TEST(WordsGrid, takesRowsOfAnyShapeAndEmptiesToItsHeading)
{
    WordsGrid grid;
    EXPECT_EQ(grid.Rows(), 1);
    grid.addRow("7");
    grid.addRow("1\t\t3\tword\textra");
    grid.addRow("");
    EXPECT_THAT(columnOf(grid, 0), ElementsAre("7", "1", ""));
    EXPECT_THAT(columnOf(grid, 1), ElementsAre("", "", ""));
    EXPECT_THAT(columnOf(grid, 3), ElementsAre("", "word", ""));
    EXPECT_THROW(grid.insertRow(0, "x"), std::out_of_range);
    EXPECT_THROW(grid.insertRow(5, "x"), std::out_of_range);
    EXPECT_THROW(grid.setCurrent(4, 0), std::out_of_range);
    EXPECT_THROW(grid.setCurrent(1, 4), std::out_of_range);

    grid.setCurrent(3, 2);
    grid.setHeadingForeColor(rgb(0, 0, 200));
    grid.clear();
    EXPECT_EQ(grid.Rows(), 1);
    EXPECT_EQ(grid.Row(), 0);
    EXPECT_EQ(grid.cell(0, 1).foreColor, rgb(0, 0, 200));
    EXPECT_EQ(grid.text(0, 2), "L");
}

} // namespace
} // namespace lexigrove
