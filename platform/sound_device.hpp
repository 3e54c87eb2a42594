#pragma once

#include <string>

namespace lexigrove
{

/// Takes the command texts of the sound cues: "play " followed by the full path of a wave file. Returns at once; a file
/// that is missing or cannot be played is silently ignored.
class SoundDevice
{
public:
    virtual ~SoundDevice() = default;
    virtual void send(const std::string& command) = 0;
};

} // namespace lexigrove
