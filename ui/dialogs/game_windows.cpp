#include "ui/dialogs/game_windows.hpp"

#include "ui/dialogs/about_dialog.hpp"
#include "ui/dialogs/hints_dialog.hpp"
#include "ui/dialogs/maintenance_dialog.hpp"
#include "ui/dialogs/options_dialog.hpp"
#include "ui/dialogs/score_dialog.hpp"
#include "ui/dialogs/statistics_dialog.hpp"
#include "ui/pages/help_window.hpp"
#include "ui/pages/meaning_dialog.hpp"

namespace lexigrove
{

struct GameWindows::Members {
    explicit Members(Host& host)
        : options(host),
          scores(host),
          hints(host),
          meaning(host, browser),
          statistics(host),
          maintenance(host),
          help(host.theme, browser),
          about(host)
    {
    }

    BrowserLoader browser;
    OptionsDialog options;
    ScoreDialog scores;
    HintsDialog hints;
    MeaningDialog meaning;
    StatisticsDialog statistics;
    MaintenanceDialog maintenance;
    QtHelpWindow help;
    AboutDialog about;
};

GameWindows::GameWindows(Host& host) : members_(std::make_unique<Members>(host)) {}

GameWindows::~GameWindows() = default;

Windows GameWindows::windows()
{
    Members& m = *members_;
    return {m.options, m.scores, m.hints, m.meaning, m.statistics, m.maintenance, m.help, m.about};
}

} // namespace lexigrove
