#include "ui/game_windows.hpp"

#include "ui/dialogs/dialogs.hpp"
#include "ui/machine/host.hpp"
#include "ui/pages/browser.hpp"
#include "ui/pages/help_window.hpp"
#include "ui/pages/meaning_dialog.hpp"

namespace lexigrove
{

GameWindows::GameWindows(Host& host) : host_(host), browser_(std::make_unique<BrowserLoader>()) {}

GameWindows::~GameWindows() = default;

void GameWindows::show(ContinueForm& form)
{
    runContinueDialog(host_, form);
}

void GameWindows::show(OptionsForm& form)
{
    runOptionsDialog(host_, form);
}

void GameWindows::show(ScoreForm& form)
{
    runScoreDialog(host_, form);
}

void GameWindows::show(HintsForm& form)
{
    runHintsDialog(host_, form);
}

void GameWindows::show(const MeaningForm& form)
{
    runMeaningDialog(host_, *browser_, form);
}

void GameWindows::show(const StatisticsForm& form)
{
    runStatisticsDialog(host_, form);
}

void GameWindows::show(PastGamesForm& form)
{
    runPastGamesDialog(host_, form);
}

void GameWindows::show(ReviewForm& form)
{
    runReviewDialog(host_, form);
}

void GameWindows::show(DictionaryMaintenance& form)
{
    runMaintenanceDialog(host_, form);
}

void GameWindows::showHelp(const std::string& address)
{
    if (!help_)
        help_ = std::make_unique<HelpWindow>(host_.theme, *browser_, address);
    help_->bringToFront();
}

void GameWindows::showAbout()
{
    runAboutDialog(host_);
}

} // namespace lexigrove
