#include "scores/statistics_form.hpp"

#include <algorithm>

namespace lexigrove
{

namespace
{

// The chart's colours, with their numbers in the sixteen-colour palette.
constexpr Colour black = rgb(0, 0, 0);       // 0
constexpr Colour lightRed = rgb(255, 0, 0);  // 12
constexpr Colour yellow = rgb(255, 255, 0);  // 14
constexpr Colour white = rgb(255, 255, 255); // 15
constexpr Colour chartGrey = rgb(120, 120, 120);
constexpr Colour letterGrey = rgb(220, 220, 220);

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
        chart.items.emplace_back(ChartText{550 + x, 2200, letter, letterGrey, chartFont, chartFontSize});
        chart.items.emplace_back(ChartLine{usedLeft + x, 2200, usedLeft + x, baseLine, letterGrey, 1});
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
    Chart chart{chartGrey, 3900, 2500, {}};
    addBars(chart, used_, usedLeft, letterWidth, lightRed);
    addBars(chart, provided_, providedLeft, letterWidth, black);
    chart.items.emplace_back(ChartFrame{500, 100, 3700, baseLine, white, 2});
    addLetters(chart, letterWidth);
    chart.items.emplace_back(ChartText{100, 40, "50%", yellow, chartFont, chartFontSize});
    chart.items.emplace_back(ChartText{300, 2000, "0", yellow, chartFont, chartFontSize});
    chart.items.emplace_back(ChartText{2500, 200, "Letters Provided", black, "arial", 8});
    chart.items.emplace_back(ChartText{2500, 350, "Letters Used", lightRed, "arial", 8});
    return chart;
}

} // namespace lexigrove
