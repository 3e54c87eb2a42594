#include "platform/leaving.hpp"
#include "ui/look/text.hpp"
#include "ui/machine/event_gate.hpp"
#include "ui/machine/qt_sound_device.hpp"
#include "ui/start_options.hpp"

#include <QDialog>
#include <QProcess>
#include <QTimer>

#include <algorithm>
#include <array>
#include <gtest/gtest.h>

namespace lexigrove
{

namespace
{

// Guards texts on their way through the window: every byte must come back, and what the game's text does not hold is
// told by a question mark each.
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

/// What the real program answers on a machine without a display.
std::pair<int, QByteArray> answerTo(const QStringList& arguments)
{
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* display : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(display);
    program.setProcessEnvironment(environment);
    program.start(LEXIGROVE_PROGRAM, arguments);
    EXPECT_TRUE(program.waitForFinished()) << program.errorString().toStdString();
    return {program.exitCode(), program.readAllStandardOutput() + program.readAllStandardError()};
}

// Guards the command line: a slip must be told, not passed over, and on a machine without a display, too.
TEST(StartOptions, AreReadBeforeADisplayIsLookedFor)
{
    const std::pair<int, QByteArray> version{0, "LexiGrove " LEXIGROVE_VERSION "\n"};
    EXPECT_EQ(answerTo({"--version"}), version);
    EXPECT_EQ(answerTo({"-platform", "offscreen", "--start", "--version"}), version);
    const auto [status, help] = answerTo({"--help"});
    EXPECT_TRUE(status == 0 && help.contains("--folder <DIR>") && !help.contains("platformpluginpath")) << help.data();
    for (const QStringList& wrong :
         {QStringList{"--folder"}, QStringList{"--arrangement", "round"}, QStringList{"--strat"}, QStringList{"x"}}) {
        const auto [failure, text] = answerTo(wrong);
        EXPECT_TRUE(failure == 2 && text.contains(wrong.back().section('-', -1).toUtf8()) &&
                    text.endsWith("\nTry 'lexigrove --help'.\n"))
            << text.data();
    }
    std::array<char*, 5> arguments{};
    std::array<std::string, 5> texts{"lexigrove", "--folder=/a b", "--arrangement", "Staggered", "--start"};
    std::transform(texts.begin(), texts.end(), arguments.begin(), [](std::string& text) { return text.data(); });
    const StartOptions options = readStartOptions(5, arguments.data());
    EXPECT_EQ(options.folder, "/a b");
    EXPECT_EQ(options.arrangement, Arrangement::Staggered);
    EXPECT_TRUE(options.startAtOnce);
}

} // namespace

} // namespace lexigrove
