#include "ui/machine/qt_sound_device.hpp"

#include "ui/look/text.hpp"
#include "ui/machine/modules.hpp"
#include "ui/machine/sound_player.hpp"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>

#include <string_view>

namespace lexigrove
{

namespace
{

constexpr std::string_view playCommand = "play ";
constexpr auto soundThread = "sound";
constexpr int maxSoundWait = 2200; ///< milliseconds that the program's end waits for a sound
constexpr int pollInterval = 25;   ///< milliseconds
constexpr int threadEndsWithin = 3500;

/// The toolkit prints complaints if a machine has no sound. Those of the sound thread are suppressed.
QtMessageHandler& otherThreadsHandler()
{
    static QtMessageHandler handler = nullptr; // the toolkit takes a plain function, which has no state
    return handler;
}

void handleMessage(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    const bool ofSound = QThread::currentThread()->objectName() == soundThread;
    if (!ofSound && otherThreadsHandler() != nullptr)
        otherThreadsHandler()(type, context, text);
}

} // namespace

/// Lives in the sound thread.
class SoundWorker : public QObject
{
public:
    void play(const QString& file)
    {
        if (!loaded_) {
            loaded_ = true;
            QString failure; // a game without sound says nothing
            player_.reset(qobject_cast<SoundPlayer*>(loadModule("lexigrove-sound", moduleFolders(), failure)));
        }
        if (player_)
            player_->play(file);
    }

    /// Ends the thread when the last sound has ended.
    void finish(QDeadlineTimer deadline)
    {
        if (player_ && player_->isPlaying() && !deadline.hasExpired()) {
            QTimer::singleShot(pollInterval, this, [this, deadline] { finish(deadline); });
            return;
        }
        player_.reset();
        thread()->quit();
    }

private:
    bool loaded_ = false;
    std::unique_ptr<SoundPlayer> player_;
};

QString fileToPlay(const std::string& command)
{
    return command.starts_with(playCommand) ? pathToQString(command.substr(playCommand.size())) : QString();
}

QtSoundDevice::QtSoundDevice() = default;

QtSoundDevice::~QtSoundDevice()
{
    if (!worker_)
        return;
    QMetaObject::invokeMethod(worker_.get(),
                              [worker = worker_.get()] { worker->finish(QDeadlineTimer(maxSoundWait)); });
    if (!thread_.wait(threadEndsWithin)) { // the machine's sound hangs: the program ends anyway
        thread_.terminate();
        thread_.wait();
    }
}

void QtSoundDevice::send(const std::string& command)
{
    const QString file = fileToPlay(command);
    if (file.isEmpty())
        return;
    if (!worker_) {
        if (otherThreadsHandler() == nullptr)
            otherThreadsHandler() = qInstallMessageHandler(handleMessage);
        thread_.setObjectName(soundThread);
        worker_ = std::make_unique<SoundWorker>();
        worker_->moveToThread(&thread_);
        thread_.start();
    }
    QMetaObject::invokeMethod(worker_.get(), [worker = worker_.get(), file] { worker->play(file); });
}

} // namespace lexigrove
