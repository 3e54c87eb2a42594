#pragma once

#include "platform/sound_device.hpp"

#include <string>
#include <string_view>
#include <utility>

namespace lexigrove
{

/// The wave files and what they tell.
namespace cue
{
inline constexpr std::string_view menu = "cnqmenu.wav";     ///< a menu-like action of the main window
inline constexpr std::string_view longWord = "cnqwon.wav";  ///< an accepted word of more than five letters
inline constexpr std::string_view error = "err3.wav";       ///< the player's error
inline constexpr std::string_view tile = "beep3.wav";       ///< a tile of the board is clicked
inline constexpr std::string_view removal = "beep4.wav";    ///< a used tile leaves the board
inline constexpr std::string_view swap = "click.wav";       ///< two letters are swapped
inline constexpr std::string_view soundOn = "cnqendgm.wav"; ///< sound was switched on with the button
inline constexpr std::string_view thanks = "thanks.wav";    ///< the program is left
} // namespace cue

/// Marks the game's events with sounds, unless sound is off. Nothing waits for a sound, and nobody learns whether it
/// was heard.
class SoundCues
{
public:
    /// `folder` is the program folder with its closing separator. Sound starts on.
    SoundCues(SoundDevice& device, std::string folder) : device_(device), folder_(std::move(folder)) {}

    /// Sends the command that plays a file of the program folder; nothing while sound is off.
    void play(std::string_view file);

    /// Plays a file whatever the flag says, which then stands as before: what a click in the hidden file list
    /// `File1` does, for a front end that has such a list.
    void playForced(std::string_view file);

    [[nodiscard]] bool isOn() const { return on_; }

    /// Sets the sound flag and plays nothing.
    void setOn(bool on) { on_ = on; }

    /// The caption of the main window's button `SoundOnOff`, whose release is `OptionsForm::soundButton`.
    [[nodiscard]] const char* caption() const { return on_ ? "Sound is on" : "Sound is off"; }

private:
    SoundDevice& device_;
    std::string folder_;
    bool on_ = true;
};

} // namespace lexigrove
