#include "ui/machine/sound_player.hpp"

#include <QAudioDevice>
#include <QFileInfo>
#include <QMediaDevices>
#include <QSoundEffect>
#include <QUrl>

#include <algorithm>
#include <map>
#include <memory>

namespace lexigrove
{

/// Qt Multimedia as a module of the game.
class MultimediaSound : public QObject, public SoundPlayer
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID LexiGroveSoundPlayer_iid)
    Q_INTERFACES(lexigrove::SoundPlayer)

public:
    void play(const QString& file) override
    {
        if (QMediaDevices::defaultAudioOutput().isNull())
            return;
        std::unique_ptr<QSoundEffect>& effect = effects_[file];
        if (!effect) {
            if (!QFileInfo::exists(file)) {
                effects_.erase(file);
                return;
            }
            effect = std::make_unique<QSoundEffect>();
            effect->setSource(QUrl::fromLocalFile(file));
        }
        effect->play();
    }

    [[nodiscard]] bool isPlaying() const override
    {
        return std::any_of(effects_.begin(), effects_.end(), [](const auto& entry) {
            const QSoundEffect& effect = *entry.second;
            return effect.isPlaying() || effect.status() == QSoundEffect::Loading;
        });
    }

private:
    std::map<QString, std::unique_ptr<QSoundEffect>> effects_; ///< by file
};

} // namespace lexigrove

#include "sound_module.moc"
