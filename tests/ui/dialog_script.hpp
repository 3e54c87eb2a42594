#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QFileDialog>
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

/// What the player does in the windows that come up, in order: a step waits until its window is on top. A step that
/// opens another window is followed by that window's steps. A script that its test leaves unfinished fails.
class Script : public QObject
{
public:
    using Step = std::function<void(QDialog&)>;

    Script() { waitForNext(); }
    ~Script() override { EXPECT_TRUE(steps_.empty()) << "never came: " << steps_.front().window; }
    Script(const Script&) = delete;
    Script& operator=(const Script&) = delete;

    /// A step in the window of this object name.
    Script& in(const std::string& window, Step step)
    {
        steps_.push_back({window, std::move(step)});
        return *this;
    }

    /// A click on a widget of the window, by object name.
    Script& click(const std::string& window, const char* widget, Qt::MouseButton button = Qt::LeftButton)
    {
        return in(window, [=](QDialog& dialog) { clickOn(dialog, widget, button); });
    }

    /// A message box with this text, answered with OK; or a question, answered with the button.
    Script& box(const std::string& text, QMessageBox::StandardButton answer = QMessageBox::Ok)
    {
        return in("box", [=](QDialog& dialog) {
            auto& shown = dynamic_cast<QMessageBox&>(dialog);
            EXPECT_EQ(shown.text().toStdString(), text);
            ASSERT_NE(shown.button(answer), nullptr);
            QTest::mouseClick(shown.button(answer), Qt::LeftButton);
        });
    }

    /// An input box, answered with a text.
    Script& answer(const std::string& text)
    {
        return in("input", [=](QDialog& dialog) {
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

private:
    struct Entry {
        std::string window;
        Step step;
    };

    static std::string nameOf(const QWidget& window)
    {
        if (qobject_cast<const QMessageBox*>(&window) != nullptr)
            return "box";
        if (qobject_cast<const QInputDialog*>(&window) != nullptr)
            return "input";
        if (qobject_cast<const QFileDialog*>(&window) != nullptr)
            return "file";
        return window.objectName().toStdString();
    }

    void waitForNext()
    {
        QTimer::singleShot(2, this, [this] {
            auto* const window = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            const bool next = window != nullptr && !steps_.empty() && nameOf(*window) == steps_.front().window;
            if (!next || !window->isActiveWindow()) {
                if (next)
                    window->activateWindow(); // as the desktop does when the window above has closed
                if (std::chrono::steady_clock::now() < deadline_)
                    waitForNext();
                else
                    giveUp(window);
                return;
            }
            const Step step = std::move(steps_.front().step);
            steps_.pop_front();
            waitForNext(); // before the step, which may open another window and return only when that is closed
            step(*window);
        });
    }

    /// Closes what is open, so that the test ends with a report.
    void giveUp(QDialog* window)
    {
        if (window != nullptr) {
            ADD_FAILURE() << "still open: " << nameOf(*window);
            window->done(QDialog::Rejected);
            waitForNext();
        }
    }

    std::deque<Entry> steps_;
    const std::chrono::steady_clock::time_point deadline_ = std::chrono::steady_clock::now() + std::chrono::seconds(30);
};

} // namespace lexigrove
