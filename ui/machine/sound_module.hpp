#pragma once

#include "ui/machine/sound_player.hpp"

#include <QObject>

namespace lexigrove
{

/// Qt Multimedia as a module of the game.
class MultimediaSound : public QObject, public SoundModule
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID LexiGroveSoundModule_iid)
    Q_INTERFACES(lexigrove::SoundModule)

public:
    [[nodiscard]] std::unique_ptr<SoundPlayer> newPlayer() override;
};

} // namespace lexigrove
