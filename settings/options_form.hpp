#pragma once

#include "controls/box_control.hpp"
#include "dictionary/dictionary.hpp"
#include "platform/dialogs.hpp"
#include "platform/screen.hpp"
#include "settings/colour_scheme.hpp"
#include "settings/game_settings.hpp"
#include "settings/option_controls.hpp"
#include "settings/sound_cues.hpp"

#include <array>
#include <string>
#include <vector>

namespace lexigrove
{

/// What the options dialog needs.
struct OptionsContext {
    Dialogs& dialogs;
    Screen& screen;
    Dictionary& dictionary;
    ColourScheme& scheme;
    SoundCues& sounds;
    std::string folder; ///< the program folder with its trailing separator
};

/// The options dialog `Form7`. Its controls hold the stored options; the rest of the program reads them here.
///
/// A front end shows the frames as declared below, calls `select` when a choice is selected by any means, and
/// `mouseReleased` when the mouse button is released over it: handlers run only on that release. A choice made with the
/// keyboard alone takes effect when a game starts (`takeChoices`).
class OptionsForm
{
public:
    enum class Answer { None, Start, Exit, LookBack };
    /// Whether the dialog offers to look back on the game that is just over.
    enum class LookBack { Hidden, Offered };

    explicit OptionsForm(const OptionsContext& context);
    OptionsForm(const OptionsForm&) = delete;
    OptionsForm& operator=(const OptionsForm&) = delete;

    /// The frames with choices, in order: sound, arrangement, drop, meanings, dictionary, computer plays.
    [[nodiscard]] std::vector<ChoiceFrame*> choiceFrames();

    /// The choice with this control name, or null.
    [[nodiscard]] Choice* find(const std::string& name);

    /// Sets the value of a choice, as the mouse, the keyboard or a file does; no handler runs. Selecting a choice
    /// clears the others in its frame.
    void select(Choice& choice) { setValue(choice, true); }
    void setValue(Choice& choice, bool value);

    /// The mouse button was released over the control: runs its handler, if it has one.
    void mouseReleased(Choice& choice);

    /// `GetUserDictName` was released: asks for a file; a cancelled dialog changes nothing.
    void browseUserDictionary();

    /// The text of `UsrDictName` was edited.
    void typeUserDictName(const std::string& text);

    /// `PSBoard` was released: asks for the 100 letters of a preset board. Returns true if they are now preset.
    bool presetBoard();

    /// An entry of `Combo1` was chosen.
    void chooseScheme(const std::string& name);

    /// Part of start-up: loads the current scheme, lists the scheme files in `Combo1` and colours the box and its
    /// frame.
    void loadSchemes();

    /// The main window's button `SoundOnOff` was released.
    void soundButton();

    /// `Startx` and `Exitx`: hide the dialog with this answer. The flow does the saving and leaving.
    void pressStart() { hide(Answer::Start); }
    void pressExit() { hide(Answer::Exit); }
    /// Looks back on the last game; the dialog is shown again afterwards.
    void pressLookBack() { hide(Answer::LookBack); }

    /// Called before the dialog is shown; clears the answer.
    void open(LookBack lookBack = LookBack::Hidden);
    [[nodiscard]] bool offersLookBack() const { return lookBack_ == LookBack::Offered; }
    [[nodiscard]] bool isVisible() const { return visible_; }
    [[nodiscard]] Answer answer() const { return answer_; }

    /// A game starts: the controls' values take effect, however they were chosen. Sets the sound flag, the delay (0
    /// without animation), the computer's mode and the dictionary.
    void takeChoices();

    /// ApplyDictionaryChoice with this dialog's choice and file name. Without a selected choice the old one stays.
    void applyDictionaryChoice();

    /// Whether "Custom" is chosen and its file is not there: a game cannot start with it.
    [[nodiscard]] bool lacksUserDictionary() const;

    /// Enables or disables `UsrDictName` and `GetUserDictName`.
    void enableUserDictionary(bool enabled);

    /// Sets the sound flag from "On" and "Off"; if neither is selected they do not
    /// change.
    void setSound();

    /// The scheme chosen in `Combo1`, and the folder of the files in its list.
    [[nodiscard]] const ColourScheme& scheme() const { return context_.scheme; }
    [[nodiscard]] const std::string& folder() const { return context_.folder; }

    [[nodiscard]] bool isSquare() const { return s8x8.Value; }
    [[nodiscard]] bool isComputerGame() const { return Check1.Value; }
    /// Whether columns and waiting letters are shown moving.
    [[nodiscard]] bool animates() const { return !Option11.Value; }
    /// The choices of "Word Meanings from", in the order in which the services are tested.
    [[nodiscard]] std::array<bool, 4> meaningChoices() const
    {
        return {Option6.Value, Option7.Value, Option8.Value, Option9.Value};
    }

    /// The values that the choices set and the game reads.
    GameSettings settings;

    std::string Caption = "LexiGrove Options";

    Choice Option15{"Option15", "On"};
    Choice Option16{"Option16", "Off"};
    Choice s8x8{"s8x8", "Square"};
    Choice s7x8{"s7x8", "Staggered"};
    Choice Option11{"Option11", "No Animation"};
    Choice Option10{"Option10", "Animation"};
    Choice Option9{"Option9", "Computer Dictionary"};
    Choice Option8{"Option8", "Merriam Webster"};
    Choice Option7{"Option7", "Free Dictionary"};
    Choice Option6{"Option6", "Online Dictionary"};
    Choice Option5{"Option5", "Level 3 - 200,000 words"};
    Choice Option4{"Option4", "Level 2 - 20,000 words"};
    Choice Option3{"Option3", "Level 1 - 2,500 words"};
    Choice Option2{"Option2", "Custom"};
    Choice Check1{"Check1", "YES"}; ///< a single check box, in no group
    Choice Option14{"Option14", "Any"};
    Choice Option13{"Option13", "Longest word"};
    Choice Option12{"Option12", "Highest score word"};

    ChoiceFrame SoundFrame{"Sound", "Set sound on or off", {&Option15, &Option16}};
    ChoiceFrame ArrangementFrame{"Tiles Arrangement", "Select size of the grid", {&s8x8, &s7x8}};
    ChoiceFrame DropFrame{"Tiles Drop", "Select how tiles will drop after making a word", {&Option11, &Option10}};
    ChoiceFrame MeaningsFrame{
        "Word Meanings from", "Internet source for getting word meanings", {&Option9, &Option8, &Option7, &Option6}};
    ChoiceFrame SchemeFrame{"Color Scheme", "Select a color scheme for display", {}}; ///< around `Combo1`
    ChoiceFrame DictionaryFrame{"Dictionary", "Set game level", {&Option5, &Option4, &Option3, &Option2}};
    ChoiceFrame ComputerFrame{
        "Play with the Computer", "Play against the computer, scores are not counted", {}}; ///< around `Check1`
    ChoiceFrame StrategyFrame{"Computer Plays", "", {&Option14, &Option13, &Option12}};

    ComboBox Combo1;
    TextBox UsrDictName;
    BoxControl GetUserDictName;
    PushButton Startx{"Start", "Start this game"};
    PushButton PSBoard{"Preset Board", "Set board to letters of your choice"};
    PushButton Exitx{"Exit", "End this game"};

private:
    void colourSchemeBox();
    void setStrategy();
    void hide(Answer answer);

    OptionsContext context_;
    bool visible_ = false;
    Answer answer_ = Answer::None;
    LookBack lookBack_ = LookBack::Hidden;
};

} // namespace lexigrove
