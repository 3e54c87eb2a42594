#pragma once

#include "console/line_channel.hpp"
#include "platform/windows.hpp"

namespace lexigrove
{

/// The windows that the rules open, as events; the next input lines press their buttons. A reply that presses none
/// repeats the event.
class ConsoleWindows : public Windows
{
public:
    explicit ConsoleWindows(LineChannel& channel) : channel_(channel) {}

    void show(ContinueForm& form) override;
    void show(OptionsForm& form) override;
    void show(ScoreForm& form) override;
    void show(HintsForm& form) override;
    void show(const MeaningForm& form) override;

    // These cause no events: commands show their content, and they are closed at once.

    void show(const StatisticsForm& /*form*/) override {}
    void show(PastGamesForm& /*form*/) override {}
    void show(ReviewForm& /*form*/) override {}
    void show(DictionaryMaintenance& /*form*/) override {}
    void showHelp(const std::string& /*address*/) override {}
    void showAbout() override {}

private:
    LineChannel& channel_;
};

} // namespace lexigrove
