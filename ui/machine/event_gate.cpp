#include "ui/machine/event_gate.hpp"

#include "platform/leaving.hpp"

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMessageBox>

#include <algorithm>
#include <optional>

namespace lexigrove
{

namespace
{

/// Keeps the keys of somebody who types a word from a dialog that has just come up under the fingers.
class KeyGuard : public QObject
{
public:
    explicit KeyGuard(QDialog& dialog) : dialog_(dialog)
    {
        sinceOpen_.start();
        qApp->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::ShortcutOverride:
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
            return QApplication::activeModalWidget() == &dialog_ && refuses(static_cast<QKeyEvent&>(*event));
        default:
            return QObject::eventFilter(receiver, event);
        }
    }

private:
    [[nodiscard]] bool refuses(const QKeyEvent& key) const
    {
        constexpr qint64 quietTime = 700; // milliseconds, long enough to notice the dialog
        if (sinceOpen_.elapsed() < quietTime)
            return true;
        const bool letter = !key.text().isEmpty() && key.text().front().isLetter();
        const bool plain = (key.modifiers() & ~Qt::KeyboardModifiers(Qt::ShiftModifier)) == Qt::NoModifier;
        return letter && plain && qobject_cast<QMessageBox*>(&dialog_) != nullptr;
    }

    QDialog& dialog_;
    QElapsedTimer sinceOpen_;
};

} // namespace

void EventGate::requestLeaving()
{
    leaving_ = true;
    closeAll();
}

void EventGate::closeAll()
{
    std::for_each(dialogs_.rbegin(), dialogs_.rend(), [](QDialog* dialog) { dialog->done(QDialog::Rejected); });
    for (QEventLoop* loop : loops_)
        loop->quit();
}

bool EventGate::takeRequest()
{
    return std::exchange(leaving_, false);
}

void EventGate::checkpoint()
{
    if (thrown_)
        std::rethrow_exception(std::exchange(thrown_, nullptr));
    if (takeRequest())
        throw Leaving();
}

int EventGate::exec(QDialog& dialog)
{
    checkpoint();
    dialogs_.push_back(&dialog);
    std::optional<KeyGuard> guard;
    if (inTick_)
        guard.emplace(dialog);
    const int result = dialog.exec();
    dialogs_.pop_back();
    checkpoint();
    return result;
}

void EventGate::exec(QEventLoop& loop, QEventLoop::ProcessEventsFlags flags)
{
    checkpoint();
    loops_.push_back(&loop);
    loop.exec(flags);
    loops_.pop_back();
    checkpoint();
}

} // namespace lexigrove
