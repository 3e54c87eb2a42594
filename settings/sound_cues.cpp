#include "settings/sound_cues.hpp"

#include <utility>

namespace lexigrove
{

SoundCues::SoundCues(SoundDevice& device, std::string folder) : device_(device), folder_(std::move(folder))
{
    setOn(true);
}

void SoundCues::play(std::string_view file)
{
    if (on_)
        device_.send("play " + folder_ + std::string(file));
}

void SoundCues::playForced(std::string_view file)
{
    const bool before = std::exchange(on_, true);
    play(file);
    on_ = before;
}

void SoundCues::setOn(bool on)
{
    on_ = on;
    SoundOnOff.Caption = on ? "Sound is on" : "Sound is off";
}

} // namespace lexigrove
