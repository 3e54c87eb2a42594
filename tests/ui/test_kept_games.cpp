#include "record/daily.hpp"
#include "tests/ui/window_test.hpp"
#include "ui/board/board_picture.hpp"

#include <QClipboard>
#include <QElapsedTimer>
#include <QTableWidget>

namespace lexigrove
{
namespace
{

/// Games that are left, looked back on and shared, on a board where CAT, CATS, DO and ACT can be made.
class KeptGamesTest : public WindowTest
{
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        start({{9, "QCATS"}, {33, "DO"}, {49, "ACT"}});
    }
};

// Guards a game from a program that ends without leaving: the next start shows it and goes on with it.
TEST_F(KeptGamesTest, GoOnAfterACrash)
{
    enter("cat");
    drop(2);
    QTest::keyClicks(&window(), "do");
    const Position left = flow().position();
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return folder.read("LexigroveGame.txt").find("\npath 33 34\n") != std::string::npos; }));

    game.reset();
    game.emplace(folder.path());
    script.in("ContinueForm", [&](QDialog& dialog) {
        QWidget& board = *dialog.findChild<BoardPicture*>();
        const int colours = picture(board, board.rect()).convertToFormat(QImage::Format_Indexed8).colorCount();
        EXPECT_GT(colours, 10) << "the board is painted";
        Script::clickOn(dialog, "Yes");
    });
    flow().startUp();
    flow().continueGame();
    window().show();
    EXPECT_EQ(flow().position(), left);
    EXPECT_EQ(shown("YourScore"), "5");
    EXPECT_EQ(shown("WordTried"), "DO");
}

// Guards looking back: at once after the game, and later from the list, with buttons and with keys.
TEST_F(KeptGamesTest, AreLookedBackOn)
{
    enter("cat");
    enter("do");
    const auto place = [](QDialog& review) { return review.findChild<QTableWidget*>("Turns")->currentRow() + 1; };
    script.box("Do you wish to reset?", QMessageBox::Yes).click("Form7", "LookBack");
    script.in("Review", [&](QDialog& review) {
        EXPECT_EQ(review.findChild<QLabel*>("Summary")->text(),
                  "You took 8 of the 11 points that the best word of each turn would have given");
        EXPECT_EQ(review.findChild<QAbstractButton*>("BestWord")->text(), "Best: CATS (6)");
        Script::clickOn(review, "BestWord");
        EXPECT_EQ(place(review), 1);
        QTest::keyClick(&review, Qt::Key_Right);
        EXPECT_EQ(place(review), 2);
        EXPECT_FALSE(review.findChild<QWidget*>("Next")->isEnabled());
        Script::clickOn(review, "First");
        EXPECT_EQ(place(review), 1);
        QTest::keyClick(&review, Qt::Key_Escape);
    });
    script.click("Form7", "Startx");
    key(Qt::Key_N, Qt::ControlModifier);

    script.in("PastGames", [](QDialog& list) {
        EXPECT_EQ(list.findChild<QTableWidget*>("Games")->rowCount(), 1);
        EXPECT_EQ(list.findChild<QTableWidget*>("Games")->item(0, 6)->text(), "CAT");
        QTest::keyClick(&list, Qt::Key_Return);
    });
    script.in("Review", [](QDialog& review) { QTest::keyClick(&review, Qt::Key_Escape); });
    script.in("PastGames", [](QDialog& list) { QTest::keyClick(&list, Qt::Key_Escape); });
    key(Qt::Key_G, Qt::ControlModifier);
}

// Guards a game that would go on without a word: its end is offered, tells what to remember, and can be looked back on.
TEST_F(KeptGamesTest, EndWhereNoWordIsLeft)
{
    for (int col = 1; col <= Board::columns; ++col)
        Study(flow()).editWaiting(col, "");
    Study(flow()).setTilesLeft(std::nullopt);
    Study(flow()).editTile(49, "V", multiplier::plain);
    enter("do");
    std::string told;
    QObject::connect(&game->host, &Host::gameOver, [&](const EndOfGame& end) { told = end.memorable.front(); });
    script.in("QMessageBox", [this](QDialog& question) {
        EXPECT_EQ(shown("Label1"), "No more words: New Game or Exit");
        dynamic_cast<QMessageBox&>(question).button(QMessageBox::Yes)->click();
    });
    QElapsedTimer counting;
    script.when([&] { return child("End").isVisible() && (counting.isValid() || (counting.start(), false)); }, [] {});
    script.when([&] { return counting.hasExpired(1'800); }, [this] { QTest::keyClick(&window(), Qt::Key_Space); });
    script.in("QMessageBox", [](QDialog& question) {
        for (QAbstractButton* const button : question.findChildren<QAbstractButton*>()) {
            if (button->text() == "Look back")
                return button->click();
        }
        FAIL();
    });
    script.in("Review", [](QDialog& review) { QTest::keyClick(&review, Qt::Key_Escape); });
    script.box("Another game?", QMessageBox::Yes).click("Form7", "Startx");
    enter("cats");
    EXPECT_EQ(told, "Your best word was CATS for 6");
    EXPECT_TRUE(flow().inGame());
    EXPECT_EQ(shown("YourScore"), "0");
}

// Guards shared boards: the clipboard carries one, what is wrong with a line is said, and the letters are the same.
TEST_F(KeptGamesTest, AreSharedByTheClipboard)
{
    key(Qt::Key_B, Qt::ControlModifier);
    const BoardPosition daily = flow().position().board;
    EXPECT_EQ(daily, boardOfTheDay(Day(SystemClock().today()), daily.level));
    key(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(), textOf(daily));
    start({});
    script.in("QInputDialog", [&](QDialog& box) {
        auto& input = dynamic_cast<QInputDialog&>(box);
        EXPECT_EQ(input.textValue().toStdString(), textOf(daily));
        input.setTextValue("round 2");
        box.accept();
    });
    script.box("This is no board that can be played.\narrangement: 'round' is neither square nor staggered");
    script.answer(textOf(daily));
    flow().perform(Command::SharedBoard);
    EXPECT_EQ(flow().position().board, daily);
}

} // namespace
} // namespace lexigrove
