#pragma once

#include <QEventLoop>
#include <QObject>

#include <concepts>
#include <exception>
#include <utility>
#include <vector>

class QDialog;

namespace lexigrove
{

/// Knows whether the player has closed the main window while an input of the game runs, and carries that through the
/// toolkit's event loops, which no exception may cross.
///
/// Ports and windows wait for the player through `exec`. Slots of dialogs call models through `run`: an exception
/// thrown there is kept, every open dialog is closed, and the waiting `exec` rethrows it.
///
/// Dialogs are not modal to the toolkit, which would keep a closing request from the main window while one is open.
/// Instead the gate keeps the player's input from every window but the dialog on top, until that is closed; windows
/// without a parent, like the help, go on.
class EventGate : public QObject
{
public:
    /// The player is leaving: closes every open dialog and ends every wait, so that the innermost returns first.
    void requestLeaving();

    /// Rethrows what a slot threw, else throws `Leaving` if it was requested. What is thrown is no longer pending.
    void checkpoint();

    /// For an input that has ended without a checkpoint: whether leaving was requested. The request is then no longer
    /// pending.
    [[nodiscard]] bool takeRequest();

    /// Runs the dialog until it is closed, then checks. Returns QDialog::Accepted, QDialog::Rejected or the value
    /// passed to `done`. Does not show the dialog if leaving was already requested.
    int exec(QDialog& dialog);

    /// The dialog that has the player's input; null if none is open.
    [[nodiscard]] QDialog* onTop() const { return dialogs_.empty() ? nullptr : dialogs_.back(); }

    /// Runs an event loop until it quits, then checks.
    void exec(QEventLoop& loop, QEventLoop::ProcessEventsFlags flags = QEventLoop::AllEvents);

    /// Runs what a timer does. A dialog that it opens comes while the player may be typing: it takes no key at first,
    /// and plain letters press none of its buttons.
    template <std::invocable Action>
    void runTick(Action action)
    {
        const bool outer = std::exchange(inTick_, true);
        action();
        inTick_ = outer;
    }

    /// Whether a timer is what runs.
    [[nodiscard]] bool inTick() const { return inTick_; }

    /// Runs a dialog slot's action on a model that may ask a question or yield.
    template <std::invocable Action>
    void run(Action action)
    {
        try {
            action();
        } catch (...) {
            thrown_ = std::current_exception();
            closeAll();
        }
    }

    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    void closeAll();
    [[nodiscard]] bool isBelowTop(const QObject* receiver) const;

    bool leaving_ = false;
    bool inTick_ = false;
    std::exception_ptr thrown_;
    std::vector<QDialog*> dialogs_; ///< open now, the outermost first
    std::vector<QEventLoop*> loops_;
};

} // namespace lexigrove
