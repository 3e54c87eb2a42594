#include "controls/words_grid.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace lexigrove
{
namespace
{

using testing::ElementsAre;

std::vector<std::string> columnOf(const WordsGrid& grid, int column)
{
    std::vector<std::string> texts;
    for (int row = 1; row < grid.Rows(); ++row)
        texts.push_back(grid.text(row, column));
    return texts;
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
