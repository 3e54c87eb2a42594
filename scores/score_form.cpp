#include "scores/score_form.hpp"

#include <algorithm>

namespace lexigrove
{

void ScoreForm::request(std::optional<int> score)
{
    score_ = score;
    answer_ = Answer::Close;
    ownLine_.reset();
    visible_ = true;
}

void ScoreForm::activate()
{
    const std::vector<std::string> list = scores_.load();
    fillList(list);
    if (!score_)
        return;
    const int score = std::min(*score_, ScoreFile::highestScore);
    if (scoreOf(list.front()) < score) {
        std::string name;
        while (name.empty())
            name = dialogs_.input("LexiGrove Top 10 List", "You have made TOP 10 list, Enter your name", "");
        fillList(scores_.record(score, name));
        const auto own = std::find(List2.begin(), List2.end(), scoreLine(score, name));
        if (own != List2.end())
            ownLine_ = static_cast<std::size_t>(own - List2.begin());
    }
}

void ScoreForm::pressAnotherGame()
{
    if (isEndOfGame())
        hide(Answer::NewGame);
}

void ScoreForm::pressExitProg()
{
    if (isEndOfGame())
        hide(Answer::ExitProgram);
}

void ScoreForm::pressCloseForm()
{
    hide(Answer::Close);
}

void ScoreForm::fillList(const std::vector<std::string>& ascending)
{
    List2.assign(ascending.rbegin(), ascending.rend());
}

void ScoreForm::hide(Answer answer)
{
    answer_ = answer;
    visible_ = false;
}

std::string ScoreForm::answerCode() const
{
    switch (answer_) {
    case Answer::NewGame:
        return "NOGAME";
    case Answer::ExitProgram:
        return "NOMORE";
    case Answer::Close:
        break;
    }
    return {};
}

ScoreForm::Answer showTopTen(ScoreForm& form, Windows& windows, std::optional<int> score)
{
    form.request(score);
    windows.show(form);
    return form.answer();
}

} // namespace lexigrove
