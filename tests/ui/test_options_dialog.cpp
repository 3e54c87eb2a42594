#include "tests/ui/window_test.hpp"

#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QRadioButton>

namespace lexigrove
{
namespace
{

/// The options dialog over the real main window.
class OptionsDialogTest : public WindowTest
{
protected:
    Script& click(const char* widget, Qt::MouseButton button = Qt::LeftButton)
    {
        return script.click("Form7", widget, button);
    }
    void then(std::function<void(QDialog&)> check) { script.in("Form7", std::move(check)); }

    /// Opens the dialog; "Start" ends the script.
    void openAndStart()
    {
        click("Startx");
        flow().openOptionsAndStart();
    }
};

// Guards every row of the handlers' table: each effect comes with the release of the mouse over its choice, and with
// none elsewhere. And the captions and tool tips, which players look for.
TEST_F(OptionsDialogTest, HandlersRunOnTheRelease)
{
    Study(flow()).setDeveloperMode(true);
    flow().releaseDeveloperKey(DeveloperKey::Home); // the delay is 250
    then([&](QDialog& dialog) {
        auto& animation = *dialog.findChild<QRadioButton*>("Option10");
        QTest::mousePress(&animation, Qt::LeftButton, {}, {10, animation.height() / 2});
        QTest::mouseRelease(&animation, Qt::LeftButton, {}, {10, animation.height() + 40});
        EXPECT_TRUE(view().options.Option11.Value && !animation.isChecked());
        EXPECT_EQ(settings().dropDelay, 250);

        QStringList frames;
        for (const QGroupBox* frame : dialog.findChildren<QGroupBox*>())
            frames.append(frame->title() + (frame->toolTip().isEmpty() ? "" : ": " + frame->toolTip()));
        EXPECT_EQ(frames.join('\n').toStdString(),
                  "Sound: Set sound on or off\nTiles Arrangement: Select size of the grid\n"
                  "Tiles Drop: Select how tiles will drop after making a word\n"
                  "Word Meanings from: Internet source for getting word meanings\n"
                  "Color Scheme: Select a color scheme for display\nDictionary: Set game level\n"
                  "Play with the Computer: Play against the computer, scores are not counted\nComputer Plays\n"
                  "While You Play");
        EXPECT_EQ(dialog.findChild<QWidget*>("PSBoard")->toolTip(), "Set board to letters of your choice");
    });
    click("Option16");
    then([&](QDialog&) { EXPECT_FALSE(view().sounds.isOn()); });
    click("Option15");
    then([&](QDialog&) { EXPECT_TRUE(view().sounds.isOn()); });

    click("Option10", Qt::RightButton); // selects nothing, yet it is a release over it
    then([&](QDialog&) {
        EXPECT_EQ(settings().dropDelay, 0);
        flow().releaseDeveloperKey(DeveloperKey::Home);
    });
    click("Option10");
    then([&](QDialog&) { EXPECT_EQ(settings().dropDelay, 250); });
    click("Option11");
    click("Option10");
    then([&](QDialog&) { EXPECT_EQ(settings().dropDelay, 0) << "stays until something else sets it"; });

    click("Check1");
    click("Option13");
    then([&](QDialog&) { EXPECT_EQ(settings().strategy, Strategy::LongestWord); });
    click("Option14");
    click("Check1");
    click("Option12"); // greyed now
    then([&](QDialog&) { EXPECT_EQ(settings().strategy, Strategy::Any); });

    click("Option2");
    then([&](QDialog& dialog) {
        EXPECT_TRUE(dialog.findChild<QWidget*>("GetUserDictName")->isEnabled());
        EXPECT_EQ(view().dictionary.level(), 0);
    });
    for (const char* const option : {"Option3", "Option4", "Option5"}) {
        click(option);
        then([this, option](QDialog& dialog) {
            EXPECT_FALSE(dialog.findChild<QWidget*>("GetUserDictName")->isEnabled());
            EXPECT_EQ(view().dictionary.level(), option[6] - '2');
        });
    }
    openAndStart();
}

// Guards players without a mouse: a key that chooses does what the mouse does; Esc ends no program, but closing the
// dialog does.
TEST_F(OptionsDialogTest, AKeyboardChoiceIsAMouseChoice)
{
    then([&](QDialog& dialog) {
        EXPECT_EQ(QApplication::focusWidget(), dialog.findChild<QWidget*>("Startx"));
        auto* const on = dialog.findChild<QWidget*>("Option15");
        on->setFocus();
        QTest::keyClick(on, Qt::Key_Down);
        EXPECT_TRUE(view().options.Option16.Value && !view().options.Option15.Value);
        EXPECT_FALSE(view().sounds.isOn());
        QTest::keyClick(dialog.findChild<QWidget*>("Check1"), Qt::Key_Space);
        EXPECT_TRUE(dialog.findChild<QWidget*>("Option14")->isEnabled());
        QTest::keyClick(dialog.findChild<QWidget*>("Check1"), Qt::Key_Space);
        QTest::keyClick(&dialog, Qt::Key_Escape);
        EXPECT_TRUE(dialog.isVisible());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    });
    flow().openOptionsAndStart();
    EXPECT_FALSE(view().sounds.isOn());
    then([](QDialog& dialog) { dialog.close(); });
    script.box("Scores File not found - will create a new one");
    flow().openOptionsAndStart();
    EXPECT_TRUE(flow().ended());
}

// Guards the dialogs over this one: the input box with its texts and the answer that it keeps, the file dialog, whose
// choice stands in the box, and that Cancel changes nothing in either.
TEST_F(OptionsDialogTest, PresetLettersAndTheUserDictionaryAreAskedFor)
{
    click("PSBoard").answer("quiz").box("enter 96 more letters");
    script.in("QInputDialog", [](QDialog& dialog) {
        auto& box = dynamic_cast<QInputDialog&>(dialog);
        EXPECT_EQ(box.windowTitle(), "Preset Letters");
        EXPECT_EQ(box.labelText(), "Enter 100 letters A to Z in any sequence");
        EXPECT_EQ(box.textValue(), "quiz");
        box.setTextValue(QString(100, 'q'));
        box.accept();
    });
    script.box("Tiles preset, press Start to commence game");
    click("PSBoard").in("QInputDialog", [](QDialog& dialog) { dialog.reject(); });

    folder.write("mine.dic", "CAT\r\n");
    const QString file = QString::fromStdString(folder.file("mine.dic"));
    click("Option2");
    click("GetUserDictName").in("QFileDialog", [&](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Select User Dictionary file to open");
        dialog.findChild<QLineEdit*>("fileNameEdit")->setText(file);
        dialog.accept();
    });
    click("GetUserDictName").in("QFileDialog", [](QDialog& dialog) { dialog.reject(); });
    then([&](QDialog& dialog) {
        EXPECT_EQ(dialog.findChild<QLineEdit*>("UsrDictName")->text(), file);
        EXPECT_EQ(dialog.findChild<QLineEdit*>("UsrDictName")->toolTip(), file);
    });
    openAndStart();
    EXPECT_EQ(letter(2), "Q");
    EXPECT_EQ(view().dictionary.words.count(), 1);
}

// Guards the look of all windows: the scheme chosen in the box colours them at once.
TEST_F(OptionsDialogTest, ASchemeChosenColoursEveryWindow)
{
    then([&](QDialog& dialog) {
        auto& box = *dialog.findChild<QComboBox*>("Combo1");
        EXPECT_EQ(box.currentText(), "Default.sch");
        QTest::keyClick(&box, Qt::Key_Down);
        EXPECT_EQ(view().scheme.currentName, "Night.sch");
        const QColor background = toQColor(view().scheme.plain(scheme_entry::background));
        EXPECT_EQ(dialog.palette().color(QPalette::Window), background);
        EXPECT_EQ(box.palette().color(QPalette::Base), toQColor(view().scheme.plain(scheme_entry::wordList)));
        EXPECT_EQ(painted(window(), {window().width() - 3, window().height() / 2}), background);
    });
    openAndStart();
}

} // namespace
} // namespace lexigrove
