#include "scores/statistics_form.hpp"

#include <cstdlib>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lexigrove
{

namespace
{

std::vector<std::string> entries(const Statistics& statistics, int base)
{
    std::vector<std::string> texts;
    for (int i = 1; i <= 8; ++i)
        texts.push_back(statistics.entry(base + i));
    return texts;
}

template <typename Item>
std::vector<Item> itemsOf(const Chart& chart)
{
    std::vector<Item> found;
    for (const auto& item : chart.items) {
        if (const auto* match = std::get_if<Item>(&item))
            found.push_back(*match);
    }
    return found;
}

} // namespace

// Guards against words counted in the wrong row or on the wrong side, and a longest word that an equal one does not
// replace.
TEST(Statistics, EverySideCountsItsOwnWords)
{
    Statistics statistics;
    for (const char* word : {"AT", "CAT", "STRAIN", "GRIM", "SPELL", "PARROT", "OX"})
        statistics.recordWord(word, Statistics::playerBase);
    statistics.recordWord("QUIZ", Statistics::computerBase);
    EXPECT_THAT(entries(statistics, 0), testing::ElementsAre("7", "2", "1", "1", "3", "", "6", "PARROT "));
    EXPECT_THAT(entries(statistics, 8), testing::ElementsAre("1", "", "", "1", "", "", "4", "QUIZ "));

    statistics.setHintsUsed(3);
    EXPECT_EQ(statistics.number(6), 3);
    statistics.setHintsUsed(0);
    EXPECT_EQ(statistics.entry(6), "");
    EXPECT_EQ(statistics.number(6), 0);

    statistics.reset();
    EXPECT_THAT(entries(statistics, 0), testing::Each(""));
    EXPECT_EQ(statistics.totalLettersUsed(), 0);
}

// Guards against words of a player's own list (short, lower case, with signs) that reach beyond their rows and
// counters.
TEST(Statistics, OddWordsStayInTheirPlaces)
{
    Statistics statistics;
    for (const char* word : {"", "A", "aZ'", "\xC4Z"})
        statistics.recordWord(word, Statistics::computerBase);
    EXPECT_THAT(entries(statistics, 0), testing::Each(""));
    EXPECT_THAT(entries(statistics, 8), testing::ElementsAre("4", "1", "1", "", "", "", "3", "aZ' "));
    EXPECT_EQ(statistics.lettersUsed()[1], 1);
    EXPECT_EQ(statistics.lettersUsed()[26], 2);
    EXPECT_EQ(statistics.totalLettersUsed(), 3);
    EXPECT_EQ(statistics.lettersUsed()[0], 3);
}

// Guards against a solo game that wipes or enables the computer's column.
TEST(StatisticsForm, SoloGameLeavesTheComputersColumn)
{
    Statistics statistics;
    StatisticsForm form(statistics);
    statistics.recordWord("WORD", Statistics::computerBase);
    form.activate(true, {});
    EXPECT_TRUE(form.Frame2.Enabled);
    EXPECT_EQ(form.sval[16], "WORD ");

    statistics.reset();
    statistics.recordWord("OWN", Statistics::playerBase);
    form.activate(false, {});
    EXPECT_FALSE(form.Frame2.Enabled);
    EXPECT_EQ(form.sval[8], "OWN ");
    EXPECT_EQ(form.sval[16], "WORD ");
}

// Guards against a division by the empty total, percentages that are rounded up, and bars or texts that leave their
// places.
TEST(StatisticsForm, ChartStandsAsGiven)
{
    Statistics statistics;
    StatisticsForm form(statistics);
    std::array<int, 27> provided{};
    provided[1] = 9;
    provided[26] = 60; // runs past the frame
    form.activate(false, provided);
    EXPECT_EQ(form.usedPercentage(1), 0);

    statistics.recordWord("ABA", Statistics::playerBase);
    form.activate(false, provided);
    EXPECT_EQ(form.usedPercentage(1), 66);
    EXPECT_EQ(form.usedPercentage(2), 33);

    const Chart chart = form.chart(120);
    const auto lines = itemsOf<ChartLine>(chart);
    ASSERT_EQ(lines.size(), 3U * 26);
    const auto expectBar = [&](std::size_t i, int x, int percentage, Colour colour) {
        EXPECT_EQ(lines[i].x1, x) << i;
        EXPECT_EQ(lines[i].x2, x) << i;
        EXPECT_EQ(std::abs(lines[i].y1 - lines[i].y2), 40 * percentage) << i;
        EXPECT_EQ(lines[i].colour, colour) << i;
    };
    expectBar(0, 600, 66, rgb(255, 0, 0));
    expectBar(26, 630, 9, rgb(0, 0, 0));
    expectBar(51, 25 * 120 + 630, 60, rgb(0, 0, 0));

    std::string alphabet;
    for (const ChartText& text : itemsOf<ChartText>(chart)) {
        if (text.y == 2200)
            alphabet += text.text;
    }
    EXPECT_EQ(alphabet, "ABCDEFGHIJKLMNOPQRSTUVWXYZ");
}

} // namespace lexigrove
