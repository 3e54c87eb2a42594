#include "scores/statistics_form.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <tuple>

namespace lexigrove
{
namespace
{

using Bar = std::tuple<int, int, Colour>;

/// The place, height and colour of each vertical line of the chart, except the letters' marks.
std::vector<Bar> barsOf(const Chart& chart)
{
    std::vector<Bar> bars;
    for (const auto& item : chart.items) {
        const auto* line = std::get_if<ChartLine>(&item);
        if (line != nullptr && line->width == 2 && line->x1 == line->x2 && line->y1 != line->y2)
            bars.emplace_back(line->x1, std::abs(line->y1 - line->y2), line->colour);
    }
    return bars;
}

// Guards against division by an empty total, percentages that are rounded up, misplaced bars, and a solo game that
// wipes the computer's column.
TEST(StatisticsForm, ShowsBothColumnsAndTheChart)
{
    Statistics statistics;
    StatisticsForm form(statistics);
    std::array<int, 27> provided{};
    provided[1] = 9;
    provided[26] = 60; // runs past the frame
    form.activate(false, provided);
    const Bar a{630, 40 * 9, rgb(0, 0, 0)};
    const Bar z{25 * 120 + 630, 40 * 60, rgb(0, 0, 0)};
    EXPECT_THAT(barsOf(form.chart(120)), testing::ElementsAre(a, z));
    EXPECT_TRUE(std::ranges::any_of(form.chart(120).items, [](const auto& item) {
        const auto* label = std::get_if<ChartText>(&item);
        return label != nullptr && label->text == "Z" && label->x == 550 + 25 * 120;
    })) << "each letter stands above its bars";

    statistics.recordWord("ABA", Statistics::computerBase);
    form.activate(true, provided);
    EXPECT_TRUE(form.isComputerGame());
    EXPECT_THAT(barsOf(form.chart(120)),
                testing::ElementsAre(Bar{600, 40 * 66, rgb(255, 0, 0)}, Bar{720, 40 * 33, rgb(255, 0, 0)}, a, z));
    statistics.reset();
    form.activate(false, provided);
    EXPECT_FALSE(form.isComputerGame());
    EXPECT_EQ(form.sval[1], "");
    EXPECT_EQ(form.sval[16], "ABA ");
}

} // namespace
} // namespace lexigrove
