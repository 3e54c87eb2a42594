#include "console/console_windows.hpp"

#include "console/arguments.hpp"
#include "console/option_settings.hpp"
#include "opponent/hints_form.hpp"
#include "record/continue_form.hpp"
#include "scores/score_form.hpp"
#include "word_services/meanings.hpp"

namespace lexigrove
{

namespace
{

/// Carries out a reply to the options dialog. Returns false for an invalid reply.
bool answerOptions(OptionsForm& form, const std::string& reply)
{
    if (reply == "start") {
        form.pressStart();
    } else if (reply == "exit") {
        form.pressExit();
    } else {
        try {
            applyOption(form, readOption(reply));
        } catch (const CommandError&) {
            return false;
        }
    }
    return true;
}

void answerScores(ScoreForm& form, const std::string& reply)
{
    if (reply == "NewGame")
        form.pressAnotherGame();
    else if (reply == "ExitProgram")
        form.pressExitProg();
    else if (reply == "Close")
        form.pressCloseForm();
}

void answerHints(HintsForm& form, const std::string& reply)
{
    Arguments words(reply);
    try {
        if (words.choice("reply", {"select", "close"}) == 1) {
            words.expectEnd();
            form.pressClose();
        } else {
            const int row = words.number("row", 1, form.WordsMade.Rows() - 1);
            words.expectEnd();
            form.pickRow(row);
            form.pressSelect();
        }
    } catch (const CommandError&) {
        return;
    }
}

} // namespace

/// A Yes/No question like any other.
void ConsoleWindows::show(ContinueForm& form)
{
    for (;;) {
        channel_.writeEvent("confirm", ContinueForm::question);
        const std::string reply = channel_.readChoice();
        if (reply == "yes" || reply == "no") {
            form.accepted = reply == "yes";
            return;
        }
    }
}

void ConsoleWindows::show(OptionsForm& form)
{
    channel_.writeEvent("options");
    while (form.isVisible()) {
        if (!answerOptions(form, channel_.readChoice()))
            channel_.writeEvent("options");
    }
}

void ConsoleWindows::show(ScoreForm& form)
{
    form.activate();
    while (form.isVisible()) {
        channel_.writeEvent("top10", form.requestCode());
        answerScores(form, channel_.readChoice());
    }
}

void ConsoleWindows::show(HintsForm& form)
{
    const WordsGrid& grid = form.WordsMade;
    while (form.isVisible()) {
        channel_.writeEvent("hints", std::to_string(grid.Rows() - 1));
        for (int row = 1; row < grid.Rows(); ++row) {
            channel_.writeEvent("hint", std::to_string(row) + ' ' + grid.text(row, WordsGrid::scoreColumn) + ' ' +
                                            grid.text(row, WordsGrid::lengthColumn) + ' ' +
                                            grid.text(row, WordsGrid::wordColumn));
        }
        answerHints(form, channel_.readChoice());
    }
}

void ConsoleWindows::show(const MeaningForm& form)
{
    channel_.writeEvent("meaning", form.address);
}

} // namespace lexigrove
