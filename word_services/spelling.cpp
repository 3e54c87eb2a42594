#include "word_services/spelling.hpp"

namespace lexigrove
{

void checkSpelling(const Selection& selection, const Dictionary& dictionary, SoundCues& sounds, StatusLine& status)
{
    const std::string word = selection.word();
    if (word.empty()) {
        status.show("Select a word first");
        return;
    }
    sounds.play(cue::menu);
    const bool found = dictionary.words.findWord(word) != -1;
    status.show(word + "\r\n" + (found ? "Found" : "Not found"));
}

} // namespace lexigrove
