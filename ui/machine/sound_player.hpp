#pragma once

#include <QString>
#include <QtPlugin>

namespace lexigrove
{

/// The machine's sound, in a separate module: plays wave files in the thread that loaded it. Files are read once and
/// kept. Whoever has loaded it deletes it.
class SoundPlayer
{
public:
    virtual ~SoundPlayer() = default;

    /// Starts the file, from its beginning if it is already playing, and returns at once. A file that is missing or
    /// cannot be played is ignored.
    virtual void play(const QString& file) = 0;

    [[nodiscard]] virtual bool isPlaying() const = 0;
};

} // namespace lexigrove

#define LexiGroveSoundPlayer_iid "lexigrove.SoundPlayer/1"
Q_DECLARE_INTERFACE(lexigrove::SoundPlayer, LexiGroveSoundPlayer_iid)
