#include "platform/leaving.hpp"
#include "ui/look/text.hpp"
#include "ui/machine/event_gate.hpp"
#include "ui/machine/qt_sound_device.hpp"
#include "ui/start_options.hpp"

#include <QDialog>
#include <QElapsedTimer>
#include <QTimer>

#include <gtest/gtest.h>

namespace lexigrove
{

namespace
{

// Guards texts on their way through the window: every byte must come back, and each character that the game's text
// cannot hold becomes a question mark.
TEST(Text, IsWindows1252)
{
    for (int byte = 0; byte < 256; ++byte) {
        const std::string text(1, static_cast<char>(byte));
        EXPECT_EQ(fromQString(toQString(text)), text) << byte;
    }
    EXPECT_EQ(toQString("\x80\x93\xE9"), QStringLiteral("\u20AC\u201C\u00E9"));
    EXPECT_EQ(fromQString(QStringLiteral("e\u0301\u0416\U0001F600x")), "\xE9??x");
    EXPECT_EQ(onOneLine("CAT\r\nFound"), QStringLiteral("CAT \u2013 Found"));
    EXPECT_EQ(pathFromQString(pathToQString("/tmp/\xC3\xA9")), "/tmp/\xC3\xA9");
}

// Guards the way of an exception through two nested dialogs: none may cross an event loop, and the outer dialog must
// close and hand it on.
TEST(EventGate, CarriesLeavingThroughNestedDialogs)
{
    EventGate gate;
    QDialog outer;
    bool innerThrew = false;
    QTimer::singleShot(0, &outer, [&] {
        gate.run([&] {
            QDialog inner;
            QTimer::singleShot(0, &inner, [&] { gate.requestLeaving(); });
            try {
                gate.exec(inner);
            } catch (const Leaving&) {
                innerThrew = true;
                throw;
            }
        });
    });
    EXPECT_THROW(gate.exec(outer), Leaving);
    EXPECT_TRUE(innerThrew);
    EXPECT_FALSE(outer.isVisible());
    EXPECT_FALSE(gate.isWaiting());
    EXPECT_NO_THROW(gate.checkpoint()) << "told once";
}

TEST(EventGate, ShowsNoDialogToSomebodyWhoLeaves)
{
    EventGate gate;
    gate.requestLeaving();
    QDialog dialog;
    EXPECT_THROW(gate.exec(dialog), Leaving);
    EXPECT_FALSE(gate.takeRequest());
}

// Guards the game from the machine's sound: no file, no device and no module may cost time or say anything.
TEST(Sound, IsSilentAndQuickWithoutAFile)
{
    EXPECT_EQ(fileToPlay("play /a folder/beep3.wav"), "/a folder/beep3.wav");
    EXPECT_EQ(fileToPlay("stop /a"), "");
    testing::internal::CaptureStderr();
    {
        QtSoundDevice device;
        for (int i = 0; i < 100; ++i)
            device.send("play /no such folder/beep3.wav");
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

// Guards the command line: a slip must be reported, not ignored.
TEST(StartOptions, AreRead)
{
    const StartOptions options =
        readStartOptions({"lexigrove", "--folder=/a b", "--arrangement", "Staggered", "--start"});
    EXPECT_EQ(options.folder, "/a b");
    EXPECT_EQ(options.arrangement, Arrangement::Staggered);
    EXPECT_TRUE(options.startAtOnce);
    for (const QStringList& wrong :
         {QStringList{"--folder"}, QStringList{"--arrangement", "round"}, QStringList{"--strat"}, QStringList{"x"}})
        EXPECT_THROW(static_cast<void>(readStartOptions(QStringList("lexigrove") + wrong)), StartOptionError)
            << wrong.join(' ').toStdString();
    const std::array<const char*, 2> arguments{"lexigrove", "--version"};
    EXPECT_EQ(answerWithoutWindow(2, arguments.data()), "LexiGrove " LEXIGROVE_VERSION "\n");
}

} // namespace

} // namespace lexigrove
