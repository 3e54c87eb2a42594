#include "platform/leaving.hpp"
#include "platform/text_file.hpp"
#include "tests/support/temporary_folder.hpp"
#include "ui/dialogs/beside.hpp"
#include "ui/first_start.hpp"
#include "ui/look/text.hpp"
#include "ui/machine/event_gate.hpp"
#include "ui/machine/qt_sound_device.hpp"
#include "ui/pages/browser_view.hpp"
#include "ui/start_options.hpp"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QPalette>
#include <QProcess>
#include <QProcessEnvironment>
#include <QPushButton>
#include <QTextBrowser>

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <string>
#include <utility>

namespace lexigrove
{
namespace
{

// Guards the first start on a dark desktop, and whatever configuration came after it.
TEST(FirstStart, FollowsADarkDesktop)
{
    const TemporaryFolder folder;
    const std::string first = readFile(DATA_FOLDER "first/Lexigrove.cfg");
    const QPalette before = QApplication::palette();
    for (const bool dark : {true, false}) {
        QApplication::setPalette(dark ? QColor(40, 40, 40) : QColor(240, 240, 240));
        for (const std::string& text : {first, "11/23/26" + first.substr(first.find('\r'))}) {
            folder.write("Lexigrove.cfg", text);
            prepareFirstStart(folder.path());
            EXPECT_EQ(folder.read("Lexigrove.cfg").find("Night.sch") != std::string::npos, dark && text == first);
        }
        QApplication::setPalette(before);
    }
}

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

// Guards a window that is closed where nothing could tell of it: no dialog comes up afterwards.
TEST(EventGate, ShowsNoDialogToSomebodyWhoLeaves)
{
    EventGate gate;
    gate.requestLeaving();
    QDialog dialog;
    EXPECT_THROW(gate.exec(dialog), Leaving);
    EXPECT_FALSE(gate.takeRequest()) << "told once";
}

// Guards the game from the machine's sound: no file, no device and no module may cost time or say anything.
TEST(Sound, IsSilentAndQuickWithoutAFile)
{
    EXPECT_EQ(fileToPlay("play /a folder/beep3.wav"), "/a folder/beep3.wav");
    testing::internal::CaptureStderr();
    {
        QtSoundDevice device;
        for (int i = 0; i < 100; ++i)
            device.send("play /no such folder/beep3.wav");
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

// Guards windows at the edge of the screen and on small screens.
TEST(Beside, AWindowStandsBesideWhatStaysInSight)
{
    const QRect screen(0, 0, 1000, 700);
    EXPECT_EQ(beside({0, 50, 500, 500}, {300, 500}, screen), QRect(515, 50, 300, 500));
    EXPECT_EQ(beside({450, 50, 500, 500}, {300, 500}, screen), QRect(134, 50, 300, 500)) << "no room at the right";
    EXPECT_EQ(beside({100, 50, 800, 500}, {300, 500}, screen), QRect(700, 50, 300, 500)) << "nor at the left";
    EXPECT_EQ(beside({0, 400, 500, 500}, {300, 500}, screen), QRect(515, 200, 300, 500));
}

// Guards the rules of the page views: what is not named is refused.
TEST(BrowserRules, OnlyWhatAViewIsForIsAllowed)
{
    const TemporaryFolder folder;
    for (const char* name : {"lexigrove.htm", "board.png", "Lexigrove.cfg"})
        folder.write(name, "");
    std::filesystem::create_symlink("/etc/passwd", folder.file("link.png"));
    const auto local = [&](const std::string& name) {
        return QUrl::fromLocalFile(QString::fromStdString(folder.file(name)));
    };
    const auto page = [](const BrowserRules& rules, const QUrl& url) { return rules.allows({url, url, true, false}); };
    const auto part = [](const BrowserRules& rules, const QUrl& url, const QUrl& of) {
        return rules.allows({url, of, false, true});
    };
    const QUrl far("https://words.example/");
    const QUrl near("http://127.0.0.1:80/");

    const BrowserRules services = BrowserRules::forServices("https://words.example");
    EXPECT_TRUE(page(services, far));
    EXPECT_TRUE(part(services, QUrl("https://other.example/a.png"), far));
    EXPECT_TRUE(part(services, QUrl("data:image/png;base64,AA"), far));
    EXPECT_TRUE(part(services, near, near));
    for (const char* refused : {"http://words.example/", "http://localhost.example/", "ftp://words.example/",
                                "data:text/html,x", "chrome://settings", "javascript:alert(1)", "file:///etc/passwd"})
        EXPECT_FALSE(page(services, QUrl(refused))) << refused;
    EXPECT_FALSE(page(services, near));
    EXPECT_FALSE(part(services, near, far)) << "a page of the network does not reach into the machine";
    EXPECT_FALSE(part(services, local("board.png"), far));
    const BrowserRules servicesHere = BrowserRules::forServices("http://localhost:80");
    EXPECT_TRUE(page(servicesHere, near) && page(servicesHere, QUrl("http://localhost/")));

    const BrowserRules help = BrowserRules::forLocalPage(QString::fromStdString(folder.file("lexigrove.htm")));
    QUrl anchor = local("lexigrove.htm");
    anchor.setFragment("rules");
    EXPECT_TRUE(page(help, anchor) && part(help, local("board.png"), anchor));
    EXPECT_FALSE(page(help, far) || part(help, far, anchor));
    EXPECT_FALSE(page(help, local("Lexigrove.cfg")) || part(help, local("Lexigrove.cfg"), anchor));
    EXPECT_FALSE(part(help, local("link.png"), anchor)) << "a link that leads out of the folder";
}

// Guards players whose engine is not installed: the window says so and offers the system's browser.
TEST(PageView, WithoutTheEngineTheViewSaysSo)
{
    const TemporaryFolder empty;
    BrowserLoader loader({}, {QString::fromStdString(empty.path())});
    BrowserView view(loader, BrowserRules::forServices("https://words.example"));
    view.navigate(QUrl("https://words.example/CAT"));
    const QString text = view.findChild<QLabel*>("Failure")->text();
    EXPECT_TRUE(text.contains("https://words.example/CAT") && text.contains("not installed")) << text.toStdString();
    EXPECT_TRUE(view.findChild<QPushButton*>("SystemBrowser")->isVisibleTo(&view));
    view.navigate(QUrl::fromLocalFile(DATA_FOLDER "lexigrove.htm"));
    EXPECT_TRUE(view.findChild<QTextBrowser*>()->toPlainText().contains("How to play in a minute"));
    view.close();

    empty.write("lexigrove-browser.so", "no module at all");
    view.navigate(QUrl("https://words.example/CAT"));
    EXPECT_FALSE(view.findChild<QLabel*>("Failure")->text().contains("not installed"));
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

// Guards the command line: a slip must be reported, not ignored, even on a machine without a display.
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
