#pragma once

#include "platform/screen.hpp"
#include "ui/look/theme.hpp"
#include "ui/machine/event_gate.hpp"
#include "ui/machine/settings_file.hpp"

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace lexigrove
{

/// What every window of the game can use. The ports and windows are created before the game, and the main window after
/// it, so the main window registers itself here and connects to the signals.
class Host : public QObject
{
    Q_OBJECT

public:
    /// `folder` is the program folder with its trailing separator.
    explicit Host(const std::string& folder) : settings(folder) {}

    Theme theme;
    EventGate gate;
    SettingsFile settings;
    QPointer<QWidget> mainWindow; ///< null before it exists

    /// The parent for a dialog that is about to be shown: the topmost open dialog, else the main window (a question
    /// during start-up shows it), or null before that exists.
    [[nodiscard]] QWidget* dialogParent() const;

signals:
    /// The models that the main window shows may have changed, the application's colours included.
    void modelsChanged();
    /// An input or a tick of the game has ended.
    void inputEnded();
    /// A letter was typed that cannot follow, or a word entered that is none.
    void inputRefused(const QString& why);
    void happened(Moment moment, int place);
    /// The rules wait for any key or mouse button, or no longer do.
    void waitingChanged(bool waits);
    void gameOver(const EndOfGame& end);
};

} // namespace lexigrove
