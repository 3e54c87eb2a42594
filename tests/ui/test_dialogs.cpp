#include "tests/ui/window_test.hpp"

#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QSignalSpy>
#include <QTableWidget>

namespace lexigrove
{
namespace
{

/// The windows over a running game on whose board CAT, CATS, DO and ACT can be made.
class DialogTest : public WindowTest
{
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        start({{9, "QCATS"}, {33, "DO"}, {49, "ACT"}});
        Study(flow()).set(&GameState::yourScore, 100);
    }
};

// Guards the top ten: the list is in sight when the name is asked for, an empty name is asked for again, the new line
// is shown, and a window that only shows can only be closed.
TEST_F(DialogTest, TopTenAsksForTheNameOverTheList)
{
    const auto line = [](QDialog& dialog, int row) {
        return dialog.findChild<QListWidget*>("List2")->item(row)->text();
    };
    script.box("Scores File not found - will create a new one").in("QInputDialog", [](QDialog& box) {
        EXPECT_EQ(box.windowTitle(), "LexiGrove Top 10 List");
        EXPECT_EQ(box.parentWidget()->objectName(), "ScoreForm");
        EXPECT_TRUE(box.parentWidget()->isVisible());
        EXPECT_EQ(box.parentWidget()->findChild<QListWidget*>("List2")->count(), 10) << "the list is filled";
        box.accept();
    });
    script.answer("Zo\xC3\xAB").in("ScoreForm", [&](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "LexiGrov Top 10 Scores");
        EXPECT_EQ(line(dialog, 0), "00123\tZo\xC3\xAB");
        EXPECT_EQ(line(dialog, 9), "00011\tYelka");
        EXPECT_NE(dialog.findChild<QListWidget*>("List2")->item(0)->background(), QBrush()) << "one's own line";
        Script::clickOn(dialog, "AnotherGame");
    });
    EXPECT_EQ(Study(flow()).showTopTen(123), "NOGAME");
    EXPECT_EQ(Study(flow()).scores().front(), "00123\tZo\xEB");

    script.in("ScoreForm", [&](QDialog& dialog) {
        EXPECT_EQ(line(dialog, 0), "00123\tZo\xC3\xAB");
        EXPECT_FALSE(dialog.findChild<QWidget*>("AnotherGame")->isEnabled());
        EXPECT_FALSE(dialog.findChild<QWidget*>("ExitProg")->isEnabled());
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    key(Qt::Key_T, Qt::ControlModifier);
}

// Guards the point of the hints window: the path of a row is painted on the board at once, the one before is taken
// back, and the window leaves the board in sight. Select, a double click and Enter take the word.
TEST_F(DialogTest, HintsShowTheirPathsAndAreTaken)
{
    const auto grid = [](QDialog& dialog) -> WordsView& { return *dialog.findChild<WordsView*>("WordsMade"); };
    const auto placeOf = [&](QDialog& dialog, const char* word) {
        const QAbstractItemModel& words = *grid(dialog).model();
        const auto found =
            words.match(words.index(0, WordsGrid::wordColumn), Qt::DisplayRole, word, 1, Qt::MatchExactly);
        return found.isEmpty() ? QPoint() : grid(dialog).visualRect(found.front()).center();
    };
    const auto clickRow = [&](QDialog& dialog, const char* word) {
        QTest::mouseClick(grid(dialog).viewport(), Qt::LeftButton, {}, placeOf(dialog, word));
    };
    window().resize(640, 520); // leaves room on the small screen of the tests
    script.in("Form2", [&](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "4 hints");
        const QRect place(board().mapToGlobal(QPoint()), board().size());
        EXPECT_FALSE(place.intersects(dialog.geometry()));
        clickRow(dialog, "DO");
        EXPECT_EQ(paintedFace(33), selectedFace());
        clickRow(dialog, "CATS");
        EXPECT_EQ(paintedFace(33), face());
        for (const int tile : {10, 11, 12, 13})
            EXPECT_EQ(paintedFace(tile), selectedFace()) << tile;
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    press("Hintx");
    EXPECT_EQ(paintedFace(10), face());
    EXPECT_EQ(shown("YourScore"), "85");

    script.in("Form2", [&](QDialog& dialog) {
        const QPoint first = wordCell(grid(dialog), 1).center();
        clickHeading(grid(dialog), WordsGrid::wordColumn);
        EXPECT_EQ(placeOf(dialog, "ACT"), first);
        clickHeading(grid(dialog), WordsGrid::scoreColumn); // one mark serves all columns: descending now
        EXPECT_EQ(placeOf(dialog, "CATS"), first);
        clickRow(dialog, "CAT");
        Script::clickOn(dialog, "BoxControl2");
    });
    press("Hintx");
    EXPECT_EQ(wordsMade(), "CAT");
    script.in("Form2", [&](QDialog& dialog) {
        clickRow(dialog, "DO"); // the first half of the double click
        QTest::mouseDClick(grid(dialog).viewport(), Qt::LeftButton, {}, placeOf(dialog, "DO"));
    });
    press("Hintx");
    EXPECT_EQ(wordsMade(), "DO CAT");
    script.in("Form2", [&](QDialog& dialog) {
        clickRow(dialog, "ACT");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    });
    press("Hintx");
    EXPECT_EQ(wordsMade(), "ACT DO CAT");
}

// Guards the figures and the chart: each value in its label, each bar where it is given.
TEST_F(DialogTest, StatisticsShowTheTableAndTheChart)
{
    script.in("Form4", [](QDialog& dialog) {
        EXPECT_FALSE(dialog.findChild<QTableWidget*>()->item(0, 1)->flags() & Qt::ItemIsEnabled) << "alone";
        dialog.close();
    });
    key(Qt::Key_S, Qt::ControlModifier);

    chooseOptions([](OptionsForm& options) { options.setValue(options.Check1, true); });
    start({{9, "QCATS"}, {33, "DO"}});
    script.when([this] { return shown("Label1") == "Press any key to continue"; },
                [this] {
                    QTest::qWait(QtScreen::quietTime.count());
                    key(Qt::Key_Space);
                });
    enter("cats");
    Study(flow()).set(&GameState::hintsUsed, 2);
    script.in("Form4", [](QDialog& dialog) {
        const auto& table = *dialog.findChild<QTableWidget*>();
        EXPECT_TRUE(table.item(0, 1)->flags() & Qt::ItemIsEnabled);
        const std::map<int, std::string> values{{1, "1"}, {4, "1"},  {6, "2"},  {7, "4"},   {8, "CATS "},
                                                {9, "1"}, {10, "1"}, {15, "2"}, {16, "DO "}};
        for (const auto& [index, value] : values)
            EXPECT_EQ(table.item((index - 1) % 8, (index - 1) / 8)->text().toStdString(), value) << index;

        auto& picture = *dialog.findChild<QWidget*>("Picture1");
        const auto at = [&](int x, int y) {
            return painted(picture, {x * picture.width() / 3900, y * picture.height() / 2500});
        };
        const QColor card = at(600, 2100 - 40 * 18);
        const QColor bar = at(600, 2100 - 40 * 15); // A: 16 per cent of the letters used
        EXPECT_NE(at(2000, 100), card) << "the frame";
        EXPECT_EQ(card, QColor(0xf8, 0xfb, 0xf6));
        EXPECT_GT(bar.red(), bar.green() + 100) << "a red";
        Script::clickOn(dialog, "Exitx");
    });
    key(Qt::Key_S, Qt::ControlModifier);
}

// Guards the maintenance window as a whole: its list, its search, its messages in their order, and that an addition
// ends as a plain list again.
TEST_F(DialogTest, MaintenanceSearchesAndAddsAWord)
{
    QTest::keyClicks(&window(), "cats");
    script.in("DictionaryMaintenance", [&](QDialog& dialog) {
        EXPECT_EQ(dialog.findChild<QLineEdit*>("Text1")->text(), "CATS");
        EXPECT_TRUE(dialog.findChild<QWidget*>("Option2")->isEnabled());
        EXPECT_FALSE(dialog.findChild<QWidget*>("Option3")->isEnabled());
        Script::clickOn(dialog, "Command2");
    });
    script.box("Load Dictionary first").in("DictionaryMaintenance", [&](QDialog& dialog) {
        auto& text = *dialog.findChild<QLineEdit*>("Text1");
        auto& list = *dialog.findChild<QListView*>("List1");
        Script::clickOn(dialog, "Command1");
        EXPECT_EQ(list.model()->rowCount(), 4);
        QTest::keyClicks(dialog.findChild<QWidget*>("Search"), "at");
        EXPECT_EQ(list.model()->rowCount(), 2);
        EXPECT_EQ(dialog.findChild<QLabel*>("Count")->text(), "2 of 4 words");
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(list.model()->index(0, 0)).center());
        EXPECT_EQ(text.text(), "CAT");
        text.setFocus();
        text.selectAll();
        QTest::keyClicks(&text, "cot");
        QTest::keyClick(&text, Qt::Key_Return);
        EXPECT_TRUE(dialog.isVisible()) << "Enter in a text box presses no button";
        Script::clickOn(dialog, "Addwordx");
    });
    const std::string file = view().dictionary.fileTable[2];
    const std::string backup = folder.file("SysDik2Backup.txt");
    script.box("Add new word and sort");
    script.box("Word COT added and dictionary sorted, now backup old dictionary");
    script.box("File " + backup + " backed up, now compress file " + file);
    script.box("File compressed, now read and verify " + file);
    script.box("Word COT added to " + file).in("DictionaryMaintenance", [](QDialog& dialog) {
        EXPECT_EQ(dialog.findChild<QLabel*>("Count")->text(), "2 of 5 words") << "the words read back";
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    script.box("Write the level file as a plain word list, so that the next game can use it?", QMessageBox::No);
    press("AddWord");
    EXPECT_TRUE(QTest::qWaitFor([this] { return board().hasFocus(); })) << "to go on typing";

    script.box("Level 2 is in the compact form of Dictionary Maintenance: none of its words can be played.\n\n"
               "Make it a plain word list again, and play?",
               QMessageBox::Yes);
    start({});
    EXPECT_EQ(folder.read("L2Ascii.txt"), "ACT\r\nCAT\r\nCATS\r\nCOT\r\nDO\r\n");
    EXPECT_EQ(shown("Label1"), "Level 2 is a plain word list again");
}

TEST_F(DialogTest, TheAboutBoxClosesThreeWays)
{
    script.in("AboutForm", [](QDialog& dialog) {
        EXPECT_TRUE(dialog.findChild<QLabel*>("AboutText")->text().contains("LexiGrove - January 2005"));
        EXPECT_FALSE(dialog.findChild<QLabel*>("Picture")->pixmap().isNull()) << "the toolkit reads the icon's SVG";
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    script.click("AboutForm", "AboutText").click("AboutForm", "AboutOk");
    for (int showing = 1; showing <= 3; ++showing)
        press("Aboutx");
}

/// A window, and the command that opens it after a word was made.
struct LeavingTest : DialogTest, testing::WithParamInterface<std::pair<std::string, Command>> {
};
INSTANTIATE_TEST_SUITE_P(Windows, LeavingTest,
                         testing::Values(std::pair{"QMessageBox", Command::NewGame},
                                         std::pair{"QMessageBox", Command::TopTen}, // over the list
                                         std::pair{"Form2", Command::GetHint}, std::pair{"Form4", Command::Statistics},
                                         std::pair{"DictionaryMaintenance", Command::AddWord},
                                         std::pair{"QInputDialog", Command::AskPassword}));

// Guards every window against the main one that is closed beneath it: all of them close, nothing is thrown through the
// event loop, the game ends once, and what leaving saves is saved.
TEST_P(LeavingTest, ClosingTheMainWindowClosesAll)
{
    enter("cat");
    QTest::keyClicks(&window(), "do");
    std::filesystem::remove(folder.file("Lexigrove.cfg"));
    const QSignalSpy ended(&window(), &MainWindow::ended);
    script.in(GetParam().first, [&](QDialog&) {
        EXPECT_FALSE(window().windowHandle()->close()) << "the input unwinds first";
        EXPECT_EQ(Script::onTop(), nullptr);
    });
    flow().perform(GetParam().second);
    EXPECT_TRUE(flow().ended());
    EXPECT_EQ(ended.count(), 1);
    EXPECT_TRUE(std::filesystem::exists(folder.file("Lexigrove.cfg")));
    EXPECT_TRUE(window().close());
}

} // namespace
} // namespace lexigrove
