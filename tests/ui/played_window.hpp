#pragma once

#include "tests/support/temporary_folder.hpp"
#include "ui/front_end.hpp"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QTimer>
#include <QtTest/QtTest>
#include <QtTest/qtestmouse.h>

#include <chrono>
#include <functional>
#include <gtest/gtest.h>
#include <string>

namespace lexigrove
{

/// A program folder with small word lists and a stored configuration without animation.
class ProgramFolder : public TemporaryFolder
{
public:
    ProgramFolder()
    {
        for (const char* name : {"L1Ascii.txt", "L2Ascii.txt", "L3Ascii.txt"})
            write(name, "ACT\r\nCAT\r\nCATS\r\nDO\r\n");
        write("Default.sch", "&HE4EEE7;\r\n&HFFFFFF;\r\n&HFFFFFF;\r\n&HA3BEC8;\r\n&HA3BEC8;\r\n&HEAF7FB;\r\n"
                             "&H2C3824;\r\n&HB0D8A9;\r\n&H6BCFF3;\r\n&HEAA8C9;\r\n&H2E3BC2;\r\n&HF6FBF8;\r\n"
                             "&H945F2E;\r\n");
        std::string stored = "22 Nov 2026 12:00:00\r\n\r\n3\r\nBLUE\r\nUsrDict.txt\r\nSysDict1.txt\r\nSysDict2.txt\r\n"
                             "SysDict3.txt\r\n250\r\n";
        for (const bool on :
             {false, false, true, false, false, true, false, false, false, true, true, false, true, false})
            stored += on ? "True\r\n" : "False\r\n";
        write("Lexigrove.cfg", stored);
    }
};

/// The letters of a board: "V", which makes no word, except for what a test puts there. The drop row shows BFHKMPTY.
class Letters
{
public:
    Letters() : text_(100, 'V') { text_.replace(64, 16, "BDFGHJKLMNPRTWYZ"); }

    Letters& put(int firstTile, const std::string& letters)
    {
        text_.replace(static_cast<std::size_t>(firstTile) - 1, letters.size(), letters);
        return *this;
    }

    [[nodiscard]] const std::string& text() const { return text_; }

private:
    std::string text_;
};

/// A pixel of a tile that belongs to its face, whatever its letter, its marks and its links.
inline QPoint facePoint(const QRect& tile)
{
    return tile.topLeft() + QPoint(tile.width() * 36 / 100, tile.height() * 78 / 100);
}

/// The real main window over a game in its own folder.
class PlayedWindow
{
public:
    PlayedWindow()
    {
        window().input([&] { flow().startUp(); });
        window().resize(900, 640);
        window().show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window()));
    }

    void start(Arrangement arrangement, const Letters& letters)
    {
        OptionsForm& options = flow().options;
        options.select(arrangement == Arrangement::Square ? options.s8x8 : options.s7x8);
        options.settings.presetLetters = letters.text();
        window().input([&] { flow().startGame(); });
        ASSERT_TRUE(flow().inGame());
    }

    /// Lets the animations be seen, with this delay.
    void animate(int delay)
    {
        flow().options.select(flow().options.Option10);
        flow().options.settings.dropDelay = delay;
    }

    void click(int tile, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mouseClick(&board(), button, modifiers, board().tileRect(tile).center());
    }
    void clickAll(std::initializer_list<int> tiles)
    {
        for (const int tile : tiles)
            click(tile);
    }
    void drop(int col) { QTest::mouseClick(&board(), Qt::LeftButton, {}, board().dropRect(col).center()); }
    void press(const char* button)
    {
        auto* widget = window().findChild<QAbstractButton*>(button);
        ASSERT_NE(widget, nullptr) << button;
        QTest::mouseClick(widget, Qt::LeftButton);
    }
    void type(const char* keys) { QTest::keyClicks(&window(), keys); }

    /// The text of a label as the window shows it.
    [[nodiscard]] std::string shown(const char* label)
    {
        const auto* widget = window().findChild<QLabel*>(label);
        return widget != nullptr ? widget->text().toStdString() : "no such label";
    }
    template <typename Widget = QWidget>
    [[nodiscard]] Widget& child(const char* name)
    {
        auto* widget = window().findChild<Widget*>(name);
        if (widget == nullptr)
            throw std::runtime_error(std::string("no such widget: ") + name);
        return *widget;
    }

    /// A pixel of the board as it is painted now.
    [[nodiscard]] QColor painted(const QPoint& place)
    {
        const QImage picture = board().grab().toImage();
        return picture.pixelColor(place * picture.devicePixelRatio());
    }
    [[nodiscard]] QColor paintedFace(int tile) { return painted(facePoint(board().tileRect(tile))); }

    [[nodiscard]] std::string word() { return flow().game.selection.word(); }
    [[nodiscard]] std::string letter(int tile) { return theBoard().isVisible(tile) ? theBoard().letter(tile) : "."; }
    [[nodiscard]] std::string waiting()
    {
        std::string letters;
        for (int col = 1; col <= Board::columns; ++col)
            letters += theBoard().TopDrop[static_cast<std::size_t>(col)].Caption();
        return letters;
    }

    [[nodiscard]] MainWindow& window() { return frontEnd_.window; }
    [[nodiscard]] BoardView& board() { return window().board(); }
    [[nodiscard]] Board& theBoard() { return flow().game.board; }
    [[nodiscard]] GameFlow& flow() { return frontEnd_.flow; }
    [[nodiscard]] Host& host() { return frontEnd_.host; }

    ProgramFolder folder;

private:
    FrontEnd frontEnd_{folder.path()};
};

/// Does something once from the event loop, as soon as the condition holds: while a dialog, a wait or an animation is
/// in progress. A test that ends before that fails.
class Meanwhile : public QObject
{
public:
    Meanwhile(std::function<bool()> condition, std::function<void()> action)
    {
        timer_.setInterval(1);
        connect(&timer_, &QTimer::timeout, this, [this, condition = std::move(condition), action = std::move(action)] {
            if (!condition())
                return;
            timer_.stop();
            done_ = true;
            action();
        });
        timer_.start();
    }
    ~Meanwhile() override { EXPECT_TRUE(done_) << "what was to happen meanwhile never came"; }

private:
    QTimer timer_;
    bool done_ = false;
};

inline bool dialogIsOpen()
{
    return QApplication::activeModalWidget() != nullptr;
}

/// Presses a button of the dialog that is open, by its object name or its text.
inline void pressInDialog(const QString& button)
{
    for (QAbstractButton* candidate : QApplication::activeModalWidget()->findChildren<QAbstractButton*>()) {
        if (candidate->objectName() == button || candidate->text().remove('&') == button) {
            QTest::mouseClick(candidate, Qt::LeftButton);
            return;
        }
    }
    ADD_FAILURE() << "no button " << button.toStdString();
}

} // namespace lexigrove
