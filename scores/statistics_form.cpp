#include "scores/statistics_form.hpp"

#include <algorithm>

namespace lexigrove
{

namespace
{

constexpr int baseLine = 2100;
constexpr int unitsPerPercent = 40; // the frame is 2000 units high: 50 per cent
constexpr int usedLeft = 600;
constexpr int providedLeft = 630;

void addBars(Chart& chart, const std::array<int, 27>& percentages, int left, int letterWidth, Colour colour)
{
    for (int i = 1; i <= 26; ++i) {
        const int x = (i - 1) * letterWidth + left;
        const int top = baseLine - unitsPerPercent * percentages[static_cast<std::size_t>(i)];
        chart.items.emplace_back(ChartLine{x, baseLine, x, top, colour, 2});
    }
}

void addLetters(Chart& chart, int letterWidth)
{
    for (int i = 0; i < 26; ++i) {
        const std::string letter(1, static_cast<char>('A' + i));
        const int x = i * letterWidth;
        chart.items.emplace_back(ChartText{550 + x, 2200, letter, chart_colour::letters, chartFont, chartFontSize});
        chart.items.emplace_back(ChartLine{usedLeft + x, 2200, usedLeft + x, baseLine, chart_colour::letters, 1});
    }
}

} // namespace

void StatisticsForm::activate(bool computerGame, const std::array<int, 27>& lettersProvided)
{
    const int last = computerGame ? 16 : 8;
    for (int i = 1; i <= last; ++i)
        sval[static_cast<std::size_t>(i)] = statistics_.entry(i);
    computerGame_ = computerGame;

    provided_ = lettersProvided;
    const int total = std::max(statistics_.totalLettersUsed(), 1);
    for (std::size_t i = 1; i <= 26; ++i)
        used_[i] = static_cast<int>(100LL * statistics_.lettersUsed()[i] / total);
}

Chart StatisticsForm::chart(int letterWidth) const
{
    Chart chart{chart_colour::background, 3900, 2500, {}};
    addBars(chart, used_, usedLeft, letterWidth, chart_colour::used);
    addBars(chart, provided_, providedLeft, letterWidth, chart_colour::provided);
    chart.items.emplace_back(ChartFrame{500, 100, 3700, baseLine, chart_colour::frame, 2});
    addLetters(chart, letterWidth);
    chart.items.emplace_back(ChartText{100, 40, "50%", chart_colour::numbers, chartFont, chartFontSize});
    chart.items.emplace_back(ChartText{300, 2000, "0", chart_colour::numbers, chartFont, chartFontSize});
    chart.items.emplace_back(ChartText{2500, 200, "Letters Provided", chart_colour::provided, "arial", 8});
    chart.items.emplace_back(ChartText{2500, 350, "Letters Used", chart_colour::used, "arial", 8});
    return chart;
}

} // namespace lexigrove
