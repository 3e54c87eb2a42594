#include "tests/ui/window_test.hpp"
#include "ui/pages/browser_view.hpp"

#include <QClipboard>
#include <QDir>
#include <QProcess>
#include <QSslKey>
#include <QSslServer>
#include <QStandardPaths>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUdpSocket>
#include <QWebEngineView>

#include <algorithm>
#include <gmock/gmock.h>
#include <memory>
#include <set>
#include <vector>

namespace lexigrove
{
namespace
{

/// A web server on the machine itself, which notes what was asked for. It answers "/to/X" with a redirection to "/X" of
/// a stranger, "/password" with the wish for one, and everything else with one page.
class Server
{
public:
    explicit Server(std::unique_ptr<QTcpServer> server = std::make_unique<QTcpServer>()) : server_(std::move(server))
    {
        EXPECT_TRUE(server_->listen(QHostAddress::AnyIPv4));
        QObject::connect(server_.get(), &QTcpServer::pendingConnectionAvailable, server_.get(), [this] {
            QTcpSocket* const socket = server_->nextPendingConnection();
            QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] { answer(*socket); });
            QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        });
    }

    [[nodiscard]] std::string host(const std::string& address = "127.0.0.1") const
    {
        const char* const scheme = qobject_cast<QSslServer*>(server_.get()) != nullptr ? "https://" : "http://";
        return scheme + address + ":" + std::to_string(server_->serverPort());
    }

    /// This server, too, but not a host that pages may have.
    [[nodiscard]] std::string stranger() const { return host("127.0.0.2"); }

    std::vector<std::string> asked;             ///< path and query of each request, and the cookie that came with it
    std::string page = "\r\n<p>The page</p>\n"; ///< further header lines, an empty line and the page

private:
    void answer(QTcpSocket& socket)
    {
        if (!socket.canReadLine())
            return;
        const QByteArray request = socket.readAll();
        const qsizetype cookie = request.indexOf("\r\nCookie:");
        asked.push_back(request.split(' ').at(1).toStdString());
        if (cookie >= 0)
            asked.back() += " " + request.mid(cookie + 2).split('\r').at(0).toStdString();
        if (asked.back().starts_with("/to/"))
            socket.write("HTTP/1.1 307 Elsewhere\r\nAccess-Control-Allow-Origin: *\r\nConnection: close\r\nLocation: " +
                         QByteArray::fromStdString(stranger() + asked.back().substr(3)) + "\r\n\r\n");
        else if (asked.back().starts_with("/password"))
            socket.write("HTTP/1.1 401 Who\r\nWWW-Authenticate: Basic realm=\"all\"\r\nConnection: close\r\n\r\n");
        else
            socket.write("HTTP/1.1 200 OK\r\nContent-Type: text/html\r\nConnection: close\r\n" +
                         QByteArray::fromStdString(page));
        socket.disconnectFromHost();
    }

    std::unique_ptr<QTcpServer> server_;
};

/// A server with a certificate that it wrote itself, in a folder of its own.
std::unique_ptr<QTcpServer> selfCertified(const TemporaryFolder& folder)
{
    const QString key = QString::fromStdString(folder.file("key"));
    const QString certificate = QString::fromStdString(folder.file("certificate"));
    QProcess openssl;
    openssl.start("openssl", {"req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1", "-nodes",
                              "-subj", "/CN=127.0.0.1", "-keyout", key, "-out", certificate});
    EXPECT_TRUE(openssl.waitForFinished() && openssl.exitCode() == 0);
    QFile keyFile(key);
    EXPECT_TRUE(keyFile.open(QFile::ReadOnly));
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setLocalCertificate(QSslCertificate::fromPath(certificate).value(0));
    configuration.setPrivateKey(QSslKey(&keyFile, QSsl::Ec));
    auto server = std::make_unique<QSslServer>();
    server->setSslConfiguration(configuration);
    return server;
}

/// Waits until the page in a window says something.
bool says(const QWidget& window, const QString& text)
{
    const auto found = std::make_shared<bool>(false); // an answer may come after the wait
    const auto look = [&] {
        if (const auto* const view = window.findChild<QWebEngineView*>(); view != nullptr)
            view->page()->toPlainText([=](const QString& shown) { *found = shown.contains(text); });
        QTest::qWait(20);
        return *found;
    };
    return QTest::qWaitFor(look, 20'000);
}

bool enginePageExists()
{
    const QWidgetList all = QApplication::allWidgets();
    return std::any_of(all.begin(), all.end(), [](QWidget* widget) { return qobject_cast<QWebEngineView*>(widget); });
}

/// The game with the meaning services on the machine itself, and with a help page of its own.
class BrowserTest : public WindowTest
{
protected:
    BrowserTest()
    {
        const std::string host = server_.host() + "\r\n";
        folder.write("MeaningServices.txt", host + host + host + host);
        folder.write("lexigrove.htm",
                     "<body style='margin: 0'><a href='#two' style='font-size: 60px'>Go to two</a><img src='" +
                         server_.host() +
                         "/picture'>"
                         "<p style='height: 2000px'><a id='two' href='#three' style='font-size: 60px'>Two, to three</a>"
                         "<p style='height: 2000px'><a id='three' style='font-size: 60px'>Three</a>"
                         "<p style='height: 2000px'>");
    }

    /// The meaning of CAT, which is made in a new game, by a double click.
    void showMeaning()
    {
        start({{9, "QCATS"}});
        enter("cat");
        auto& words = child<WordsView>("WordsMade");
        QTest::mouseClick(words.viewport(), Qt::LeftButton, {}, wordCell(words, 1).center());
        server_.asked.clear();
        QTest::mouseDClick(words.viewport(), Qt::LeftButton, {}, wordCell(words, 1).center());
    }

    QWidget& showHelp()
    {
        press("Helpx");
        const QWidgetList all = QApplication::topLevelWidgets();
        return **std::find_if(all.begin(), all.end(), [](QWidget* window) { return window->objectName() == "Form5"; });
    }

    Server server_;
};

// Guards the way of a word to its page, and the machine against the page: whatever it tries, it reaches nothing but its
// own server, not by a detour either, opens nothing, asks nothing and leaves nothing behind. Closing the window ends
// the page.
TEST_F(BrowserTest, APageReachesNothingBeyondItself)
{
    QUdpSocket calls;
    ASSERT_TRUE(calls.bind(QHostAddress("127.0.0.2")));
    const Server impostor(selfCertified(folder));
    server_.page = "Set-Cookie: seen=yes; Path=/; Max-Age=9999\r\n\r\n<p onclick='take()'>A page</p><input "
                   "type=color><input type=file>"
                   "<script>const stranger = '" +
                   server_.stranger() + "', impostor = '" + impostor.host() + "', file = 'file://" +
                   folder.file("lexigrove.htm") + "', stun = 'stun:127.0.0.2:" + std::to_string(calls.localPort()) +
                   R"(';
        const isLet = (answer) => answer ? answer : Promise.reject();
        const get = (address) => fetch(address, {mode: 'no-cors'});
        const atOnce = [
            ['own', () => get('/own')],
            ['stranger', () => get(stranger + '/fetched')],
            ['detour', () => get('/to/detour')],
            ['detour with a body', () => fetch('/to/detour', {mode: 'no-cors', method: 'POST', body: 'all'})],
            ['false certificate', () => get(impostor)],
            ['file', () => get(file)],
            ['socket', () => new Promise((yes, no) => {
                new WebSocket('ws://' + location.host + '/socket').onerror = no;
            })],
            ['place', () => new Promise((yes, no) => navigator.geolocation.getCurrentPosition(yes, no))],
            ['password', async () => isLet((await get('/password')).ok)],
            ['messages', async () => isLet(await Notification.requestPermission() == 'granted')],
            ['question', async () => isLet(confirm('?') || prompt('?') || alert('?'))],
        ];
        const onClick = [ // one attempt a click, for each uses it up
            ['own', () => get('/own')],
            ['window', async () => { open('/window'); return isLet(false); }],
            ['colour', async () => isLet(document.querySelector('input').showPicker())],
            ['files', async () => isLet(document.querySelectorAll('input')[1].showPicker())],
            ['full screen', () => document.body.requestFullscreen()],
            ['clipboard', async () => isLet(navigator.clipboard?.writeText('stolen'))],
            ['copy', async () => {
                const frame = document.body.appendChild(document.createElement('iframe'));
                for (const place of [document, frame.contentDocument]) {
                    place.body.append('stolen');
                    place.getSelection().selectAllChildren(place.body);
                    await isLet(place.execCommand('copy'));
                }
            }],
            ['download', async () => {
                const link = document.createElement('a');
                link.href = URL.createObjectURL(new Blob(['all']));
                link.download = 'stolen';
                link.click();
                return isLet(false);
            }],
        ];
        async function tell(attempts, done) {
            const answers = await Promise.allSettled(attempts.map(([name, attempt]) => attempt()));
            const reached = attempts.filter((attempt, i) => answers[i].status == 'fulfilled').map(([name]) => name);
            document.title = `${done} ${onClick.length} clicks: ${reached.join(', ') || 'nothing'}`;
        }
        let clicks = 0;
        function take() {
            tell([onClick[clicks]], `${++clicks} of`);
        }
        document.write(`<img src='${stranger}/picture'><iframe src='${stranger}/frame'></iframe><iframe src='${file}'>
            </iframe><img src='/to/detour'><script src='/to/detour'></` + `script><iframe src='/to/detour'></iframe>`);
        for (const place of [stranger + '/page', file])
            setTimeout(() => { location.href = place; }, 100);
        const call = new RTCPeerConnection({iceServers: [{urls: stun}]});
        call.createDataChannel('all');
        call.createOffer().then((offer) => call.setLocalDescription(offer));
        open('/window');
        tell(atOnce, '0 of');
        </script>)";
    QDir downloads(QStandardPaths::writableLocation(QStandardPaths::DownloadLocation));
    chooseOptions([](OptionsForm& options) { options.select(options.Option8); });
    for (int showing = 1; showing <= 2; ++showing) {
        script.in("Form3", [&](QDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), "CAT");
            EXPECT_TRUE(says(dialog, "A page"));
            const auto* view = dialog.findChild<QWebEngineView*>();
            EXPECT_EQ(view->size(), dialog.size());
            QGuiApplication::clipboard()->setText("mine");
            const auto isLet = [&](const std::string& step, const std::string& what) {
                EXPECT_TRUE(QTest::qWaitFor([&] { return view->title().startsWith(step.c_str()); }, 10'000));
                EXPECT_EQ(view->title().toStdString(), step + " of 8 clicks: " + what);
            };
            isLet("0", "own");
            for (int click = 1; click <= 8; ++click) {
                QTest::mouseClick(view->focusProxy(), Qt::LeftButton, {}, {200, 25});
                isLet(std::to_string(click), click == 1 ? "own" : "nothing");
            }
            QTest::qWait(300);
            const QWidgetList windows = QApplication::topLevelWidgets();
            EXPECT_EQ(std::count_if(windows.begin(), windows.end(), [](QWidget* w) { return w->isVisible(); }), 2);
            EXPECT_EQ(QGuiApplication::clipboard()->text(), "mine");
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        });
        showMeaning();
        EXPECT_EQ(server_.asked.front(), "/cgi-bin/dictionary?book=Dictionary&va=CAT");
        const std::set<std::string> asked(server_.asked.begin() + 1, server_.asked.end());
        EXPECT_THAT(asked, testing::ElementsAre("/own Cookie: seen=yes", "/password Cookie: seen=yes",
                                                "/to/detour Cookie: seen=yes"));
        EXPECT_FALSE(calls.hasPendingDatagrams() || downloads.remove("stolen"));
        EXPECT_THAT(impostor.asked, testing::IsEmpty());
        EXPECT_FALSE(enginePageExists());
    }
}

// Guards a window that stays empty without a word, where a page ends because it takes too much memory, or never comes.
TEST_F(BrowserTest, WhatIsNotShownIsExplained)
{
    const std::pair<const char*, const char*> cases[] = {
        {"\r\n<script>for (const all = [];;) all.push(Array(100000).fill(all.length / 3));</script>",
         "The page has stopped working."},
        {"Content-Disposition: attachment\r\n\r\nAll", "The service sends no page that could be shown here."}};
    for (const auto& [page, reason] : cases) {
        server_.page = page;
        script.in("Form3", [expected = reason](QDialog& dialog) {
            const auto* const failure = dialog.findChild<QLabel*>("Failure");
            EXPECT_TRUE(QTest::qWaitFor([&] { return failure->isVisible(); }, 20'000));
            EXPECT_THAT(failure->text().toStdString(), testing::StartsWith(expected));
            EXPECT_FALSE(enginePageExists());
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        showMeaning();
    }
}

// Guards the help window: Back and Forward only move between the places of the page, coming to the front shows it from
// its beginning, a modal window of the game does not block it, and Exit ends the page.
TEST_F(BrowserTest, TheHelpIsReadBesideTheGame)
{
    QWidget& help = showHelp();
    const auto press = [&](const char* button) {
        QTest::mouseClick(help.windowHandle(), Qt::LeftButton, {},
                          help.findChild<QWidget*>(button)->geometry().center());
        QTest::qWait(150); // what must not happen has its chance
    };
    const auto comesTo = [&](const QString& anchor) {
        const auto* const view = help.findChild<BrowserView*>("WebBrowser1");
        return QTest::qWaitFor([&] { return view->address().fragment() == anchor; }, 5'000);
    };
    const auto clickPage = [&] { // its upper left corner, where each anchor's link comes to stand
        QTest::qWait(300);       // a page that has scrolled takes a click when it is painted
        QTest::mouseClick(help.findChild<QWebEngineView*>()->focusProxy(), Qt::LeftButton, {}, {40, 40});
    };
    ASSERT_TRUE(says(help, "Go to two"));
    EXPECT_EQ(help.windowTitle(), "LexiGrove Help");
    clickPage();
    ASSERT_TRUE(comesTo("two"));
    clickPage();
    ASSERT_TRUE(comesTo("three"));
    press("Command1");
    EXPECT_TRUE(comesTo("two"));
    press("Command2");
    EXPECT_TRUE(comesTo("three"));
    press("Command1");
    EXPECT_TRUE(comesTo("two"));
    press("Command1");
    EXPECT_TRUE(comesTo(""));
    press("Command2");
    EXPECT_TRUE(comesTo("")) << "an address without an anchor leads nowhere";

    clickPage();
    ASSERT_TRUE(comesTo("two"));
    for (QWidget* const front : {static_cast<QWidget*>(&window()), &help}) {
        front->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(front));
    }
    EXPECT_TRUE(comesTo(""));
    script.in("AboutForm", [&](QDialog& dialog) {
        press("Command3");
        EXPECT_FALSE(help.isVisible() || enginePageExists());
        dialog.close();
    });
    WindowTest::press("Aboutx");
    EXPECT_TRUE(says(showHelp(), "Go to two"));
    EXPECT_THAT(server_.asked, testing::IsEmpty()) << "the network is none of its business";
}

// Guards the end: the main window closed under a page, with the help beside it, leaves no page of the engine behind. A
// help page that is missing is the engine's to tell.
TEST_F(BrowserTest, LeavingEndsThePages)
{
    std::filesystem::remove(folder.file("lexigrove.htm"));
    EXPECT_TRUE(says(showHelp(), "ERR_FILE_NOT_FOUND"));
    script.in("Form3", [&](QDialog& dialog) {
        EXPECT_TRUE(says(dialog, "The page"));
        window().close();
    });
    showMeaning();
    EXPECT_TRUE(flow().ended());
    game.reset();
    EXPECT_FALSE(enginePageExists());
}

} // namespace
} // namespace lexigrove
