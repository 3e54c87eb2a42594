#pragma once

#include <QObject>

#include <concepts>
#include <exception>
#include <vector>

class QDialog;
class QEventLoop;

namespace lexigrove
{

/// The one place that knows whether the player has closed the main window while an input of the game runs, and that
/// carries this through the toolkit's event loops, which no exception may cross.
///
/// A port or a window that waits for the player waits through `exec`. A slot of a dialog that calls a model does so
/// through `run`: what is thrown there is kept, every open dialog is closed, and the `exec` that waits below throws it
/// again.
class EventGate : public QObject
{
    Q_OBJECT

public:
    /// The player leaves: closes every open dialog and ends every wait, so that the innermost returns first.
    void requestLeaving();

    [[nodiscard]] bool isLeavingRequested() const { return leaving_; }

    /// Throws what a slot threw, or `Leaving` if it was requested; either is then no longer pending.
    void checkpoint();

    /// For an input that has ended without a checkpoint: whether leaving was requested; it is then no longer pending.
    [[nodiscard]] bool takeRequest();

    /// Runs the dialog modally, then checks. Returns QDialog::Accepted, QDialog::Rejected or what `done` was given.
    /// Does not show the dialog when leaving was requested before.
    int exec(QDialog& dialog);

    /// Runs an event loop until it is quit, then checks.
    void exec(QEventLoop& loop);

    /// What a slot of a dialog does with a model that may ask a question or yield.
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

private:
    void closeAll();

    bool leaving_ = false;
    std::exception_ptr thrown_;
    std::vector<QDialog*> dialogs_; ///< open now, the outermost first
    std::vector<QEventLoop*> loops_;
};

} // namespace lexigrove
