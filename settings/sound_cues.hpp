#pragma once

#include "platform/sound_device.hpp"

#include <string>
#include <string_view>
#include <utility>

namespace lexigrove
{

/// The wave files and what they signal.
namespace cue
{
inline constexpr std::string_view menu = "cnqmenu.wav";     ///< a menu-like action of the main window
inline constexpr std::string_view longWord = "cnqwon.wav";  ///< an accepted word of more than five letters
inline constexpr std::string_view error = "err3.wav";       ///< the player's error
inline constexpr std::string_view tile = "beep3.wav";       ///< a tile of the board is clicked
inline constexpr std::string_view removal = "beep4.wav";    ///< a used tile leaves the board
inline constexpr std::string_view swap = "click.wav";       ///< two letters are swapped
inline constexpr std::string_view soundOn = "cnqendgm.wav"; ///< sound was switched on with the button
inline constexpr std::string_view thanks = "thanks.wav";    ///< leaving the program
} // namespace cue

/// Plays sounds for the game's events unless sound is off. Does not wait; reports no errors.
class SoundCues
{
public:
    /// `folder` is the program folder with its trailing separator. Sound is initially on.
    SoundCues(SoundDevice& device, std::string folder) : device_(device), folder_(std::move(folder)) {}

    /// Plays a file from the program folder, unless sound is off.
    void play(std::string_view file)
    {
        if (on_)
            device_.send("play " + folder_ + std::string(file));
    }

    /// Plays a file even if sound is off, without changing the flag: what a click in the hidden file list `File1` does,
    /// for a front end that has such a list.
    void playForced(std::string_view file)
    {
        const bool before = std::exchange(on_, true);
        play(file);
        on_ = before;
    }

    [[nodiscard]] bool isOn() const { return on_; }

    /// Sets the sound flag without playing anything.
    void setOn(bool on) { on_ = on; }

    /// The caption of the main window's button `SoundOnOff`, whose release is `OptionsForm::soundButton`.
    [[nodiscard]] const char* caption() const { return on_ ? "Sound is on" : "Sound is off"; }

private:
    SoundDevice& device_;
    std::string folder_;
    bool on_ = true;
};

} // namespace lexigrove
