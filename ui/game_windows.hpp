#pragma once

#include "platform/windows.hpp"

#include <memory>

namespace lexigrove
{

class BrowserLoader;
class HelpWindow;
class Host;
class MeaningServices;

/// The windows that the rules open, over the main window. Each file of a modal window ends with its `show`, which
/// returns when the form has been hidden or the window closed. `host` outlives them.
class GameWindows : public Windows
{
public:
    /// Pages may reach the `services` wherever they are.
    GameWindows(Host& host, const MeaningServices& services);
    ~GameWindows() override;
    GameWindows(const GameWindows&) = delete;
    GameWindows& operator=(const GameWindows&) = delete;

    /// The question of a start with the board, the score and the date of the game that was kept. Esc is No.
    void show(ContinueForm& form) override;
    void show(OptionsForm& form) override;

    /// The top-ten window `ScoreForm`. Closing it, by its frame or with Esc, is "Close".
    void show(ScoreForm& form) override;

    /// The hints window `Form2`. It opens to the right of the board, which stays visible, because the row picked is
    /// shown there at once. Enter and a double click on a row select it; Esc is "Close".
    void show(HintsForm& form) override;

    /// The meaning window `Form3`: the browser view `WbDictionary` fills it. Esc closes it together with its page.
    void show(const MeaningForm& form) override;

    /// The statistics window `Form4`, with its chart in `Picture1`.
    void show(const StatisticsForm& form) override;

    /// The list of past games. A game that is opened in it is shown over it.
    void show(PastGamesForm& form) override;
    void show(ReviewForm& form) override;

    void show(DictionaryMaintenance& form) override;

    void showHelp(const std::string& address) override;

    /// The about box `AboutForm`.
    void showAbout() override;

private:
    Host& host_;
    std::unique_ptr<BrowserLoader> browser_;
    std::unique_ptr<HelpWindow> help_; ///< created when first needed
};

} // namespace lexigrove
