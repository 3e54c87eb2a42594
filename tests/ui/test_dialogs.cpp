#include "controls/geometry.hpp"
#include "tests/ui/dialog_script.hpp"
#include "tests/ui/played_window.hpp"
#include "ui/dialogs/beside.hpp"
#include "ui/dialogs/score_dialog.hpp"
#include "ui/look/game_icon.hpp"
#include "ui/pages/browser_view.hpp"
#include "ui/play/words_view.hpp"

#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QPushButton>

namespace lexigrove
{

namespace
{

/// The windows over a running game on whose board CAT and CATS can be made, and DO elsewhere.
class DialogTest : public testing::Test
{
protected:
    DialogTest() { play_.start(Arrangement::Square, Letters().put(9, "QCATS").put(33, "DO")); }

    void input(void (GameFlow::*action)())
    {
        play_.window().input([&flow = flow_, action] { (flow.*action)(); });
    }

    PlayedWindow play_;
    GameFlow& flow_ = play_.flow();
    Script script_;
};

QStringList linesOfList(const QDialog& dialog)
{
    const auto& list = *dialog.findChild<QListWidget*>("List2");
    QStringList lines;
    for (int row = 0; row < list.count(); ++row)
        lines.append(list.item(row)->text());
    return lines;
}

// Guards the top ten: the list is in sight when the name is asked for, an empty name is asked for again, and the new
// line is shown.
TEST_F(DialogTest, TopTenAsksForTheNameOverTheList)
{
    script_.box("Scores File not found - will create a new one");
    script_.in("input", [](QDialog& dialog) {
        auto& box = dynamic_cast<QInputDialog&>(dialog);
        EXPECT_EQ(box.windowTitle(), "LexiGrove Top 10 List");
        ASSERT_NE(box.parentWidget(), nullptr);
        EXPECT_EQ(box.parentWidget()->objectName(), "ScoreForm");
        EXPECT_TRUE(box.parentWidget()->isVisible());
        box.accept();
    });
    script_.answer("Zo\xC3\xAB");
    script_.in("ScoreForm", [](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "LexiGrov Top 10 Scores");
        EXPECT_EQ(linesOfList(dialog).size(), 10);
        EXPECT_EQ(linesOfList(dialog).front(), QString::fromUtf8("00123\tZo\xC3\xAB"));
        Script::clickOn(dialog, "AnotherGame");
    });
    ScoreDialog dialog(play_.host());
    EXPECT_EQ(showTopTen(flow_.scoreForm, dialog, "123"), "NOGAME");
    EXPECT_EQ(flow_.scoreFile.load().back(), "00123\tZo\xEB");
}

TEST_F(DialogTest, TopTenThatOnlyShowsCanOnlyBeClosed)
{
    script_.box("Scores File not found - will create a new one");
    script_.in("ScoreForm", [](QDialog& dialog) {
        EXPECT_FALSE(dialog.findChild<QWidget*>("AnotherGame")->isEnabled());
        EXPECT_FALSE(dialog.findChild<QWidget*>("ExitProg")->isEnabled());
        EXPECT_EQ(linesOfList(dialog).front(), "00019\tYelka");
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    input(&GameFlow::showTopTen);
    EXPECT_EQ(flow_.scoreForm.answer(), "");
}

/// The hints window.
class HintsDialogTest : public DialogTest
{
protected:
    HintsDialogTest() { flow_.game.state.YourScore.Caption = "50"; }

    static WordsView& grid(QDialog& dialog) { return *dialog.findChild<WordsView*>("WordsMade"); }

    /// The row of a word, shown.
    int rowOf(const std::string& word)
    {
        const WordsGrid& words = flow_.hintsForm.WordsMade;
        for (int row = 1; row < words.Rows(); ++row) {
            if (words.text(row, WordsGrid::wordColumn) == word)
                return row;
        }
        ADD_FAILURE() << word << " is not listed";
        return 1;
    }
    QPoint placeOf(QDialog& dialog, const std::string& word)
    {
        const WordsView& words = grid(dialog);
        return words.visualRect(words.model()->index(rowOf(word) - 1, WordsGrid::wordColumn)).center();
    }
    void clickRow(QDialog& dialog, const std::string& word)
    {
        QTest::mouseClick(grid(dialog).viewport(), Qt::LeftButton, {}, placeOf(dialog, word));
    }
    bool isMarked(int tile) { return play_.theBoard().tile(tile).BorderStyle() == 1; }
    QColor selectedFace() { return toQColor(flow_.scheme.selectedFace()); }
};

// Guards the point of the window: the path of a row is painted on the board at once, the one before is taken back,
// and the window leaves the board in sight.
TEST_F(HintsDialogTest, ARowPickedShowsItsPathOnTheBoard)
{
    play_.window().resize(640, 520); // leaves room on the small screen of the tests
    script_.in("Form2", [&](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "3 hints");
        const QRect board(play_.board().mapToGlobal(QPoint()), play_.board().size());
        EXPECT_FALSE(board.intersects(dialog.geometry()));
        clickRow(dialog, "DO");
        EXPECT_EQ(play_.paintedFace(33), selectedFace());
        clickRow(dialog, "CATS");
        EXPECT_NE(play_.paintedFace(33), selectedFace());
        for (const int tile : {10, 11, 12, 13})
            EXPECT_EQ(play_.paintedFace(tile), selectedFace()) << tile;
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    input(&GameFlow::getHint);
    EXPECT_NE(play_.paintedFace(10), selectedFace());
    EXPECT_EQ(flow_.game.state.WordsMade.Rows(), 1);
    EXPECT_EQ(play_.shown("YourScore"), "35");
}

TEST_F(HintsDialogTest, TheHeadingSortsAndSelectEntersTheWord)
{
    script_.in("Form2", [&](QDialog& dialog) {
        const QHeaderView& headings = *grid(dialog).horizontalHeader();
        const auto clickHeading = [&](int column) {
            const QPoint place(headings.sectionPosition(column) + 5, 5);
            QTest::mouseClick(headings.viewport(), Qt::LeftButton, {}, place);
        };
        clickHeading(WordsGrid::wordColumn);
        EXPECT_EQ(rowOf("DO"), 3);
        clickHeading(WordsGrid::scoreColumn); // one mark serves all columns: descending now
        EXPECT_EQ(rowOf("CATS"), 1);
        clickRow(dialog, "CAT");
        Script::clickOn(dialog, "BoxControl2");
    });
    input(&GameFlow::getHint);
    EXPECT_EQ(flow_.game.state.WordsMade.text(1, WordsGrid::wordColumn), "CAT");
}

TEST_F(HintsDialogTest, ADoubleClickAndEnterSelect)
{
    script_.in("Form2", [&](QDialog& dialog) {
        clickRow(dialog, "DO"); // the first half of the double click
        QTest::mouseDClick(grid(dialog).viewport(), Qt::LeftButton, {}, placeOf(dialog, "DO"));
    });
    input(&GameFlow::getHint);
    EXPECT_EQ(flow_.game.state.WordsMade.text(1, WordsGrid::wordColumn), "DO");

    flow_.game.state.YourScore.Caption = "50";
    script_.in("Form2", [&](QDialog& dialog) {
        clickRow(dialog, "CAT");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        EXPECT_FALSE(dialog.isVisible());
    });
    input(&GameFlow::getHint);
    EXPECT_EQ(flow_.game.state.WordsMade.text(1, WordsGrid::wordColumn), "CAT");
}

// Guards windows at the edge of the screen and on small screens.
TEST(BesideTest, AWindowStandsBesideWhatStaysInSight)
{
    const QRect screen(0, 0, 1000, 700);
    EXPECT_EQ(beside({0, 50, 500, 500}, {300, 500}, screen), QRect(515, 50, 300, 500));
    EXPECT_EQ(beside({450, 50, 500, 500}, {300, 500}, screen), QRect(134, 50, 300, 500)) << "no room at the right";
    EXPECT_EQ(beside({100, 50, 800, 500}, {300, 500}, screen), QRect(700, 50, 300, 500)) << "nor at the left";
    EXPECT_EQ(beside({0, 400, 500, 500}, {300, 500}, screen), QRect(515, 200, 300, 500));
}

// Guards the figures and the chart: each value in its label, each bar where it is given.
TEST_F(DialogTest, StatisticsShowTheTableAndTheChart)
{
    Statistics& statistics = flow_.game.state.statistics;
    statistics.recordWord("AABCD", 0);
    statistics.recordWord("AABCD", 8);
    flow_.game.state.hintsUsed = 2;
    const auto expectLabels = [](QDialog& dialog, const std::map<int, const char*>& values) {
        for (const auto& [index, value] : values) {
            const auto* label = dialog.findChild<QLabel*>("sval" + QString::number(index));
            EXPECT_EQ(label->text(), value) << index;
        }
    };
    script_.in("Form4", [&](QDialog& dialog) {
        expectLabels(dialog, {{1, "1"}, {5, "1"}, {6, "2"}, {7, "5"}, {8, "AABCD "}, {9, ""}});
        EXPECT_FALSE(dialog.findChild<QWidget*>("Frame2")->isEnabled());

        const QImage picture = dialog.findChild<QWidget*>("Picture1")->grab().toImage();
        const auto at = [&](int x, int y) {
            return picture.pixelColor(x * picture.width() / 3900, y * picture.height() / 2500);
        };
        EXPECT_EQ(at(60, 1000), QColor(120, 120, 120));
        EXPECT_EQ(at(2000, 100), QColor(255, 255, 255)) << "the frame";
        EXPECT_EQ(at(600, 2100 - 40 * 39), QColor(255, 0, 0)) << "A: 40 per cent of the letters used";
        EXPECT_EQ(at(600, 2100 - 40 * 41), QColor(120, 120, 120));
        Script::clickOn(dialog, "Exitx");
    });
    input(&GameFlow::showStatistics);

    flow_.game.state.computerGame = true;
    script_.in("Form4", [&](QDialog& dialog) {
        expectLabels(dialog, {{9, "1"}, {13, "1"}, {16, "AABCD "}});
        EXPECT_TRUE(dialog.findChild<QWidget*>("Frame2")->isEnabled());
        dialog.close();
    });
    input(&GameFlow::showStatistics);
}

// Guards the maintenance window as a whole: its list, its search, its messages in their order, and that an addition
// ends as a plain list again.
TEST_F(DialogTest, MaintenanceSearchesAndAddsAWord)
{
    const std::string file = flow_.dictionary.fileTable[2];
    play_.clickAll({10, 11, 12, 13});
    script_.in("DictionaryMaintenance", [&](QDialog& dialog) {
        auto& text = *dialog.findChild<QLineEdit*>("Text1");
        auto& list = *dialog.findChild<QListView*>("List1");
        EXPECT_EQ(text.text(), "CATS");
        EXPECT_EQ(list.model()->rowCount(), 0);
        EXPECT_TRUE(dialog.findChild<QWidget*>("Option2")->isEnabled());
        EXPECT_FALSE(dialog.findChild<QWidget*>("Option3")->isEnabled());
        Script::clickOn(dialog, "Command2");
    });
    script_.box("Load Dictionary first");
    script_.in("DictionaryMaintenance", [&](QDialog& dialog) {
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
    const std::string backup = play_.folder.file("SysDik2Backup.txt");
    script_.box("Add new word and sort");
    script_.box("Word COT added and dictionary sorted, now backup old dictionary");
    script_.box("File " + backup + " backed up, now compress file " + file);
    script_.box("File compressed, now read and verify " + file);
    script_.box("Word COT added to " + file);
    script_.in("DictionaryMaintenance", [&](QDialog& dialog) {
        EXPECT_EQ(dialog.findChild<QLabel*>("Count")->text(), "2 of 5 words") << "the words read back";
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    script_.box("Write the level file as a plain word list, so that the next game can use it?", QMessageBox::Yes);
    script_.box("File " + backup + " backed up, now write plain word list " + file);
    script_.box("Plain word list written, now read and verify " + file);
    script_.box("Level 2 is a plain word list: " + file);
    input(&GameFlow::addWord);
    EXPECT_EQ(play_.folder.read("L2Ascii.txt"), "ACT\r\nCAT\r\nCATS\r\nCOT\r\nDO\r\n");
}

TEST_F(DialogTest, TheAboutBoxClosesThreeWays)
{
    script_.in("AboutForm", [](QDialog& dialog) {
        EXPECT_EQ(gameIcon().pixmap(256).toImage().pixelColor(100, 100), QColor("#24382c")) << "no picture in there";
        EXPECT_TRUE(dialog.findChild<QLabel*>("AboutText")->text().contains("LexiGrove - January 2005"));
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    input(&GameFlow::showAbout);
    script_.click("AboutForm", "AboutText");
    input(&GameFlow::showAbout);
    script_.click("AboutForm", "AboutOk");
    input(&GameFlow::showAbout);
}

/// Each window with the input that opens it.
struct OpenedWindow {
    const char* name;
    std::function<void(PlayedWindow&)> open;
};

void PrintTo(const OpenedWindow& window, std::ostream* out)
{
    *out << window.name;
}

class LeavingTest : public testing::TestWithParam<OpenedWindow>
{
};

// Guards every window against the main one that is closed beneath it: all of them close, the game ends once.
TEST_P(LeavingTest, ClosingTheMainWindowClosesAll)
{
    PlayedWindow play;
    play.start(Arrangement::Square, Letters().put(9, "QCATS"));
    play.clickAll({10, 11, 12});
    Script script;
    script.in(GetParam().name, [&](QDialog&) {
        play.window().close();
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    });
    play.window().input([&] { GetParam().open(play); });
    EXPECT_TRUE(play.flow().ended());
}

INSTANTIATE_TEST_SUITE_P(
    Windows, LeavingTest,
    testing::Values(OpenedWindow{"Form7", [](PlayedWindow& play) { play.flow().openOptionsAndStart(); }},
                    OpenedWindow{"Form2",
                                 [](PlayedWindow& play) {
                                     play.flow().game.state.YourScore.Caption = "15"; // the price
                                     play.flow().getHint();
                                 }},
                    OpenedWindow{"Form4", [](PlayedWindow& play) { play.flow().showStatistics(); }},
                    OpenedWindow{"AboutForm", [](PlayedWindow& play) { play.flow().showAbout(); }},
                    OpenedWindow{"DictionaryMaintenance", [](PlayedWindow& play) { play.flow().addWord(); }}),
    [](const auto& tested) { return std::string(tested.param.name); });

// Guards the rules of the page views: what is not named is refused.
TEST(BrowserRulesTest, OnlyWhatAViewIsForIsAllowed)
{
    const TemporaryFolder folder;
    for (const char* name : {"lexigrove.htm", "board.png", "Lexigrove.cfg"})
        folder.write(name, "");
    std::filesystem::create_symlink("/etc/passwd", folder.file("link.png"));
    const auto local = [&](const std::string& name) {
        return QUrl::fromLocalFile(QString::fromStdString(folder.file(name)));
    };
    const BrowserRules services = BrowserRules::forServices("https://words.example");
    const BrowserRules servicesHere = BrowserRules::forServices("http://localhost:80");
    const BrowserRules help = BrowserRules::forLocalPage(QString::fromStdString(folder.file("lexigrove.htm")));
    const QUrl far("https://words.example/");
    const QUrl near("http://127.0.0.1:80/");
    const auto page = [](const BrowserRules& rules, const QUrl& url) { return rules.allows({url, url, true, false}); };
    const auto part = [](const BrowserRules& rules, const QUrl& url, const QUrl& of) {
        return rules.allows({url, of, false, true});
    };

    EXPECT_TRUE(page(services, far));
    EXPECT_FALSE(page(services, near)) << "nor does it lead there";
    EXPECT_TRUE(page(servicesHere, near));
    EXPECT_TRUE(page(servicesHere, QUrl("http://localhost/")));
    EXPECT_TRUE(part(services, QUrl("https://other.example/a.png"), far));
    EXPECT_TRUE(part(services, QUrl("data:image/png;base64,AA"), far));
    for (const char* refused : {"http://words.example/", "http://localhost.example/", "ftp://words.example/",
                                "data:text/html,x", "chrome://settings", "javascript:alert(1)", "file:///etc/passwd"})
        EXPECT_FALSE(page(services, QUrl(refused))) << refused;
    EXPECT_FALSE(page(services, local("lexigrove.htm")));
    EXPECT_FALSE(part(services, local("board.png"), far));
    EXPECT_FALSE(part(services, near, far)) << "a page of the network does not reach into the machine";
    EXPECT_TRUE(part(services, near, near));

    QUrl anchor = local("lexigrove.htm");
    anchor.setFragment("rules");
    EXPECT_TRUE(page(help, anchor));
    EXPECT_TRUE(part(help, local("board.png"), anchor));
    EXPECT_FALSE(part(help, local("link.png"), anchor)) << "a link that leads out of the folder";
    EXPECT_FALSE(part(help, QUrl::fromLocalFile("/etc/passwd"), anchor));
    EXPECT_FALSE(part(help, local("Lexigrove.cfg"), anchor));
    EXPECT_FALSE(page(help, local("Lexigrove.cfg")));
    EXPECT_FALSE(page(help, far));
    EXPECT_FALSE(part(help, far, anchor));
}

// Guards players whose engine is not installed: the window says so and offers the system's browser.
TEST(BrowserViewTest, WithoutTheEngineTheViewSaysSo)
{
    const TemporaryFolder empty;
    BrowserLoader loader({QString::fromStdString(empty.path())});
    BrowserView view(loader, BrowserRules::forServices("https://words.example"));
    view.navigate(QUrl("https://words.example/CAT"));
    const QString text = view.findChild<QLabel*>("Failure")->text();
    EXPECT_TRUE(text.contains("https://words.example/CAT") && text.contains("not installed")) << text.toStdString();
    EXPECT_TRUE(view.findChild<QPushButton*>("SystemBrowser")->isVisibleTo(&view));

    empty.write("lexigrove-browser.so", "no module at all");
    view.navigate(QUrl("https://words.example/CAT"));
    EXPECT_FALSE(view.findChild<QLabel*>("Failure")->text().contains("not installed"));
}

} // namespace

} // namespace lexigrove
