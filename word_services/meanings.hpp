#pragma once

#include "game/game_state.hpp"
#include "platform/status_line.hpp"
#include "platform/windows.hpp"
#include "settings/sound_cues.hpp"
#include "word_services/meaning_services.hpp"

#include <string>

namespace lexigrove
{

/// The meaning window `Form3`: a browser view of one word's page.
struct MeaningForm {
    std::string Caption; ///< the word
    std::string address; ///< the page that `WbDictionary` navigates to
};

/// Word meanings from the service that was chosen at the game's start.
class Meanings
{
public:
    Meanings(GameState& state, StatusLine& status, SoundCues& sounds, const MeaningServices& services, Windows& windows)
        : state_(state), status_(status), sounds_(sounds), services_(services), windows_(windows)
    {
    }

    /// Shows the meaning of the word in the current row of the main window's `WordsMade`; does nothing during the
    /// computer's turn.
    void showForCurrentRow();

    /// Shows the meaning of a word that is not empty.
    void showMeaning(const std::string& word);

private:
    GameState& state_;
    StatusLine& status_;
    SoundCues& sounds_;
    const MeaningServices& services_;
    Windows& windows_;
};

/// The word in a grid's current row; empty when the heading or no word is current.
std::string currentWord(const WordsGrid& grid);

} // namespace lexigrove
