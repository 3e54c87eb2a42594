#pragma once

#include <QString>
#include <QtPlugin>

#include <memory>

namespace lexigrove
{

/// Plays wave files in the thread that created it. Files are read once and kept.
class SoundPlayer
{
public:
    virtual ~SoundPlayer() = default;

    /// Starts the file, from its beginning if it is already playing, and returns at once. A file that is missing or
    /// cannot be played is ignored.
    virtual void play(const QString& file) = 0;

    [[nodiscard]] virtual bool isPlaying() const = 0;
};

/// The machine's sound, in a separate module.
class SoundModule
{
public:
    virtual ~SoundModule() = default;

    [[nodiscard]] virtual std::unique_ptr<SoundPlayer> newPlayer() = 0;
};

} // namespace lexigrove

#define LexiGroveSoundModule_iid "lexigrove.SoundModule/1"
Q_DECLARE_INTERFACE(lexigrove::SoundModule, LexiGroveSoundModule_iid)
