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

/// The parts of a candidate item: four digits of score, a blank, the path digits, the word.
struct SplitItem {
    int score = 0;
    std::string digits;
    std::string word;
};

SplitItem split(const std::string& item)
{
    std::size_t wordStart = item.size();
    while (wordStart > 5 && static_cast<unsigned char>(item[wordStart - 1]) >= 65)
        --wordStart;
    return {numberOf(item.substr(0, 4)), item.substr(5, wordStart - 5), item.substr(wordStart)};
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
    WordsMade.setHeadingForeColor(game_.scheme.plain(scheme_entry::computer));
    for (int position = 1; position <= candidates.count(); ++position) {
        const std::string item = candidates.item(position);
        if (item.empty()) {
            game_.ports.dialogs.message("form2");
            continue;
        }
        const SplitItem parts = split(item);
        WordsMade.addRow(wordsMadeRow(WordsMade, parts.word, parts.score), parts.digits);
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
