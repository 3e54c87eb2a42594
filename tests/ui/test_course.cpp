#include "tests/ui/played_window.hpp"

#include <QFocusEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QSignalSpy>

namespace lexigrove
{

namespace
{

QAction* menuAction(QMainWindow& window, const QString& text)
{
    for (QAction* action : window.menuBar()->findChildren<QAction*>()) {
        if (action->text().remove('&').section('\t', 0, 0) == text)
            return action;
    }
    return nullptr;
}

/// The course of a game in the real window.
class Course : public testing::Test
{
protected:
    void start(const Letters& letters = Letters().put(9, "QCATS")) { play_.start(Arrangement::Square, letters); }

    void startAgainstComputer()
    {
        play_.flow().options.setValue(play_.flow().options.Check1, true);
        start(Letters().put(9, "QCATS").put(33, "DO"));
    }

    void triggerMenu(const QString& text)
    {
        QAction* action = menuAction(play_.window(), text);
        ASSERT_NE(action, nullptr) << text.toStdString();
        action->trigger();
    }

    PlayedWindow play_;
};

// Guards the pause: nothing of the board may be seen or clicked through the cover, and it must end with a click.
TEST_F(Course, PauseCoversAndAClickResumes)
{
    start();
    play_.press("Pause");
    auto& cover = play_.child<PauseCover>("PauseCover");
    ASSERT_TRUE(cover.isVisible());
    EXPECT_EQ(cover.geometry(), play_.board().geometry());
    EXPECT_TRUE(play_.child("PauseCoverOfWords").isVisible());
    EXPECT_EQ(cover.caption(), "Paused");
    EXPECT_FALSE(play_.child("EnterWord").isEnabled());
    play_.type("c");
    EXPECT_EQ(play_.word(), "");

    auto& timer = play_.child<QTimer>("PauseTimer");
    EXPECT_EQ(timer.interval(), 500);
    timer.setInterval(5);
    EXPECT_TRUE(QTest::qWaitFor([&] { return cover.caption().isEmpty(); })) << "the caption blinks";

    const QPoint overTile = play_.board().tileRect(10).center();
    EXPECT_EQ(play_.child("PauseCover").parentWidget()->childAt(play_.board().pos() + overTile), &cover);
    QTest::mouseClick(&cover, Qt::LeftButton, {}, overTile);
    EXPECT_FALSE(cover.isVisible());
    EXPECT_EQ(play_.word(), "");
    play_.click(10);
    EXPECT_EQ(play_.word(), "C");
}

// Guards the swap: its mark must be visible, and the click on the drop row must not drop.
TEST_F(Course, AShiftClickSwapsLetters)
{
    start();
    play_.flow().game.state.YourScore.Caption = "25";
    play_.click(10, Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_EQ(play_.shown("Label1"), "Now click the waiting letter to swap it with");
    const QPoint border = play_.board().tileRect(10).topLeft() + QPoint(1, 1);
    EXPECT_EQ(play_.painted(border), toQColor(play_.host().theme.colours().accent));
    play_.drop(3);
    EXPECT_EQ(play_.letter(10), "H");
    EXPECT_EQ(play_.waiting(), "BFCKMPTY");
    EXPECT_EQ(play_.shown("YourScore"), "15");
    EXPECT_NE(play_.painted(border), toQColor(play_.host().theme.colours().accent));
}

// Guards New Game: "No" must leave the game alone, "Yes" must lead through the options into a new one.
TEST_F(Course, NewGameAsks)
{
    start();
    play_.clickAll({10, 11, 12});
    play_.press("EnterWord");
    {
        const Meanwhile no(dialogIsOpen, [] { pressInDialog("No"); });
        triggerMenu("New Game...");
    }
    EXPECT_EQ(play_.shown("YourScore"), "5");
    EXPECT_EQ(play_.letter(12), "Q");

    const auto optionsAreOpen = [] {
        return dialogIsOpen() && QApplication::activeModalWidget()->findChild<QAbstractButton*>("Startx") != nullptr;
    };
    const Meanwhile yes(dialogIsOpen, [] { pressInDialog("Yes"); });
    const Meanwhile options(optionsAreOpen, [] { pressInDialog("Startx"); });
    triggerMenu("New Game...");
    EXPECT_TRUE(play_.flow().inGame());
    EXPECT_EQ(play_.shown("YourScore"), "0");
    EXPECT_EQ(play_.flow().game.state.WordsMade.Rows(), 1);
}

// Guards leaving in the middle of things: no dialog stays behind, nothing is thrown through the event loop, and what
// leaving saves is saved.
TEST_F(Course, ClosingInTheMiddleOfAQuestionLeaves)
{
    start();
    play_.clickAll({10, 11, 12});
    play_.press("EnterWord");
    std::filesystem::remove(play_.folder.file("Lexigrove.cfg"));
    const QSignalSpy ended(&play_.window(), &MainWindow::ended);
    const Meanwhile close(dialogIsOpen, [&] {
        EXPECT_FALSE(play_.window().close()) << "the input unwinds first";
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    });
    triggerMenu("New Game...");
    EXPECT_TRUE(play_.flow().ended());
    EXPECT_EQ(ended.count(), 1);
    EXPECT_FALSE(dialogIsOpen());
    EXPECT_TRUE(std::filesystem::exists(play_.folder.file("Lexigrove.cfg")));
    EXPECT_TRUE(play_.window().close());
}

TEST_F(Course, ClosingInTheMiddleOfAnAnimationLeaves)
{
    start();
    play_.clickAll({10, 11, 12});
    play_.animate(2000); // 80 ms a step: the word would take seconds
    const QSignalSpy ended(&play_.window(), &MainWindow::ended);
    const auto sliding = [&] { return play_.theBoard().Picture2.Visible; };
    const Meanwhile clickThrough(sliding, [&] {
        play_.click(33);
        play_.press("Hintx");
        QTest::mouseMove(&play_.board(), play_.board().tileRect(34).center());
    });
    const Meanwhile close(sliding, [&] { play_.window().close(); });
    play_.press("EnterWord");
    EXPECT_TRUE(play_.flow().ended());
    EXPECT_EQ(ended.count(), 1);
    EXPECT_EQ(play_.word(), "CAT") << "clicks in the middle of it are refused";
}

// Guards the computer's turn: the input that ends its wait must do nothing else, neither as a key nor as a click.
TEST_F(Course, AnyInputEndsTheComputersTurnAndIsUsedUp)
{
    startAgainstComputer();
    const auto waiting = [&] { // the status line alone may still be about the previous turn
        const GameState& state = play_.flow().game.state;
        return state.computerTurnInProgress && state.EnterWord.Visible &&
               play_.shown("Label1") == "Press any key to continue";
    };
    play_.clickAll({10, 11, 12});
    {
        const Meanwhile key(waiting, [&] {
            EXPECT_EQ(play_.shown("WordTried"), "DO");
            EXPECT_FALSE(play_.child("Frame3").isEnabled());
            QTest::keyClick(&play_.window(), Qt::Key_N, Qt::ControlModifier); // New Game, were it not used up
        });
        play_.press("EnterWord");
    }
    EXPECT_EQ(play_.shown("WordTried"), "Your move");
    EXPECT_EQ(play_.shown("CompScore"), "3");
    EXPECT_TRUE(play_.child("Frame3").isEnabled());
    EXPECT_FALSE(dialogIsOpen());
    const WordsGrid& grid = play_.flow().game.state.WordsMade;
    EXPECT_EQ(grid.text(1, 3) + " " + grid.text(2, 3), "DO CAT");

    play_.window().input([&] {
        play_.flow().asInput([&] {
            play_.theBoard().tile(57).Caption("D");
            play_.theBoard().tile(58).Caption("O");
        });
    });
    const Meanwhile mouse(waiting, [&] {
        QTest::mousePress(&play_.board(), Qt::LeftButton, {}, play_.board().tileRect(40).center());
        QTest::mouseRelease(&play_.board(), Qt::LeftButton, {}, play_.board().tileRect(40).center());
    });
    play_.press("EnterWord"); // a pass
    QTest::qWait(1);
    EXPECT_EQ(play_.shown("CompScore"), "6");
    EXPECT_EQ(play_.word(), "") << "the release is used up with the press";
    play_.click(40);
    EXPECT_EQ(play_.word().size(), 1U);
}

TEST_F(Course, ClosingInTheMiddleOfTheComputersTurnLeaves)
{
    startAgainstComputer();
    const Meanwhile close([&] { return play_.shown("Label1") == "Press any key to continue"; },
                          [&] { play_.window().close(); });
    play_.press("EnterWord");
    EXPECT_TRUE(play_.flow().ended());
    EXPECT_EQ(play_.shown("CompScore"), "0") << "the word was not played";
}

// Guards the two ways in which a hint is not given: both must be reported, and only the second costs.
TEST_F(Course, AHintIsRefusedOrNotFound)
{
    start(Letters());
    play_.press("Hintx");
    EXPECT_EQ(play_.shown("Label1"), "your score must be at least15 to get a hint");
    play_.flow().game.state.YourScore.Caption = "20";
    play_.press("Hintx");
    EXPECT_EQ(play_.shown("Label1"), "There are no valid hints");
    EXPECT_EQ(play_.shown("YourScore"), "5");
}

// Guards the clock from expiring in the middle of a game: the window never gives it the focus.
TEST_F(Course, TheClockTakesClicksAndNoFocus)
{
    startAgainstComputer();
    auto& clock = play_.child<ClockView>("Dc1");
    EXPECT_EQ(clock.focusPolicy(), Qt::NoFocus);
    auto& frame = play_.child("Frame10");
    QTest::mouseClick(&frame, Qt::LeftButton, {}, frame.rect().center());
    EXPECT_EQ(play_.flow().Dc1.DigitWidth(), 4);
    QTest::mouseClick(&frame, Qt::RightButton, {}, frame.rect().center());
    EXPECT_EQ(play_.flow().Dc1.ClockColor(), "RED");
    EXPECT_EQ(frame.grab().toImage().pixelColor(frame.rect().center()), QColor(50, 0, 0));

    std::string told;
    const auto expired = [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        return box != nullptr && (told = box->text().toStdString(), true);
    };
    const Meanwhile close(expired, [&] { play_.window().close(); });
    QFocusEvent focus(QEvent::FocusIn);
    QApplication::sendEvent(&clock, &focus);
    EXPECT_EQ(told, "Game over\n5 minutes have elapsed") << "a container that gives the focus makes it expire";
}

// Guards the hidden keys: F1 is the password, not the help, and the delay's keys act on release, in developer mode
// only.
TEST_F(Course, DeveloperKeys)
{
    start();
    play_.animate(250);
    QTest::keyClick(&play_.window(), Qt::Key_End);
    EXPECT_EQ(play_.flow().options.settings.dropDelay, 250);
    {
        const Meanwhile password(dialogIsOpen, [] {
            QTest::keyClicks(QApplication::activeModalWidget()->findChild<QLineEdit*>(), "718kestr");
            pressInDialog("OK");
        });
        QTest::keyClick(&play_.window(), Qt::Key_F1);
    }
    ASSERT_TRUE(play_.flow().game.state.developerMode);
    EXPECT_TRUE(play_.child("Label4").isVisible());
    QTest::keyPress(&play_.window(), Qt::Key_End);
    EXPECT_EQ(play_.flow().options.settings.dropDelay, 250);
    QTest::keyRelease(&play_.window(), Qt::Key_End);
    EXPECT_EQ(play_.flow().options.settings.dropDelay, 0);
    QTest::keyClick(&play_.window(), Qt::Key_Minus, Qt::KeypadModifier);
    EXPECT_EQ(play_.flow().options.settings.dropDelay, 10);
    QTest::keyClick(&play_.window(), Qt::Key_Home);
    EXPECT_EQ(play_.flow().options.settings.dropDelay, 250);
}

// Guards what every button promises: that the menus carry it too, and that no shortcut takes a letter or F1.
TEST_F(Course, MenusCarryWhatButtonsDo)
{
    std::vector<Command> inMenus;
    for (const Menu& menu : mainMenus()) {
        for (const MenuItem& item : menu.items) {
            inMenus.push_back(item.command);
            for (const QKeySequence& key : item.keys) {
                const Qt::KeyboardModifiers modifiers = key[0].keyboardModifiers();
                const bool bare = modifiers == Qt::NoModifier || modifiers == Qt::ShiftModifier;
                EXPECT_TRUE(!bare || key == QKeySequence(Qt::Key_Pause)) << key.toString().toStdString();
            }
        }
    }
    for (const PanelButton& button : panelButtons()) {
        EXPECT_NE(std::find(inMenus.begin(), inMenus.end(), button.command), inMenus.end())
            << button.name.toStdString();
        EXPECT_FALSE(play_.child(button.name.toUtf8().constData()).accessibleName().isEmpty());
    }
}

// Guards the first start: its question is over the window, and the configuration is written.
TEST(FirstStart, TellsThatTheConfigurationIsNew)
{
    ProgramFolder folder;
    std::filesystem::remove(folder.file("Lexigrove.cfg"));
    FrontEnd game(folder.path());
    const Meanwhile told(dialogIsOpen, [&] {
        EXPECT_TRUE(game.window.isVisible());
        pressInDialog("OK");
    });
    game.window.input([&] { game.flow.startUp(); });
    EXPECT_FALSE(game.flow.ended());
}

} // namespace

} // namespace lexigrove
