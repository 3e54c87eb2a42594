#include "opponent/hints_form.hpp"

namespace lexigrove
{

HintsForm::HintsForm(Game& game, Meanings& meanings) : game_(game), meanings_(meanings)
{
    BoxControl1.Caption("Close");
    BoxControl1.ToolTipText("Close hints window");
    BoxControl2.Caption("Select");
    BoxControl2.ToolTipText("Make the word selected");
    Meaning.Caption("Meaning");
    Meaning.ToolTipText("Get meaning of the word selected");
}

void HintsForm::activate(const CandidateList& candidates)
{
    visible_ = true;
    result_.clear();
    WordsMade.clear();
    for (int position = 1; position <= candidates.count(); ++position) {
        if (candidates.item(position).empty()) {
            game_.ports.dialogs.message("form2");
            continue;
        }
        const auto path = candidates.path(position);
        WordsMade.add({.score = candidates.score(position),
                       .word = candidates.word(position),
                       .path = {path.begin(), path.end()}});
        WordsMade.setCurrent(WordsMade.Rows() - 1);
    }
    pickedPath_.clear();
    shownPath_.clear();
    Caption = std::to_string(WordsMade.Rows() - 1) + " hints";
}

void HintsForm::pickRow(int row)
{
    restoreLooks();
    WordsMade.setCurrent(row);
    pickedPath_ = WordsMade.row(row).path;
    shownPath_.assign(pickedPath_.begin(), pickedPath_.end());
    for (const int tile : shownPath_)
        game_.look.showSelected(game_.board.tile(tile));
}

void HintsForm::pressSelect()
{
    result_.clear();
    if (!pickedPath_.empty()) {
        restoreLooks();
        game_.selection.clearPath();
        for (const int tile : pickedPath_)
            game_.selection.append(tile);
        result_ = game_.selection.word();
    }
    visible_ = false;
}

void HintsForm::pressClose()
{
    restoreLooks();
    visible_ = false;
}

void HintsForm::pressMeaning()
{
    const std::string word = currentWord(WordsMade);
    if (word.empty())
        return;
    restoreLooks();
    meanings_.showMeaning(word);
}

void HintsForm::restoreLooks()
{
    for (const int tile : shownPath_)
        game_.look.showNormal(game_.board.tile(tile));
    shownPath_.clear();
}

} // namespace lexigrove
