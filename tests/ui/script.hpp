#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QTimer>
#include <QtTest/QtTest>
#include <QtTest/qtestmouse.h>

#include <chrono>
#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <utility>

namespace lexigrove
{

/// What the player does while the game is busy, from the event loop and in this order: each step waits for its moment,
/// which is mostly that a window has come up on top. Steps of a window that opens another one go on in that one. A
/// script that its test leaves unfinished fails.
class Script : public QObject
{
public:
    Script() { waitForNext(); }
    ~Script() override { EXPECT_TRUE(steps_.empty()) << "never came: " << steps_.front().name; }

    /// A step in the middle of an animation or of a wait.
    Script& when(std::function<bool()> moment, std::function<void()> step, std::string name = "a moment")
    {
        steps_.push_back({std::move(name), std::move(moment), std::move(step)});
        return *this;
    }

    /// A step in the window of this object name, or of this class where the toolkit's boxes have none.
    Script& in(const std::string& window, std::function<void(QDialog&)> step)
    {
        return when([=] { return isOnTop(window); }, [step = std::move(step)] { step(*onTop()); }, window);
    }

    /// A click on a widget of the window, by object name.
    Script& click(const std::string& window, const char* widget, Qt::MouseButton button = Qt::LeftButton)
    {
        return in(window, [=](QDialog& dialog) { clickOn(dialog, widget, button); });
    }

    /// A message box with this text over a window in sight, answered with OK; or a question, answered with the button.
    Script& box(const std::string& text, QMessageBox::StandardButton answer = QMessageBox::Ok)
    {
        return in("QMessageBox", [=](QDialog& dialog) {
            auto& shown = dynamic_cast<QMessageBox&>(dialog);
            EXPECT_EQ(shown.text().toStdString(), text);
            EXPECT_TRUE(shown.parentWidget()->isVisible());
            ASSERT_NE(shown.button(answer), nullptr);
            QTest::mouseClick(shown.button(answer), Qt::LeftButton);
        });
    }

    /// An input box, answered with a text.
    Script& answer(const std::string& text)
    {
        return in("QInputDialog", [=](QDialog& dialog) {
            dynamic_cast<QInputDialog&>(dialog).setTextValue(QString::fromStdString(text));
            dialog.accept();
        });
    }

    static void clickOn(QDialog& dialog, const char* name, Qt::MouseButton button = Qt::LeftButton)
    {
        auto* const widget = dialog.findChild<QWidget*>(name);
        ASSERT_NE(widget, nullptr) << name;
        // An option is clicked on its mark: its text may be shorter than its place.
        QTest::mouseClick(widget, button, {}, QPoint(std::min(10, widget->width() / 2), widget->height() / 2));
    }

    /// The dialog that was opened last: over the most others.
    static QDialog* onTop()
    {
        QDialog* top = nullptr;
        int most = -1;
        for (QWidget* const window : QApplication::topLevelWidgets()) {
            auto* const dialog = qobject_cast<QDialog*>(window);
            int below = 0;
            for (const QWidget* parent = window->parentWidget(); parent != nullptr; parent = parent->parentWidget())
                ++below;
            if (dialog != nullptr && dialog->isVisible() && below > most) {
                top = dialog;
                most = below;
            }
        }
        return top;
    }

private:
    struct Entry {
        std::string name;
        std::function<bool()> moment;
        std::function<void()> step;
    };

    static std::string nameOf(const QDialog& window)
    {
        const std::string name = window.objectName().toStdString();
        return name.empty() ? window.metaObject()->className() : name;
    }

    static bool isOnTop(const std::string& name)
    {
        QDialog* const window = onTop();
        if (window == nullptr || nameOf(*window) != name)
            return false;
        if (!window->isActiveWindow())
            window->activateWindow(); // as the desktop does when the window above has closed
        return window->isActiveWindow();
    }

    void waitForNext()
    {
        QTimer::singleShot(2, this, [this] {
            if (!steps_.empty() && steps_.front().moment()) {
                const std::function<void()> step = std::move(steps_.front().step);
                steps_.pop_front();
                waitForNext(); // before the step: it may open another window and return only when that is closed
                step();
            } else if (std::chrono::steady_clock::now() < deadline_) {
                waitForNext();
            } else if (QDialog* const window = onTop()) { // closed, so that the test ends and tells
                ADD_FAILURE() << "still open: " << nameOf(*window);
                window->done(QDialog::Rejected);
                waitForNext();
            }
        });
    }

    std::deque<Entry> steps_;
    const std::chrono::steady_clock::time_point deadline_ = std::chrono::steady_clock::now() + std::chrono::seconds(30);
};

} // namespace lexigrove
