#include "opponent/hints_form.hpp"

namespace lexigrove
{

namespace
{

std::vector<int> tilesOf(const std::string& digits)
{
    std::vector<int> tiles;
    for (std::size_t i = 0; i + 1 < digits.size(); i += 2)
        tiles.push_back((digits[i] - '0') * 10 + (digits[i + 1] - '0'));
    return tiles;
}

} // namespace

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
    WordsMade.setHeadingForeColor(game_.scheme.computerFore());
    for (int position = 1; position <= candidates.count(); ++position) {
        if (candidates.item(position).empty()) {
            game_.ports.dialogs.message("form2");
            continue;
        }
        WordsMade.addRow(wordsMadeRow(WordsMade, candidates.word(position), candidates.score(position)),
                         pathDigits(candidates.path(position)));
        WordsMade.setCurrent(WordsMade.Rows() - 1, 0);
    }
    pathDigits_.clear();
    shownPath_.clear();
    Caption = std::to_string(WordsMade.Rows() - 1) + " hints";
}

void HintsForm::pickRow(int row)
{
    restoreLooks();
    WordsMade.setCurrent(row, WordsMade.Col());
    pathDigits_ = WordsMade.payload(row);
    shownPath_ = tilesOf(pathDigits_);
    for (const int tile : shownPath_)
        game_.look.showSelected(game_.board.tile(tile));
}

void HintsForm::pressSelect()
{
    result_.clear();
    if (!pathDigits_.empty()) {
        restoreLooks();
        game_.selection.clearPath();
        for (const int tile : tilesOf(pathDigits_))
            game_.selection.append(tile);
        result_ = game_.selection.word();
        game_.state.WordTried.Caption = result_;
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
    if (word.empty() || word == "Word...")
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
