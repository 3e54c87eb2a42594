#pragma once

#include "controls/label.hpp"
#include "platform/dialogs.hpp"
#include "scores/score_file.hpp"

#include <string>
#include <vector>

namespace lexigrove
{

/// The top-ten window `ScoreForm`. It keeps nothing between showings.
class ScoreForm
{
public:
    /// The request code that only shows the list; any other code is the player's final score in decimal.
    static constexpr const char* showOnly = "-1";

    ScoreForm(ScoreFile& scores, Dialogs& dialogs);

    /// Sets the request code of the next showing and empties the answer.
    void request(const std::string& code);

    /// To be called by the front end when the window has come up: fills `List2`, and records the score when it beats
    /// the lowest of the list, asking for the name until there is one.
    void activate();

    /// The buttons: each sets the answer and hides the window. A disabled button does nothing.
    void pressAnotherGame();
    void pressExitProg();
    void pressCloseForm();

    [[nodiscard]] const std::string& requestCode() const { return requestCode_; }
    [[nodiscard]] bool isVisible() const { return visible_; }

    /// "NOGAME" after `AnotherGame`, "NOMORE" after `ExitProg`, empty after `CloseForm`.
    [[nodiscard]] const std::string& answer() const { return answer_; }

    std::string Caption = "LexiGrov Top 10 Scores";
    std::vector<std::string> List2; ///< the ten score lines, highest first: five digits, tab, name
    std::string listFont = "Courier New";
    Label AnotherGame;
    Label ExitProg;
    Label CloseForm;

private:
    void fillList(const std::vector<std::string>& ascending);
    void hide(const char* answer);

    ScoreFile& scores_;
    Dialogs& dialogs_;
    std::string requestCode_ = showOnly;
    std::string answer_;
    bool visible_ = false;
};

/// Shows the top-ten window.
class ScoreWindow
{
public:
    virtual ~ScoreWindow() = default;

    /// Shows the form, activates it, and returns when one of its buttons has hidden it (closing it is `CloseForm`).
    virtual void show(ScoreForm& form) = 0;
};

/// Shows the top ten for a request code and returns the answer.
std::string showTopTen(ScoreForm& form, ScoreWindow& window, const std::string& code);

} // namespace lexigrove
