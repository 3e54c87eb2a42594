#pragma once

#include <string>

namespace lexigrove
{

class DictionaryMaintenance;
class HintsForm;
class OptionsForm;
class PastGamesForm;
class ReviewForm;
class ScoreForm;
class StatisticsForm;
struct ContinueForm;
struct MeaningForm;

/// The windows that the rules open, as a front end shows them. All except the help window are modal: the call returns
/// when the form has been hidden or the window closed, and throws `Leaving` if the player closed the main window
/// meanwhile.
class Windows
{
public:
    virtual ~Windows() = default;

    /// The question whether the last game goes on; the form holds the answer.
    virtual void show(ContinueForm& form) = 0;

    /// Returns when `Startx` or `Exitx` has hidden the form; the form knows which.
    virtual void show(OptionsForm& form) = 0;

    /// Activates the form, and returns when one of its buttons has hidden it (closing it is `CloseForm`).
    virtual void show(ScoreForm& form) = 0;

    /// Returns when `Select` or `Close` has hidden the form (closing the window is `Close`).
    virtual void show(HintsForm& form) = 0;

    /// The browser view handles network and page errors.
    virtual void show(const MeaningForm& form) = 0;

    virtual void show(const StatisticsForm& form) = 0;

    /// A game that is opened in it is shown over it. Returns when the window has been closed.
    virtual void show(PastGamesForm& form) = 0;
    virtual void show(ReviewForm& form) = 0;

    /// Activates the form, and returns when its "Exit" has closed the window.
    virtual void show(DictionaryMaintenance& form) = 0;

    /// Shows the help page at this address, or brings it to the front, and returns at once.
    virtual void showHelp(const std::string& address) = 0;

    virtual void showAbout() = 0;
};

} // namespace lexigrove
