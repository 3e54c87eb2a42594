#pragma once

#include "platform/dialogs.hpp"
#include "platform/windows.hpp"
#include "scores/score_file.hpp"

#include <optional>
#include <string>
#include <vector>

namespace lexigrove
{

/// The top-ten window `ScoreForm`. It keeps nothing between showings.
class ScoreForm
{
public:
    enum class Answer { Close, NewGame, ExitProgram };

    ScoreForm(ScoreFile& scores, Dialogs& dialogs) : scores_(scores), dialogs_(dialogs) {}

    /// Prepares the next showing, with the player's final score or with none to only show the list. Clears the answer.
    void request(std::optional<int> score);

    /// Called by the front end once the window is up: fills `List2` and, if the score beats the lowest of the list,
    /// asks for a name until there is one and records the score.
    void activate();

    /// The buttons: each sets the answer and hides the window. A disabled button does nothing.
    void pressAnotherGame();
    void pressExitProg();
    void pressCloseForm();

    [[nodiscard]] bool isVisible() const { return visible_; }
    [[nodiscard]] Answer answer() const { return answer_; }

    /// The request code: the score in decimal, or "-1" without one.
    [[nodiscard]] std::string requestCode() const { return std::to_string(score_.value_or(-1)); }

    /// The answer code: "NOGAME" after `AnotherGame`, "NOMORE" after `ExitProg`, empty after `CloseForm`.
    [[nodiscard]] std::string answerCode() const;

    /// Whether a final score is shown, so that `AnotherGame` and `ExitProg` can be pressed.
    [[nodiscard]] bool isEndOfGame() const { return score_.has_value(); }

    std::vector<std::string> List2; ///< the ten score lines, highest first: five digits, tab, name

    /// The place in `List2` of the score just recorded.
    [[nodiscard]] std::optional<std::size_t> ownLine() const { return ownLine_; }

private:
    void fillList(const std::vector<std::string>& ascending);
    void hide(Answer answer);

    ScoreFile& scores_;
    Dialogs& dialogs_;
    std::optional<int> score_;
    Answer answer_ = Answer::Close;
    std::optional<std::size_t> ownLine_;
    bool visible_ = false;
};

/// Shows the top ten, to record a final score if there is one, and returns the answer.
ScoreForm::Answer showTopTen(ScoreForm& form, Windows& windows, std::optional<int> score);

} // namespace lexigrove
