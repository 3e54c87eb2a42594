#pragma once

#include "ui/look/theme.hpp"
#include "ui/machine/event_gate.hpp"

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
    Theme theme;
    EventGate gate;
    QPointer<QWidget> mainWindow; ///< null before it exists

    /// The parent for a dialog that is about to be shown: the topmost open dialog, else the main window (a question
    /// during start-up shows it), or null before that exists.
    [[nodiscard]] QWidget* dialogParent() const;

signals:
    /// The models that the main window shows may have changed, the application's colours included.
    void modelsChanged();
    /// An input or a tick of the game has ended.
    void inputEnded();
};

} // namespace lexigrove
