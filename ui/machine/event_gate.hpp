#pragma once

#include <concepts>
#include <exception>
#include <vector>

class QDialog;
class QEventLoop;

namespace lexigrove
{

/// Knows whether the player has closed the main window while an input of the game runs, and carries that through the
/// toolkit's event loops, which no exception may cross.
///
/// Ports and windows wait for the player through `exec`. Slots of dialogs call models through `run`: an exception
/// thrown there is kept, every open dialog is closed, and the waiting `exec` rethrows it.
class EventGate
{
public:
    /// The player is leaving: closes every open dialog and ends every wait, so that the innermost returns first.
    void requestLeaving();

    /// Rethrows what a slot threw, else throws `Leaving` if it was requested. What is thrown is no longer pending.
    void checkpoint();

    /// For an input that has ended without a checkpoint: whether leaving was requested. The request is then no longer
    /// pending.
    [[nodiscard]] bool takeRequest();

    /// Runs the dialog modally, then checks. Returns QDialog::Accepted, QDialog::Rejected or the value passed to
    /// `done`. Does not show the dialog if leaving was already requested.
    int exec(QDialog& dialog);

    /// Runs an event loop until it quits, then checks.
    void exec(QEventLoop& loop);

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

private:
    void closeAll();

    bool leaving_ = false;
    std::exception_ptr thrown_;
    std::vector<QDialog*> dialogs_; ///< open now, the outermost first
    std::vector<QEventLoop*> loops_;
};

} // namespace lexigrove
