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
    grid.add({.score = 9, .word = "cat"});
    grid.add({.score = 11, .word = "QI"});
    grid.add({.score = 9, .word = "\xC4stelungen"});
    grid.add({.score = 100, .word = "Barn"});
    return grid;
}

// Guards the one sort mark of all columns, and against numbers sorted as text ("100" before "9") and equal rows that
// change places.
TEST(WordsGrid, oneMarkServesAllColumns)
{
    WordsGrid grid = filledGrid();
    constexpr int score = 400;
    constexpr int length = 1099;
    constexpr int word = 1100;
    grid.headingClicked(score);
    EXPECT_EQ(grid.Tag, "A");
    EXPECT_THAT(columnOf(grid, 3), ElementsAre("cat", "\xC4stelungen", "QI", "Barn"));
    grid.headingClicked(score);
    EXPECT_EQ(grid.Tag, "D");
    EXPECT_THAT(columnOf(grid, 3), ElementsAre("Barn", "QI", "cat", "\xC4stelungen"));
    grid.headingClicked(length); // another column, in the direction opposite to the last sort
    EXPECT_THAT(columnOf(grid, 2), ElementsAre("2", "3", "4", "10"));
    grid.headingClicked(word);
    EXPECT_EQ(grid.Tag, "D");
    EXPECT_THAT(columnOf(grid, 3), ElementsAre("\xC4stelungen", "QI", "cat", "Barn"));
    grid.headingClicked(2850); // beside the last column
    grid.headingClicked(-1);
    EXPECT_EQ(grid.Tag, "D");
    EXPECT_THAT(columnOf(grid, 3), ElementsAre("\xC4stelungen", "QI", "cat", "Barn"));
    EXPECT_EQ(grid.text(0, 3), "Word...") << "the heading took part";
    grid.headingClicked(0);
    EXPECT_THAT(columnOf(grid, 0), ElementsAre("1", "2", "3", "4"));
}

// Guards the mark of the current word, which must go where its row goes, and the numbers, which must not.
TEST(WordsGrid, theCurrentRowStaysWithItsWord)
{
    WordsGrid grid = filledGrid();
    grid.insertOnTop({.score = 1, .word = "AT"});
    EXPECT_EQ(grid.Row(), 0) << "the heading stays current";
    grid.setCurrent(3);
    grid.headingClicked(0);
    grid.headingClicked(0);
    EXPECT_THAT(columnOf(grid, 0), ElementsAre("5", "4", "3", "2", "1"));
    EXPECT_EQ(grid.sortedColumn(), 0);
    grid.insertOnTop({.score = 2, .word = "IT"});
    EXPECT_EQ(grid.sortedColumn(), -1);
    EXPECT_EQ(grid.row(grid.Row()).word, "QI");
    EXPECT_EQ(grid.text(1, 0), "6");

    EXPECT_THROW(grid.setCurrent(7), std::out_of_range);
    EXPECT_THROW(static_cast<void>(grid.row(0)), std::out_of_range);
    EXPECT_THROW(static_cast<void>(grid.text(0, 4)), std::out_of_range);
    grid.clear();
    EXPECT_EQ(grid.Rows(), 1);
    EXPECT_EQ(grid.Row(), 0);
}

} // namespace
} // namespace lexigrove
