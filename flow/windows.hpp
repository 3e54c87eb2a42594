#pragma once

#include "dictionary/maintenance.hpp"
#include "opponent/hints_form.hpp"
#include "opponent/meanings.hpp"
#include "scores/score_form.hpp"
#include "scores/statistics_form.hpp"
#include "settings/about.hpp"
#include "settings/help_form.hpp"
#include "settings/options_form.hpp"

namespace lexigrove
{

class StatisticsWindow
{
public:
    virtual ~StatisticsWindow() = default;

    /// Shows the filled form modally and returns when `Exitx` has closed the window.
    virtual void show(const StatisticsForm& form) = 0;
};

class MaintenanceWindow
{
public:
    virtual ~MaintenanceWindow() = default;

    /// Shows the form modally, activates it, and returns when its "Exit" has closed the window.
    virtual void show(DictionaryMaintenance& form) = 0;
};

class HelpWindow
{
public:
    virtual ~HelpWindow() = default;

    /// Shows the help window, or brings it to the front, and returns at once.
    virtual void show(const HelpForm& form) = 0;
};

class AboutWindow
{
public:
    virtual ~AboutWindow() = default;

    /// Shows the about box modally and returns when it is closed.
    virtual void show(const AboutForm& form) = 0;
};

/// The windows that the rules open, as one front end shows them. Each throws `Leaving` when the player closed the main
/// window meanwhile.
struct Windows {
    OptionsWindow& options;
    ScoreWindow& scores;
    HintsWindow& hints;
    MeaningWindow& meaning;
    StatisticsWindow& statistics;
    MaintenanceWindow& maintenance;
    HelpWindow& help;
    AboutWindow& about;
};

} // namespace lexigrove
