#include "controls/dc.hpp"
#include "tests/ui/window_test.hpp"

#include <QAbstractButton>
#include <QFocusEvent>
#include <QGroupBox>
#include <QSignalSpy>

namespace lexigrove
{
namespace
{

/// Playing in both arrangements, with Q over CATS in the second column, which is a long one: tiles 9 to 13.
class Playing : public WindowTest, public testing::WithParamInterface<Arrangement>
{
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        start({{9, "QCATS"}}, GetParam());
    }
};
INSTANTIATE_TEST_SUITE_P(SquareAndStaggered, Playing, testing::Values(Arrangement::Square, Arrangement::Staggered));

// Guards a word's way through the window against a click on the wrong tile, a look that lags behind the model, an
// animation that nobody sees, a gap that is not refilled.
TEST_P(Playing, AWordIsClickedEnteredAndRefilled)
{
    EXPECT_TRUE(writes(child("WordTried"), colours().cardQuietText)) << "what to do";
    for (const int tile : {10, 11, 12})
        click(tile);
    EXPECT_EQ(shown("WordTried"), "CAT");
    EXPECT_EQ(shown("CurrScore"), "5");
    EXPECT_TRUE(writes(child("CurrScore"), colours().accent));
    EXPECT_EQ(paintedFace(11), selectedFace());

    animate(100);
    const SlidingPanel& panel = view().board.Picture2;
    script.when([&] { return panel.Visible && panel.Top > view().board.cellTop(1, 2) + layout::cellSize / 3; },
                [&] {
                    const BoardGeometry& shape = board().geometryOfBoard();
                    const QRectF tile = shape.tilePlace(panel.DummyTile[0], panel.Left, panel.Top);
                    EXPECT_EQ(paintedFace(tile.toRect()), face()) << "the letters above are seen on their way";
                });
    press("EnterWord");
    EXPECT_EQ(shown("YourScore"), "5");
    EXPECT_EQ(letter(9) + letter(10) + letter(11) + letter(12), "...Q");
    EXPECT_NE(paintedFace(10), face());

    drop(2);
    EXPECT_EQ(letter(9) + letter(10) + letter(11), "HBF");
    EXPECT_TRUE(QTest::qWaitFor([&] { return paintedFace(10) == face(); })) << "what shone has gone out";
    EXPECT_EQ(view().board.waiting(2).Caption(), "N") << "the drop row is refilled from the queue";
}

// Guards what the pointer tells, a button that is released elsewhere than it was pressed (the release counts), and the
// right button, whose second click enters the word instead of clicking.
TEST_P(Playing, ThePointerTellsAndReleasesCount)
{
    hover(9);
    EXPECT_EQ(shown("Label1"), "Letter Q - score =10");
    EXPECT_NE(paintedFace(9), face()) << "the tile under the pointer is lifted in tone";
    hover(10);
    EXPECT_EQ(paintedFace(9), face());

    QTest::mousePress(&board(), Qt::LeftButton, {}, board().tileRect(12).center());
    QTest::mouseRelease(&board(), Qt::LeftButton, {}, board().tileRect(10).center());
    EXPECT_EQ(word(), "C");
    QTest::mousePress(&board(), Qt::LeftButton, {}, board().tileRect(11).center());
    QTest::mouseRelease(&board(), Qt::LeftButton, {}, {-20, -20});
    EXPECT_EQ(word(), "C");

    click(11);
    click(12, Qt::RightButton);
    EXPECT_EQ(shown("WordTried"), "CAT");
    click(13, Qt::RightButton);
    EXPECT_EQ(shown("YourScore"), "5");
    EXPECT_EQ(word(), "");
}

// Guards playing without a mouse, and the player from losing a word that is none.
TEST_P(Playing, WordsAreTyped)
{
    enter("tac");
    EXPECT_EQ(shown("Label1"), "TAC not in dictionary");
    EXPECT_TRUE(child("Warn").isVisible());
    EXPECT_EQ(shown("WordTried"), "TAC");
    key(Qt::Key_Escape);
    EXPECT_EQ(shown("WordTried"), "");

    QTest::keyClicks(&window(), "cats");
    key(Qt::Key_Backspace);
    EXPECT_EQ(shown("WordTried"), "CAT");
    key(Qt::Key_X);
    key(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(shown("WordTried"), "CAT") << "a letter that does not touch, and one that is a menu's";
    key(Qt::Key_Return);
    EXPECT_EQ(shown("YourScore"), "5");
    key(Qt::Key_2);
    EXPECT_EQ(letter(11), "F") << "a digit drops into its column";
}

// Guards the grid's units: a click on a heading must find its column at every width of the window.
TEST_P(Playing, HeadingsSortTheWordsAndRowsArePicked)
{
    start({{9, "QCATS"}, {33, "DO"}, {49, "CATS"}}, GetParam());
    for (const char* made : {"cat", "cats", "do"})
        enter(made);
    EXPECT_EQ(wordsMade(), "DO CATS CAT");
    auto& words = child<WordsView>("WordsMade");
    for (const int width : {900, 1300}) {
        window().resize(width, 640);
        clickHeading(words, WordsGrid::wordColumn); // one mark serves all columns: ascending, then descending
        EXPECT_EQ(wordsMade(), "CAT CATS DO");
        clickHeading(words, WordsGrid::scoreColumn);
        EXPECT_EQ(wordsMade(), "CATS CAT DO");
    }
    QTest::mouseClick(words.viewport(), Qt::LeftButton, {}, wordCell(words, 2).center());
    EXPECT_EQ(view().state.WordsMade.Row(), 2);
    QTest::keyClick(&words, Qt::Key_Down);
    EXPECT_EQ(view().state.WordsMade.Row(), 3);
    EXPECT_EQ(painted(*words.viewport(), wordCell(words, 3).topLeft()), toQColor(colours().cardSelection));
}

// Guards the letters' place at every size and scale: tiles within the window, square, none over another, found again
// by a click.
TEST_P(Playing, TheBoardFillsTheWindow)
{
    for (const QSize size : {window().minimumSizeHint(), QSize(900, 640), QSize(1000, 1400), QSize(1900, 700)}) {
        window().resize(size);
        for (int tile = 1; tile <= Board::tileCount; ++tile) {
            if (!view().board.isVisible(tile))
                continue;
            const QRect place = board().tileRect(tile);
            EXPECT_TRUE(board().rect().contains(place)) << "tile " << tile;
            EXPECT_EQ(place.width(), place.height());
            EXPECT_GE(place.width(), 30);
            EXPECT_EQ(board().tileAt(place.center()), tile);
            EXPECT_EQ(board().tileAt(place.topLeft() + QPoint(1, 1)), tile);
        }
        const QSize unused = board().parentWidget()->size() - board().size();
        EXPECT_TRUE(unused.height() < 80 || unused.width() < 500) << "neither the height nor the width is used";
    }
}

using Course = WindowTest;

// Guards the pause: nothing of the board may be seen or clicked through the cover, and it must end with a click.
TEST_F(Course, PauseCoversAndAClickResumes)
{
    start({{9, "QCATS"}});
    press("Pause");
    auto& cover = child<PauseCover>("PauseCover");
    ASSERT_TRUE(cover.isVisible());
    EXPECT_EQ(cover.geometry(), board().geometry());
    EXPECT_TRUE(child("PauseCoverOfWords").isVisible());
    EXPECT_EQ(cover.caption(), "Paused");
    EXPECT_FALSE(child("EnterWord").isEnabled());
    key(Qt::Key_C);
    EXPECT_EQ(word(), "");
    auto& timer = child<QTimer>("PauseTimer");
    timer.setInterval(5);
    EXPECT_TRUE(QTest::qWaitFor([&] { return cover.caption().isEmpty(); })) << "the caption blinks";

    const QPoint overTile = board().tileRect(10).center();
    EXPECT_EQ(cover.parentWidget()->childAt(board().pos() + overTile), &cover);
    QTest::mouseClick(&cover, Qt::LeftButton, {}, overTile);
    EXPECT_FALSE(cover.isVisible() || timer.isActive());
    click(10); // the first click on this tile
    EXPECT_EQ(word(), "C");
}

// Guards the swap: its mark must be seen, and the click on the drop row must not drop. A tile that turns red by itself
// is seen at once, too.
TEST_F(Course, AShiftClickSwapsLetters)
{
    start({{9, "QCATS"}});
    Study(flow()).set(&GameState::yourScore, 25);
    click(10, Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_EQ(shown("Label1"), "Now click the waiting letter to swap it with");
    const QPoint border = board().tileRect(10).topLeft() + QPoint(1, 1);
    EXPECT_EQ(painted(board(), border), toQColor(colours().accent));
    drop(3);
    EXPECT_EQ(letter(10), "H");
    EXPECT_EQ(view().board.waiting(3).Caption(), "C");
    EXPECT_NE(painted(board(), border), toQColor(colours().accent));
    Study(flow()).editTile(33, "V", multiplier::red);
    EXPECT_EQ(paintedFace(33), toQColor(view().scheme.tileFace(multiplier::red)));
}

// Guards New Game, which asks, and leads through the options into a new one.
TEST_F(Course, NewGameAsks)
{
    start({{9, "QCATS"}});
    enter("cat");
    script.box("Do you wish to reset?", QMessageBox::Yes).click("Form7", "Startx");
    key(Qt::Key_N, Qt::ControlModifier);
    EXPECT_TRUE(flow().inGame());
    EXPECT_EQ(shown("YourScore"), "0");
}

// Guards somebody who types a word from a question that a timer raises: no key answers it at first, and no letter ever.
TEST_F(Course, NoTypedLetterAnswersATimersQuestion)
{
    start({{9, "QCATS"}});
    Study(flow()).editTile(64, "V", multiplier::red);
    QTest::keyClicks(&window(), "ca");
    script.in("QMessageBox", [](QDialog& question) {
        QTest::keyClicks(&question, "n");
        QTest::keyClick(&question, Qt::Key_Escape);
        EXPECT_TRUE(question.isVisible());
        QTest::qWait(750);
        QTest::keyClicks(&question, "n");
        EXPECT_TRUE(question.isVisible());
        EXPECT_EQ(dynamic_cast<QMessageBox&>(question).text(), "Another game?");
        QTest::keyClick(&question, Qt::Key_Return);
    });
    script.click("Form7", "Startx");
    child<QTimer>("MoveColDownTimer").setInterval(1);
    EXPECT_TRUE(QTest::qWaitFor([this] { return view().board.maskcolor(64) != multiplier::red; }));
    child<QTimer>("MoveColDownTimer").stop();
    EXPECT_FALSE(flow().ended());
}

// Guards the player who looks away from pressure without notice.
TEST_F(Course, PressureIsTold)
{
    start({{9, "QCATS"}});
    Study(flow()).setRedThreshold(1);
    flow().tick(Timer::Red);
    const int red = [this] {
        int tile = 1;
        while (view().board.maskcolor(tile) != multiplier::red)
            ++tile;
        return tile;
    }();
    const std::string column = std::to_string(Board::col(red));
    EXPECT_EQ(shown("Label1"), "A red tile in column " + column);
    Study(flow()).setRedThreshold(1'000);
    flow().warnOfPush();
    EXPECT_EQ(shown("Label1"), "Column " + column + " will be pushed down");
    QTest::keyClicks(&window(), "ca");
    flow().tick(Timer::Push);
    EXPECT_EQ(shown("Label1"), "Column " + column + " was pushed down, and your word was cleared");
    hover(20); // the pointer only wanders
    EXPECT_EQ(shown("Label1"), "Column " + column + " was pushed down, and your word was cleared");
}

// Guards somebody who types: a letter that cannot follow is refused aloud, the next action takes the message away,
// another word begins after a refused one, and other ways to spell it are walked through. And the arrow keys.
TEST_F(Course, TheKeyboardAloneIsEnough)
{
    start({{9, "QCATS"}, {17, "ATSSS"}});
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    QTest::keyClicks(&window(), "cax");
    EXPECT_EQ(shown("Label1"), "CAX cannot be spelled on the board");
    EXPECT_EQ(shown("WordTried"), "CA");
    QTest::keyClicks(&window(), "t");
    EXPECT_EQ(shown("Label1"), "");
    const std::vector<int> first = view().selection.tiles();
    QTest::keyClick(&window(), Qt::Key_O, Qt::ControlModifier);
    EXPECT_EQ(shown("WordTried"), "CAT");
    EXPECT_NE(view().selection.tiles(), first);
    QTest::keyClicks(&window(), "s");
    QTest::keyClick(&window(), Qt::Key_Backspace);
    QTest::keyClick(&window(), Qt::Key_Backspace);
    QTest::keyClick(&window(), Qt::Key_Return);
    EXPECT_EQ(shown("Label1"), "CA not in dictionary");
    QTest::keyClicks(&window(), "t");
    EXPECT_EQ(shown("WordTried"), "T");
    QTest::keyClick(&window(), Qt::Key_Return);
    EXPECT_EQ(shown("Label1"), "A word needs two letters");

    QTest::keyClick(&window(), Qt::Key_Escape);
    board().setFocus();
    board().moveCursor({10, 0});
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Down, Qt::Key_Space, Qt::Key_Down, Qt::Key_Space, Qt::Key_Return})
        QTest::keyClick(&board(), key);
    EXPECT_EQ(shown("YourScore"), "5");
    for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Up, Qt::Key_Up, Qt::Key_Up, Qt::Key_Space})
        QTest::keyClick(&board(), key);
    EXPECT_TRUE(view().board.isVisible(9)) << "dropped from the row on top";

    const auto answer = [](QDialog&) { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); };
    script.in("QMessageBox", answer);
    script.in("Form7", answer);
    key(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(shown("YourScore"), "0");
    script.in("QMessageBox", answer); // there is no score file yet
    key(Qt::Key_Q, Qt::ControlModifier);
    EXPECT_TRUE(flow().ended());
}

// Guards texts at 20 points: none is cut in any of these windows, and none is larger than the screen.
class LargeFont : public WindowTest
{
public:
    LargeFont() { QApplication::setFont(QFont(before_.family(), 20)); }
    ~LargeFont() override { QApplication::setFont(before_); }

private:
    const QFont before_ = QApplication::font();
};

TEST_F(LargeFont, CutsNothing)
{
    const auto cutsNothing = [](const QWidget& window) {
        QTest::qWait(20); // for the layouts
        for (const QWidget* part : window.findChildren<QWidget*>()) {
            const bool writes = qobject_cast<const QAbstractButton*>(part) != nullptr ||
                                qobject_cast<const QGroupBox*>(part) != nullptr;
            if (!writes || !part->isVisible())
                continue;
            EXPECT_GE(part->width(), part->minimumSizeHint().width()) << part->objectName().toStdString();
            EXPECT_GE(part->height(), part->minimumSizeHint().height()) << part->objectName().toStdString();
        }
        EXPECT_LE(window.height(), window.screen()->availableSize().height());
    };
    script.in("Form7", [&](QDialog& options) {
        cutsNothing(options);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    });
    flow().openOptionsAndStart();
    window().show();
    cutsNothing(window());
    const auto closes = [&](QDialog& dialog) {
        cutsNothing(dialog);
        dialog.close();
    };
    for (const auto& [name, shortcut] : {std::pair("Form4", Qt::Key_S), std::pair("PastGames", Qt::Key_G)}) {
        script.in(name, closes);
        key(shortcut, Qt::ControlModifier);
    }
}

// Guards an animation from what the player does meanwhile, and the player who closes the window from waiting for it.
TEST_F(Course, ClosingInTheMiddleOfAnAnimationLeaves)
{
    start({{9, "QCATS"}});
    QTest::keyClicks(&window(), "cat");
    animate(2000); // 80 ms a step: the word would take seconds
    const QSignalSpy ended(&window(), &MainWindow::ended);
    script.when([&] { return view().board.Picture2.Visible; },
                [&] {
                    click(33);
                    press("Hintx");
                    hover(34);
                    EXPECT_EQ(word(), "CAT");
                    window().windowHandle()->close();
                });
    press("EnterWord");
    EXPECT_TRUE(flow().ended());
    EXPECT_EQ(ended.count(), 1);
}

/// Notes what a widget paints while `watches` holds.
class PaintLog : public QObject
{
public:
    PaintLog(QWidget& widget, std::function<bool()> watches) : watches_(std::move(watches))
    {
        widget.installEventFilter(this);
    }
    bool eventFilter(QObject* /*receiver*/, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && watches_())
            painted.push_back(dynamic_cast<QPaintEvent&>(*event).rect());
        return false;
    }

    std::vector<QRect> painted;

private:
    std::function<bool()> watches_;
};

// Guards a large screen from being painted whole at each step of an animation.
TEST_F(Course, ASlidingColumnIsPaintedAlone)
{
    start({{9, "QCATS"}});
    animate(100);
    const PaintLog log(board(), [&] { return view().board.Picture2.Visible; });
    enter("cat");
    const double column = 1.5 * board().tileRect(9).width();
    const auto isWide = [=](const QRect& place) { return place.width() > column; };
    EXPECT_GT(log.painted.size(), 10U);
    EXPECT_LE(std::count_if(log.painted.begin(), log.painted.end(), isWide), 1) << "when the word itself is done";
}

// Guards the computer's turn: the input that ends its wait must do nothing else, neither as a key nor as a click; and
// whoever closes the window in its middle leaves before the word is played.
TEST_F(Course, AnyInputEndsTheComputersTurnAndIsUsedUp)
{
    chooseOptions([](OptionsForm& options) { options.setValue(options.Check1, true); });
    start({{9, "QCATS"}, {33, "DO"}, {49, "ACT"}});
    const auto waits = [this] { // the status line alone may still tell of the turn before
        const bool played = view().state.computerTurnInProgress && view().state.showsEnterWord();
        return played && shown("Label1") == "Press any key to continue";
    };
    script.when(waits, [&] {
        EXPECT_EQ(shown("WordTried"), "ACT");
        EXPECT_FALSE(child("Frame3").isEnabled());
        QTest::keyClicks(&window(), "do"); // typed too early to have seen the word
        QTest::qWait(QtScreen::quietTime.count());
        EXPECT_TRUE(waits());
        key(Qt::Key_N, Qt::ControlModifier); // New Game, were it not used up
    });
    enter("cats");
    EXPECT_EQ(shown("WordTried"), "Your move");
    EXPECT_EQ(shown("CompScore"), "5");
    EXPECT_TRUE(writes(child("CompScore"), colours().computerText));
    EXPECT_EQ(wordsMade(), "ACT CATS");
    const auto& words = child<WordsView>("WordsMade");
    EXPECT_EQ(painted(*words.viewport(), wordCell(words, 1).topLeft()), toQColor(colours().computerBack));

    const QPoint tile = board().tileRect(40).center();
    script.when(waits, [&] {
        QTest::qWait(QtScreen::quietTime.count());
        QTest::mousePress(&board(), Qt::LeftButton, {}, tile);
    });
    press("EnterWord"); // a pass
    QTest::mouseRelease(&board(), Qt::LeftButton, {}, tile);
    EXPECT_EQ(shown("CompScore"), "8");
    EXPECT_EQ(word(), "") << "the release is used up with the press";

    Study(flow()).editTile(57, "D", 1);
    Study(flow()).editTile(58, "O", 1);
    script.when(waits, [&] { window().windowHandle()->close(); });
    press("EnterWord");
    EXPECT_TRUE(flow().ended());
    EXPECT_EQ(shown("CompScore"), "8");
}

// Guards the clock from expiring in the middle of a game: the window never gives it the focus, yet a container that
// does so ends the game.
TEST_F(Course, TheClockTakesClicksAndNoFocus)
{
    chooseOptions([](OptionsForm& options) { options.setValue(options.Check1, true); });
    start({});
    auto& clock = child<ClockView>("Dc1");
    EXPECT_EQ(clock.focusPolicy(), Qt::NoFocus);
    auto& frame = child("Frame10");
    QTest::mouseClick(&frame, Qt::LeftButton, {}, frame.rect().center());
    EXPECT_EQ(view().clock.DigitWidth(), 4);
    const QImage face = picture(frame, frame.rect());
    double contrast = 0;
    for (int place = 0; place < face.width() * face.height(); ++place) {
        const QRgb at = face.pixel(place % face.width(), place / face.width());
        const Colour pixel = rgb((at >> 16) & 0xFFU, (at >> 8) & 0xFFU, at & 0xFFU);
        contrast = std::max(contrast, contrastRatio(pixel, view().clock.Shapet().fill));
    }
    EXPECT_GE(contrast, 3);
    EXPECT_EQ(view().clock.lin2(4).colour, rgb(0, 0, 244)) << "what the clock itself says is darker";
    QTest::mouseClick(&frame, Qt::RightButton, {}, frame.rect().center());
    EXPECT_EQ(view().clock.ClockColor(), "RED");
    EXPECT_EQ(painted(frame, frame.rect().center()), QColor(50, 0, 0));

    script.box("Game over\n5 minutes have elapsed").box("Another game?", QMessageBox::No);
    QFocusEvent focus(QEvent::FocusIn);
    QApplication::sendEvent(&clock, &focus);
    EXPECT_TRUE(flow().ended());
}

// Guards the hidden keys: F1 is the password, not the help, and the delay's keys act on release, in developer mode
// only.
TEST_F(Course, DeveloperKeys)
{
    start({});
    animate(250);
    key(Qt::Key_End);
    EXPECT_EQ(settings().dropDelay, 250);
    EXPECT_FALSE(child("Label4").isVisible());
    script.answer("718kestr");
    key(Qt::Key_F1);
    EXPECT_TRUE(child("Label4").isVisible());
    QTest::keyPress(&window(), Qt::Key_End);
    EXPECT_EQ(settings().dropDelay, 250);
    QTest::keyRelease(&window(), Qt::Key_End);
    EXPECT_EQ(settings().dropDelay, 0);
}

// Guards typing and the password from the menus' keys: none takes a letter, a digit or F1.
TEST(Commands, ShortcutsLeaveBareKeysAlone)
{
    for (const Menu& menu : mainMenus()) {
        for (const MenuItem& item : menu.items) {
            for (const QKeySequence& keys : item.keys)
                EXPECT_TRUE(keys == QKeySequence(Qt::Key_Pause) ||
                            keys[0].keyboardModifiers().testFlag(Qt::ControlModifier))
                    << keys.toString().toStdString();
        }
    }
}

} // namespace
} // namespace lexigrove
