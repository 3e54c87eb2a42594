#pragma once

#include "game/game_state.hpp"
#include "platform/status_line.hpp"
#include "settings/meaning_services.hpp"
#include "settings/sound_cues.hpp"

#include <string>

namespace lexigrove
{

/// The meaning window `Form3`: a browser view on the page of one word.
struct MeaningForm {
    std::string Caption; ///< the word
    std::string address; ///< the page that `WbDictionary` navigates to
};

/// Shows the meaning window.
class MeaningWindow
{
public:
    virtual ~MeaningWindow() = default;

    /// Shows the form modally and returns when the window is closed. Network and page errors are the browser view's.
    virtual void show(const MeaningForm& form) = 0;
};

/// Word meanings from the service that was chosen at the game's start.
class Meanings
{
public:
    Meanings(GameState& state, StatusLine& status, SoundCues& sounds, const MeaningServices& services,
             MeaningWindow& window)
        : state_(state), status_(status), sounds_(sounds), services_(services), window_(window)
    {
    }

    /// The meaning of the word in the current row of the main window's `WordsMade`; nothing during the computer's turn.
    void showOfCurrentRow();

    /// Shows the meaning of a word, which is not empty.
    void showMeaning(const std::string& word);

private:
    GameState& state_;
    StatusLine& status_;
    SoundCues& sounds_;
    const MeaningServices& services_;
    MeaningWindow& window_;
};

/// The word in a grid's current row; empty when the heading or no word is current.
std::string currentWord(const WordsGrid& grid);

} // namespace lexigrove
