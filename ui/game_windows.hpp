#pragma once

#include "platform/windows.hpp"

#include <memory>

namespace lexigrove
{

class BrowserLoader;
class HelpWindow;
class Host;

/// The windows that the rules open, over the main window. `host` outlives them.
class GameWindows : public Windows
{
public:
    explicit GameWindows(Host& host);
    ~GameWindows() override;
    GameWindows(const GameWindows&) = delete;
    GameWindows& operator=(const GameWindows&) = delete;

    void show(ContinueForm& form) override;
    void show(OptionsForm& form) override;
    void show(ScoreForm& form) override;
    void show(HintsForm& form) override;
    void show(const MeaningForm& form) override;
    void show(const StatisticsForm& form) override;
    void show(PastGamesForm& form) override;
    void show(ReviewForm& form) override;
    void show(DictionaryMaintenance& form) override;
    void showHelp(const std::string& address) override;
    void showAbout() override;

private:
    Host& host_;
    std::unique_ptr<BrowserLoader> browser_;
    std::unique_ptr<HelpWindow> help_; ///< created when first needed
};

} // namespace lexigrove
