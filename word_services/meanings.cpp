#include "word_services/meanings.hpp"

namespace lexigrove
{

void Meanings::showForCurrentRow()
{
    if (state_.computerTurnInProgress)
        return;
    const std::string word = currentWord(state_.WordsMade);
    if (word.empty()) {
        status_.show("Select a word first");
        return;
    }
    state_.redTileHold = true; // as for every window opened from the main one
    showMeaning(word);
}

void Meanings::showMeaning(const std::string& word)
{
    sounds_.play(cue::menu);
    windows_.show(MeaningForm{word, services_.addressOf(word)});
}

std::string currentWord(const WordsGrid& grid)
{
    return grid.Row() > 0 ? grid.row(grid.Row()).word : std::string();
}

} // namespace lexigrove
