#include "ui/machine/qt_screen.hpp"

#include "ui/look/text.hpp"

#include <QApplication>
#include <QClipboard>
#include <QEventLoop>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopeGuard>
#include <QScopedValueRollback>
#include <QTimer>

#include <algorithm>

namespace lexigrove
{

namespace
{

using namespace std::chrono_literals;

/// The eye does not notice pictures that last less than about this.
constexpr auto pictureLength = 8ms;

} // namespace

QtScreen::QtScreen(Host& host) : host_(host)
{
    qApp->installEventFilter(this);
}

void QtScreen::showAndRunEvents()
{
    emit host_.modelsChanged();
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents); // clicks wait until the rules are done
    shown_ = SteadyClock::now(); // taken after painting: however slow that is, the rules get their share
    host_.gate.checkpoint();
}

void QtScreen::yield()
{
    if (locked_)
        return;
    host_.gate.checkpoint();
    if (SteadyClock::now() - shown_ >= pictureLength)
        showAndRunEvents();
}

void QtScreen::animationStep(int rounds)
{
    host_.gate.checkpoint();
    showAndRunEvents(); // every step is shown, even with a delay of 0, which only skips the wait
    if (rounds <= 0)
        return;
    const auto now = SteadyClock::now();
    stepEnd_ = std::max(stepEnd_, now) + rounds * roundLength;
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(stepEnd_ - now);
    if (left < 1ms) // a timer cannot wait for less, so short waits add up first
        return;
    QEventLoop loop;
    QTimer::singleShot(left, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    host_.gate.exec(loop, QEventLoop::ExcludeUserInputEvents); // clicks and keys wait, in their order, for the end
}

void QtScreen::setBusyPointer(bool busy)
{
    if (busy == busyPointer_)
        return;
    busyPointer_ = busy;
    if (busy)
        QApplication::setOverrideCursor(Qt::BusyCursor);
    else
        QApplication::restoreOverrideCursor();
}

void QtScreen::waitForAnyInput()
{
    emit host_.modelsChanged();
    QEventLoop loop;
    emit host_.waitingChanged(true);
    const auto over = qScopeGuard([this] { emit host_.waitingChanged(false); });
    waitIn(loop);
}

/// The score counts up, and then there is time to read, until a key or a button is pressed.
void QtScreen::showEnd(const EndOfGame& end)
{
    constexpr auto countingTime = 1'600ms;
    constexpr auto readingTime = 6s;
    emit host_.modelsChanged();
    emit host_.gameOver(end);
    QEventLoop counting;
    QTimer::singleShot(countingTime, &counting, &QEventLoop::quit);
    host_.gate.exec(counting);
    if (end.memorable.empty())
        return;
    QEventLoop reading;
    QTimer::singleShot(readingTime, &reading, &QEventLoop::quit);
    waitIn(reading);
}

void QtScreen::waitIn(QEventLoop& loop)
{
    const QScopedValueRollback waiting(waiting_, &loop);
    waitBegan_ = SteadyClock::now();
    host_.gate.exec(loop);
}

void QtScreen::endWait()
{
    if (SteadyClock::now() - waitBegan_ >= quietTime)
        waiting_->quit();
}

void QtScreen::copyText(const std::string& text)
{
    QGuiApplication::clipboard()->setText(QString::fromStdString(text));
}

std::string QtScreen::copiedText() const
{
    return QGuiApplication::clipboard()->text().toStdString();
}

bool QtScreen::eventFilter(QObject* receiver, QEvent* event)
{
    return consume(event) || QObject::eventFilter(receiver, event);
}

/// Returns true if nobody else may see the event.
bool QtScreen::consume(QEvent* event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress: {
        auto* key = static_cast<QKeyEvent*>(event);
        if (waiting_ != nullptr && !key->isAutoRepeat()) {
            consumedKey_ = key->key();
            endWait();
        }
        const bool used = waiting_ != nullptr || (consumedKey_ != 0 && key->key() == consumedKey_);
        if (used)
            event->accept(); // an accepted override keeps the key from being a shortcut
        return used;
    }
    case QEvent::KeyRelease: {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (consumedKey_ == 0 || key->key() != consumedKey_)
            return false;
        if (!key->isAutoRepeat())
            consumedKey_ = 0;
        return true;
    }
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        consumedButton_ = Qt::NoButton; // its release went elsewhere
        if (waiting_ == nullptr)
            return false;
        consumedButton_ = static_cast<QMouseEvent*>(event)->button();
        endWait();
        return true;
    case QEvent::MouseButtonRelease:
        if (consumedButton_ == Qt::NoButton || static_cast<QMouseEvent*>(event)->button() != consumedButton_)
            return false;
        consumedButton_ = Qt::NoButton;
        return true;
    default:
        return false;
    }
}

} // namespace lexigrove
