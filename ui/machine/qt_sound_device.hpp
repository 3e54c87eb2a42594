#pragma once

#include "platform/sound_device.hpp"

#include <QString>
#include <QThread>

#include <memory>

namespace lexigrove
{

class SoundWorker;

/// Plays wave files. The player is a module, loaded with the first sound in its own thread, so that neither the start
/// nor the game ever waits for the machine's sound. Without the module, a device or the file, nothing is heard.
class QtSoundDevice : public SoundDevice
{
public:
    QtSoundDevice();

    /// Lets a sound that is playing finish, for about two seconds at most.
    ~QtSoundDevice() override;
    QtSoundDevice(const QtSoundDevice&) = delete;
    QtSoundDevice& operator=(const QtSoundDevice&) = delete;

    void send(const std::string& command) override;

private:
    QThread thread_;
    std::unique_ptr<SoundWorker> worker_;
};

/// The file of a command text "play PATH"; empty for any other text.
QString fileToPlay(const std::string& command);

} // namespace lexigrove
