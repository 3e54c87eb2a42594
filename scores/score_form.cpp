#include "scores/score_form.hpp"

#include <algorithm>

namespace lexigrove
{

ScoreForm::ScoreForm(ScoreFile& scores, Dialogs& dialogs)
    : AnotherGame{"New Game"}, ExitProg{"Exit Program"}, CloseForm{"Close"}, scores_(scores), dialogs_(dialogs)
{
}

void ScoreForm::request(const std::string& code)
{
    requestCode_ = code;
    answer_.clear();
    visible_ = true;
}

void ScoreForm::activate()
{
    const bool isFinalScore = requestCode_ != showOnly;
    AnotherGame.Enabled = isFinalScore;
    ExitProg.Enabled = isFinalScore;

    const std::vector<std::string> list = scores_.load();
    fillList(list);
    const int score = std::min(numberOf(requestCode_), ScoreFile::highestScore);
    if (isFinalScore && scoreOf(list.front()) < score) {
        std::string name;
        while (name.empty())
            name = dialogs_.input("LexiGrove Top 10 List", "You have made TOP 10 list, Enter your name", "");
        fillList(scores_.record(score, name));
    }
}

void ScoreForm::pressAnotherGame()
{
    if (AnotherGame.Enabled)
        hide("NOGAME");
}

void ScoreForm::pressExitProg()
{
    if (ExitProg.Enabled)
        hide("NOMORE");
}

void ScoreForm::pressCloseForm()
{
    hide("");
}

void ScoreForm::fillList(const std::vector<std::string>& ascending)
{
    List2.assign(ascending.rbegin(), ascending.rend());
}

void ScoreForm::hide(const char* answer)
{
    answer_ = answer;
    visible_ = false;
}

std::string showTopTen(ScoreForm& form, ScoreWindow& window, const std::string& code)
{
    form.request(code);
    window.show(form);
    return form.answer();
}

} // namespace lexigrove
