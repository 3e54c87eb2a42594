#include "opponent/spelling.hpp"

namespace lexigrove
{

void checkSpelling(const GameState& state, const Dictionary& dictionary, SoundCues& sounds, StatusLine& status)
{
    const std::string& word = state.WordTried.Caption;
    if (word.empty() || word == "Computer move..." || word == "Your move") {
        status.show("Select a word first");
        return;
    }
    sounds.play(cue::menu);
    const bool found = dictionary.words.findWord(word) != -1;
    status.show(word + "\r\n" + (found ? "Found" : "Not found"));
}

} // namespace lexigrove
