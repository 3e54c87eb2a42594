#include "settings/sound_cues.hpp"

#include <utility>

namespace lexigrove
{

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

} // namespace lexigrove
