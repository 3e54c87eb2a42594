#include "tests/ui/dialog_script.hpp"
#include "tests/ui/played_window.hpp"
#include "ui/pages/browser_view.hpp"

#include <QPushButton>
#include <QTcpServer>
#include <QTcpSocket>
#include <QWebEngineView>

#include <algorithm>
#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace lexigrove
{

namespace
{

/// A web server on this machine. It answers every path with the page set for it, else with one that names the path, and
/// records the requests.
class Server
{
public:
    Server()
    {
        EXPECT_TRUE(server_.listen(QHostAddress::AnyIPv4));
        QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] {
            QTcpSocket* const socket = server_.nextPendingConnection();
            QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] { answer(*socket); });
            QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        });
    }

    [[nodiscard]] std::string host(const std::string& address = "127.0.0.1") const
    {
        return "http://" + address + ":" + std::to_string(server_.serverPort());
    }

    std::vector<std::string> asked;           ///< path and query of each request
    std::vector<std::string> cookies;         ///< sent with each of them
    std::map<std::string, std::string> pages; ///< by path: further header lines, an empty line and the page

private:
    void answer(QTcpSocket& socket)
    {
        if (!socket.canReadLine())
            return;
        const QByteArray request = socket.readAll();
        asked.push_back(request.split(' ').at(1).toStdString());
        const qsizetype cookie = request.indexOf("\r\nCookie:");
        cookies.push_back(cookie < 0 ? "" : request.mid(cookie + 2).split('\r').at(0).toStdString());
        const auto page = pages.find(asked.back());
        const std::string body = page != pages.end() ? page->second : "\r\n<p>The page of " + asked.back() + "</p>";
        socket.write(
            QByteArray::fromStdString("HTTP/1.1 200 OK\r\nContent-Type: text/html\r\nConnection: close\r\n" + body));
        socket.disconnectFromHost();
    }

    QTcpServer server_;
};

/// The text of the page shown, once it contains the awaited one.
std::string pageText(QWidget& window, const QString& awaited)
{
    const auto text = std::make_shared<QString>(); // an answer may come after the wait
    (void)QTest::qWaitFor(
        [&] {
            if (auto* const view = window.findChild<QWebEngineView*>(); view != nullptr)
                view->page()->toPlainText([text](const QString& shown) { *text = shown; });
            QTest::qWait(20);
            return text->contains(awaited);
        },
        20'000);
    return text->toStdString();
}

bool enginePageExists()
{
    for (const QWidget* widget : QApplication::allWidgets())
        if (qobject_cast<const QWebEngineView*>(widget) != nullptr)
            return true;
    return false;
}

/// The game with the meaning services on this machine.
class BrowserTest : public testing::Test
{
protected:
    BrowserTest()
    {
        const std::string host = server_.host() + "\r\n";
        folder_.write("MeaningServices.txt", host + host + host + host);
        game_.emplace(folder_.path());
        game_->window.input([this] { game_->flow.startUp(); });
        game_->window.show();
    }

    GameFlow& flow() { return game_->flow; }

    void showMeaning(const std::string& word)
    {
        game_->window.input([&] { flow().asInput([&] { flow().meanings.showMeaning(word); }); });
    }

    Server server_;
    ProgramFolder folder_;
    std::optional<FrontEnd> game_;
    Script script_;
};

// Guards the four address templates down to the wire: each service is asked for exactly its path and query, and for
// nothing else, the page is shown, and closing the window ends it.
TEST_F(BrowserTest, EachServiceIsAskedForItsPage)
{
    OptionsForm& options = flow().options;
    const std::vector<std::pair<Choice*, std::string>> services{
        {&options.Option6, "/cgi-bin/dict.pl?term=CAT"},
        {&options.Option7, "/CAT"},
        {&options.Option8, "/cgi-bin/dictionary?book=Dictionary&va=CAT"},
        {&options.Option9, "/foldoc/foldoc.cgi?query=CAT&action=Search"},
    };
    for (const auto& [option, path] : services) {
        options.select(*option);
        flow().startGame();
        server_.asked.clear();
        script_.in("Form3", [&, page = path](QDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), "CAT");
            EXPECT_EQ(pageText(dialog, "The page"), "The page of " + page);
            EXPECT_EQ(dialog.findChild<BrowserView*>("WbDictionary")->size(), dialog.size());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        });
        showMeaning("CAT");
        EXPECT_EQ(server_.asked, std::vector<std::string>{path});
        EXPECT_FALSE(enginePageExists());
    }
}

// Guards the machine against the pages: no question, no window, no other host, and nothing is remembered.
TEST_F(BrowserTest, APageReachesNothingBeyondItself)
{
    const std::string stranger = server_.host("127.0.0.2"); // also this server, but a host that pages may not use
    server_.pages["/CAT"] = "Set-Cookie: seen=yes; Max-Age=9999\r\n\r\n<p>A page</p><img src='" + stranger +
                            "/picture'><iframe src='" + stranger +
                            "/frame'></iframe><script>alert(1); confirm(2);"
                            "window.open('/popup'); setTimeout(() => { document.title = 'over'; location.href = '" +
                            stranger + "/page'; }, 100); fetch('/script').then(() => fetch('" + stranger +
                            "/fetched'));"
                            "</script>";
    flow().startGame();
    for (int showing = 1; showing <= 2; ++showing) {
        server_.asked.clear();
        server_.cookies.clear();
        script_.in("Form3", [&](QDialog& dialog) {
            pageText(dialog, "A page");
            const auto* view = dialog.findChild<QWebEngineView*>();
            EXPECT_TRUE(QTest::qWaitFor([&] { return view->title() == "over"; }, 10'000));
            QTest::qWait(300);
            const QWidgetList windows = QApplication::topLevelWidgets();
            EXPECT_EQ(std::count_if(windows.begin(), windows.end(), [](QWidget* w) { return w->isVisible(); }), 2);
            dialog.close();
        });
        showMeaning("CAT");
        EXPECT_EQ(server_.asked, (std::vector<std::string>{"/CAT", "/script"}));
        EXPECT_EQ(server_.cookies, (std::vector<std::string>{"", "Cookie: seen=yes"})) << "showing " << showing;
    }
}

// Guards the end: closing the main window below a page, with the help beside it, leaves no page of the engine behind.
TEST_F(BrowserTest, LeavingEndsThePages)
{
    flow().options.settings.presetLetters = Letters().text(); // no score to offer
    game_->window.input([this] { flow().startGame(); });
    game_->window.input([this] { flow().showHelp(); });
    script_.in("Form3", [&](QDialog& dialog) {
        pageText(dialog, "The page");
        game_->window.close();
    });
    showMeaning("CAT");
    EXPECT_TRUE(flow().ended());
    EXPECT_FALSE(dialogIsOpen());
    game_.reset();
    EXPECT_FALSE(enginePageExists());
}

/// The help window.
class HelpTest : public BrowserTest
{
protected:
    HelpTest()
    {
        folder_.write("lexigrove.htm",
                      "<body style='margin: 0'><a href='#two' style='font-size: 60px'>Go to two</a>"
                      "<p style='height: 2000px'><a id='two' href='#three' style='font-size: 60px'>Two, to three</a>"
                      "<p style='height: 2000px'><a id='three' style='font-size: 60px'>Three</a>"
                      "<p style='height: 2000px'>");
    }

    QWidget* showHelp()
    {
        game_->window.input([this] { flow().showHelp(); });
        for (QWidget* window : QApplication::topLevelWidgets())
            if (window->objectName() == "Form5")
                return window;
        return nullptr;
    }
    static std::string anchor(const QWidget& help)
    {
        return help.findChild<BrowserView*>("WebBrowser1")->address().fragment().toStdString();
    }
    static bool comesTo(const QWidget& help, const std::string& wanted)
    {
        return QTest::qWaitFor([&] { return anchor(help) == wanted; }, 5'000);
    }
    static void press(QWidget& help, const char* button)
    {
        QTest::mouseClick(help.findChild<QPushButton*>(button), Qt::LeftButton);
        QTest::qWait(150); // a chance for what must not happen
    }
    /// Clicks in the upper left corner of the page, where each anchor's link is.
    static void clickPage(QWidget& help)
    {
        QTest::qWait(300); // a scrolled page accepts a click once it is painted
        QTest::mouseClick(help.findChild<QWebEngineView*>()->focusProxy(), Qt::LeftButton, {}, {40, 40});
    }
};

// Guards Back and Forward, which only move between the places of the page.
TEST_F(HelpTest, BackAndForwardMoveBetweenTheAnchors)
{
    QWidget* const help = showHelp();
    ASSERT_NE(help, nullptr);
    ASSERT_NE(pageText(*help, "Go to two"), "");
    EXPECT_EQ(help->windowTitle(), "LexiGrove Help");
    press(*help, "Command1");
    EXPECT_EQ(anchor(*help), "");

    clickPage(*help);
    ASSERT_TRUE(comesTo(*help, "two"));
    clickPage(*help);
    ASSERT_TRUE(comesTo(*help, "three"));
    press(*help, "Command1");
    EXPECT_TRUE(comesTo(*help, "two"));
    press(*help, "Command2");
    EXPECT_TRUE(comesTo(*help, "three"));
    press(*help, "Command1");
    press(*help, "Command1");
    EXPECT_TRUE(comesTo(*help, ""));
    press(*help, "Command2");
    EXPECT_EQ(anchor(*help), "") << "an address without an anchor leads nowhere";
}

// Guards the help beside the game: a modal window does not block it, coming to the front shows the page from its
// beginning, and Exit ends the page.
TEST_F(HelpTest, ItStaysUsableBesideTheGame)
{
    QWidget* const help = showHelp();
    ASSERT_NE(help, nullptr);
    pageText(*help, "Go to two");
    clickPage(*help);
    ASSERT_TRUE(comesTo(*help, "two"));
    game_->window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&game_->window));
    help->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(help));
    EXPECT_TRUE(comesTo(*help, ""));

    script_.in("AboutForm", [&](QDialog& dialog) {
        press(*help, "Command3");
        EXPECT_FALSE(help->isVisible());
        EXPECT_FALSE(enginePageExists());
        EXPECT_TRUE(dialog.isVisible());
        dialog.close();
    });
    game_->window.input([this] { flow().showAbout(); });

    EXPECT_EQ(showHelp(), help);
    EXPECT_NE(pageText(*help, "Go to two"), "");
}

TEST_F(HelpTest, AMissingPageIsTheEnginesToTell)
{
    std::filesystem::remove(folder_.file("lexigrove.htm"));
    QWidget* const help = showHelp();
    ASSERT_NE(help, nullptr);
    const std::string text = pageText(*help, "ERR_FILE_NOT_FOUND");
    EXPECT_NE(text.find("ERR_FILE_NOT_FOUND"), std::string::npos) << text;
}

} // namespace

} // namespace lexigrove
