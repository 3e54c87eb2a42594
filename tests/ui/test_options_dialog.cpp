#include "tests/ui/dialog_script.hpp"
#include "tests/ui/played_window.hpp"

#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QRadioButton>

namespace lexigrove
{

namespace
{

/// The options dialog over the real main window.
class OptionsDialogTest : public testing::Test
{
protected:
    void open()
    {
        play_.window().input([this] { play_.flow().openOptionsAndStart(); });
    }

    void releaseOver(const char* choice, Qt::MouseButton button = Qt::LeftButton)
    {
        script_.click("Form7", choice, button);
    }
    void then(std::function<void()> check)
    {
        script_.in("Form7", [check = std::move(check)](QDialog&) { check(); });
    }
    void start() { script_.click("Form7", "Startx"); }

    PlayedWindow play_;
    OptionsForm& form_ = play_.flow().options;
    GameSettings& settings_ = form_.settings;
    Script script_;
};

// Guards every row of the handlers' table: each effect comes with the release of the mouse over its choice.
TEST_F(OptionsDialogTest, HandlersRunOnTheRelease)
{
    SoundCues& sounds = play_.flow().sounds;
    form_.select(form_.Option15);
    sounds.setOn(true);
    settings_.dropDelay = 250;

    releaseOver("Option16");
    then([&] { EXPECT_EQ(sounds.SoundOnOff.Caption, "Sound is off"); });
    releaseOver("Option15");
    then([&] { EXPECT_EQ(sounds.SoundOnOff.Caption, "Sound is on"); });

    releaseOver("Option10", Qt::RightButton); // selects nothing, yet it is a release over it
    then([&] {
        EXPECT_FALSE(form_.Option10.Value);
        EXPECT_EQ(settings_.dropDelay, 0);
        settings_.dropDelay = 250;
    });
    releaseOver("Option10");
    then([&] { EXPECT_EQ(settings_.dropDelay, 250); });
    releaseOver("Option11");
    releaseOver("Option10");
    then([&] { EXPECT_EQ(settings_.dropDelay, 0) << "stays until something else sets it"; });

    releaseOver("Check1");
    releaseOver("Option13");
    then([&] { EXPECT_TRUE(settings_.longestWordMode && !settings_.highestScoreMode && !settings_.anyWordMode); });
    releaseOver("Option14");
    then([&] { EXPECT_TRUE(settings_.anyWordMode && !settings_.longestWordMode); });
    releaseOver("Check1");
    releaseOver("Option12"); // greyed now
    then([&] { EXPECT_TRUE(form_.Option14.Value && settings_.anyWordMode); });

    releaseOver("Option2");
    script_.in("Form7", [&](QDialog& dialog) {
        EXPECT_TRUE(dialog.findChild<QWidget*>("UsrDictName")->isEnabled());
        EXPECT_TRUE(form_.GetUserDictName.Enabled());
        EXPECT_EQ(play_.flow().dictionary.level(), 0);
    });
    releaseOver("Option5");
    script_.in("Form7", [&](QDialog& dialog) {
        EXPECT_FALSE(dialog.findChild<QWidget*>("UsrDictName")->isEnabled());
        EXPECT_FALSE(form_.GetUserDictName.Enabled());
        EXPECT_EQ(play_.flow().dictionary.level(), 3);
    });
    releaseOver("s8x8");
    start();
    open();
    EXPECT_EQ(play_.theBoard().arrangement(), Arrangement::Square);
}

// Guards against a release elsewhere, and guards the tool tips and captions, which players look for.
TEST_F(OptionsDialogTest, AReleaseElsewhereDoesNothing)
{
    form_.select(form_.Option15);
    script_.in("Form7", [&](QDialog& dialog) {
        auto& off = *dialog.findChild<QRadioButton*>("Option16");
        QTest::mousePress(&off, Qt::LeftButton, {}, {10, off.height() / 2});
        QTest::mouseRelease(&off, Qt::LeftButton, {}, {10, off.height() + 40});
        EXPECT_TRUE(form_.Option15.Value);
        EXPECT_TRUE(dialog.findChild<QRadioButton*>("Option15")->isChecked());
        EXPECT_EQ(play_.flow().sounds.SoundOnOff.Caption, "Sound is on");

        QStringList frames;
        for (const QGroupBox* frame : dialog.findChildren<QGroupBox*>())
            frames.append(frame->title() + (frame->toolTip().isEmpty() ? "" : ": " + frame->toolTip()));
        EXPECT_EQ(frames.join('\n').toStdString(),
                  "Sound: Set sound on or off\nTiles Arrangement: Select size of the grid\n"
                  "Tiles Drop: Select how tiles will drop after making a word\n"
                  "Word Meanings from: Internet source for getting word meanings\n"
                  "Color Scheme: Select a color scheme for display\nDictionary: Set game level\n"
                  "Play with the Computer: Play against the computer, scores are not counted\nComputer Plays");
        EXPECT_EQ(dialog.findChild<QWidget*>("PSBoard")->toolTip(), "Set board to letters of your choice");
    });
    start();
    open();
}

// Guards players without a mouse: the arrow keys choose, nothing happens at once, and Start reads the choice.
TEST_F(OptionsDialogTest, AKeyboardChoiceCountsAtTheStart)
{
    form_.select(form_.Option15);
    play_.flow().sounds.setOn(true);
    script_.in("Form7", [&](QDialog& dialog) {
        EXPECT_EQ(QApplication::focusWidget(), dialog.findChild<QWidget*>("Startx"));
        auto* const on = dialog.findChild<QWidget*>("Option15");
        on->setFocus();
        QTest::keyClick(on, Qt::Key_Down);
        EXPECT_TRUE(form_.Option16.Value);
        EXPECT_FALSE(form_.Option15.Value);
        EXPECT_TRUE(play_.flow().sounds.isOn());
        QTest::keyClick(&dialog, Qt::Key_Escape);
        EXPECT_TRUE(dialog.isVisible()) << "Esc ends no program";
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    });
    open();
    EXPECT_TRUE(play_.flow().inGame());
    EXPECT_FALSE(play_.flow().sounds.isOn());
}

TEST_F(OptionsDialogTest, ClosingItIsExit)
{
    script_.in("Form7", [](QDialog& dialog) { dialog.close(); });
    script_.box("Scores File not found - will create a new one");
    open();
    EXPECT_EQ(form_.answer(), OptionsForm::Answer::Exit);
    EXPECT_TRUE(play_.flow().ended());
}

// Guards the preset board's dialogue, answer by answer.
TEST_F(OptionsDialogTest, PresetBoardAsksUntilTheLettersAreRight)
{
    const auto asked = [this](const std::string& kept, const std::string& answer) {
        script_.in("input", [=](QDialog& dialog) {
            auto& box = dynamic_cast<QInputDialog&>(dialog);
            EXPECT_EQ(box.windowTitle(), "Preset Letters");
            EXPECT_EQ(box.labelText(), "Enter 100 letters A to Z in any sequence");
            EXPECT_EQ(box.textValue().toStdString(), kept);
            box.setTextValue(QString::fromStdString(answer));
            box.accept();
        });
    };
    const std::string letters(99, 'q');
    script_.click("Form7", "PSBoard");
    asked("", "two words");
    asked("", letters);
    script_.box("enter 1 more letters");
    asked(letters, letters + "abcd");
    script_.box("last 3 too many, will be discarded");
    script_.box("Tiles preset, press Start to commence game");
    then([&] { EXPECT_EQ(settings_.presetLetters, std::string(99, 'Q') + "A"); });

    script_.click("Form7", "PSBoard");
    asked("", letters + "7");
    script_.box("Only A-Z allowed, please re-enter");
    script_.in("input", [](QDialog& dialog) { dialog.reject(); });
    then([&] {
        EXPECT_EQ(settings_.presetLetters, std::string(99, 'Q') + "A") << "a cancelled dialogue presets nothing";
    });
    start();
    open();
    EXPECT_EQ(play_.letter(1), "Q");
}

// Guards the look of all windows: the scheme chosen in the box colours them at once.
TEST_F(OptionsDialogTest, ASchemeChosenColoursEveryWindow)
{
    play_.folder.write("Night.sch", "29;39;34\r\n75;97;84\r\n75;97;84\r\n20;28;24\r\n20;28;24\r\n51;68;58\r\n"
                                    "238;244;234\r\n47;122;74\r\n185;138;20\r\n125;86;184\r\n210;81;63\r\n"
                                    "34;46;40\r\n127;178;230\r\n");
    form_.loadSchemes();
    script_.in("Form7", [&](QDialog& dialog) {
        auto& box = *dialog.findChild<QComboBox*>("Combo1");
        EXPECT_EQ(box.currentText(), "Default.sch");
        QTest::keyClick(&box, Qt::Key_Down);
        EXPECT_EQ(play_.flow().scheme.currentName, "Night.sch");
        EXPECT_EQ(dialog.palette().color(QPalette::Window), QColor(29, 39, 34));
        EXPECT_EQ(box.palette().color(QPalette::Base), QColor(34, 46, 40));
        const QImage main = play_.window().grab().toImage();
        EXPECT_EQ(main.pixelColor(main.width() - 3, main.height() / 2), QColor(29, 39, 34));
    });
    start();
    open();
}

// Guards the user dictionary: the chosen file is in the box, and a cancelled dialog changes nothing.
TEST_F(OptionsDialogTest, TheFileDialogNamesTheUserDictionary)
{
    play_.folder.write("mine.dic", "CAT\r\n");
    const QString file = QString::fromStdString(play_.folder.file("mine.dic"));
    script_.click("Form7", "Option2").click("Form7", "GetUserDictName");
    script_.in("file", [&](QDialog& dialog) {
        auto& chooser = dynamic_cast<QFileDialog&>(dialog);
        EXPECT_EQ(chooser.windowTitle(), "Select User Dictionary file to open");
        chooser.findChild<QLineEdit*>("fileNameEdit")->setText(file);
        dialog.accept();
    });
    script_.in("Form7", [&](QDialog& dialog) {
        EXPECT_EQ(dialog.findChild<QLineEdit*>("UsrDictName")->text(), file);
        EXPECT_EQ(dialog.findChild<QLineEdit*>("UsrDictName")->toolTip(), file);
    });
    script_.click("Form7", "GetUserDictName").in("file", [](QDialog& dialog) { dialog.reject(); });
    then([&] { EXPECT_EQ(form_.UsrDictName.Text, file.toStdString()); });
    start();
    open();
    EXPECT_EQ(play_.flow().dictionary.words.count(), 1);
}

} // namespace

} // namespace lexigrove
