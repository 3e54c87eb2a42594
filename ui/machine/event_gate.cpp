#include "ui/machine/event_gate.hpp"

#include "platform/leaving.hpp"

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMessageBox>
#include <QScreen>

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
            return QApplication::activeWindow() == &dialog_ && refuses(static_cast<QKeyEvent&>(*event));
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

/// A dialog that has no size of its own gets what it asks for, as far as the screen has it (the toolkit would give it
/// two thirds of the screen at most), and its place over its parent, with its title in sight under every window
/// manager.
void placeOnScreen(QDialog& dialog)
{
    constexpr QMargins frame(8, 32, 8, 8); // what a window manager adds
    const QRect room = dialog.screen()->availableGeometry().marginsRemoved(frame);
    if (!dialog.testAttribute(Qt::WA_Resized)) {
        dialog.ensurePolished();
        dialog.resize(dialog.sizeHint().boundedTo(room.size()));
    }
    if (dialog.testAttribute(Qt::WA_Moved) || dialog.parentWidget() == nullptr)
        return;
    QRect place(QPoint(), dialog.size());
    place.moveCenter(dialog.parentWidget()->window()->geometry().center());
    place.moveBottomRight({std::min(place.right(), room.right()), std::min(place.bottom(), room.bottom())});
    place.moveTopLeft({std::max(place.left(), room.left()), std::max(place.top(), room.top())});
    dialog.move(place.topLeft() - QPoint(0, frame.top()));
}

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
    if (dialogs_.empty())
        qApp->installEventFilter(this);
    dialogs_.push_back(&dialog);
    std::optional<KeyGuard> guard;
    if (inTick_)
        guard.emplace(dialog);
    QEventLoop loop;
    connect(&dialog, &QDialog::finished, &loop, &QEventLoop::quit);
    dialog.setWindowModality(Qt::NonModal);
    placeOnScreen(dialog);
    dialog.show();
    loop.exec();
    dialogs_.pop_back();
    if (dialogs_.empty())
        qApp->removeEventFilter(this);
    if (QWidget* const below = dialog.parentWidget())
        below->activateWindow(); // the keys go back to it, whatever the desktop does
    checkpoint();
    return dialog.result();
}

/// Whether the receiver belongs to a window that the dialog on top was opened over, in one step or in several.
bool EventGate::isBelowTop(const QObject* receiver) const
{
    const auto* const widget = qobject_cast<const QWidget*>(receiver);
    if (widget == nullptr)
        return false;
    const QWidget* below = dialogs_.back();
    while ((below = below->parentWidget()) != nullptr) {
        if (below->window() == widget->window())
            return true;
    }
    return false;
}

bool EventGate::eventFilter(QObject* receiver, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
        return isBelowTop(receiver);
    case QEvent::Close:
        if (!event->spontaneous() || !isBelowTop(receiver) || qobject_cast<QDialog*>(receiver) == nullptr)
            return false; // the main window leaves the game
        event->ignore();
        return true;
    case QEvent::WindowActivate:
        if (isBelowTop(receiver)) {
            dialogs_.back()->raise(); // the window in front has the keys, wherever the player has clicked
            dialogs_.back()->activateWindow();
        }
        return false;
    default:
        return false;
    }
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
