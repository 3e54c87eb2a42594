// The start of the game's window against the start of an empty Qt main window: from the process's start to the first
// painted frame, and the memory that each holds at rest (the game: with a dealt board and the words of level 2). Then,
// of the game at rest, how often it wakes up, and how long the board of a large screen takes to paint.
//   bench_startup [FOLDER] [ROUNDS]
// FOLDER holds the word lists and colour schemes; by default the build's own. The desktop draws text and loads its
// fonts in both.

#include "ui/front_end.hpp"

#include <QApplication>
#include <QIcon>
#include <QMainWindow>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>
#include <vector>

using namespace lexigrove;

namespace
{

constexpr int restingTime = 800;     ///< milliseconds
constexpr int settlingTime = 2'000;  ///< milliseconds, for what follows a start
constexpr int countingTime = 10'000; ///< milliseconds
constexpr int patience = 20'000;     ///< milliseconds

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

// ---- In the child

/// A line of /proc/self/smaps_rollup in kilobytes.
long memory(const std::string& name)
{
    std::ifstream lines("/proc/self/smaps_rollup");
    std::string line;
    while (std::getline(lines, line)) {
        if (line.starts_with(name + ":"))
            return std::stol(line.substr(name.size() + 1));
    }
    return 0;
}

/// How often this program's threads have waited for something so far.
long wakeUps()
{
    long count = 0;
    for (const auto& thread : std::filesystem::directory_iterator("/proc/self/task")) {
        std::ifstream lines(thread.path() / "status");
        for (std::string line; std::getline(lines, line);) {
            if (line.starts_with("voluntary_ctxt_switches:"))
                count += std::stol(line.substr(line.find(':') + 1));
        }
    }
    return count;
}

/// Milliseconds for the whole board on a screen of 3840 by 2160 pixels: the median of some frames.
double frameTime(QWidget& board)
{
    board.resize(3840, 2160);
    QImage screen(board.size(), QImage::Format_RGB32);
    std::vector<double> times;
    for (int frame = 0; frame < 30; ++frame) {
        QElapsedTimer watch;
        watch.start();
        board.render(&screen);
        times.push_back(static_cast<double>(watch.nsecsElapsed()) / 1e6);
    }
    return median(times);
}

/// Tells the parent when the window has first been painted, and later how much memory it holds at rest.
class Reporter : public QObject
{
public:
    Reporter(QWidget& window, std::function<void()> whenPainted) : whenPainted_(std::move(whenPainted))
    {
        window.installEventFilter(this);
    }

    bool eventFilter(QObject* receiver, QEvent* event) override
    {
        if (event->type() == QEvent::UpdateRequest && !seen_) {
            seen_ = true;
            QTimer::singleShot(0, this, [this] { report(); });
        }
        return QObject::eventFilter(receiver, event);
    }

private:
    void report()
    {
        std::puts("painted");
        std::fflush(stdout);
        whenPainted_();
        QTimer::singleShot(restingTime, this, [] {
            std::printf("%ld %ld\n", memory("Rss"), memory("Pss"));
            std::fflush(stdout);
            std::_Exit(EXIT_SUCCESS);
        });
    }

    std::function<void()> whenPainted_;
    bool seen_ = false;
};

int showEmptyWindow(QApplication& application)
{
    QMainWindow window;
    window.resize(1000, 690);
    const Reporter reporter(window, [] {});
    window.show();
    return application.exec();
}

int showGame(QApplication& application, const std::string& folder)
{
    FrontEnd game(folder);
    game.flow.startUp();
    const Reporter reporter(game.window, [&] { game.flow.startGame(); });
    game.window.show();
    return application.exec();
}

/// The game that nobody plays, with its clock shown.
int restGame(QApplication& application, const std::string& folder)
{
    FrontEnd game(folder);
    game.flow.startUp();
    game.window.show();
    game.flow.startGame();
    QTimer::singleShot(settlingTime, [&] {
        QTimer::singleShot(countingTime, [&, before = wakeUps()] {
            std::printf("%f ", static_cast<double>(wakeUps() - before) * 1000 / countingTime);
            std::printf("%f\n", frameTime(*game.window.findChild<QWidget*>("Picture1")));
            std::fflush(stdout);
            std::_Exit(EXIT_SUCCESS);
        });
    });
    return application.exec();
}

// ---- In the parent

struct Start {
    double painted = 0; ///< milliseconds
    double rss = 0;     ///< megabytes
    double pss = 0;     ///< megabytes, with shared memory divided among its processes
};

Start measure(const QStringList& arguments)
{
    Start start;
    QProcess child;
    child.setProcessChannelMode(QProcess::SeparateChannels);
    QElapsedTimer watch;
    watch.start();
    child.start(QCoreApplication::applicationFilePath(), arguments);
    const bool painted = child.waitForReadyRead(patience);
    start.painted = static_cast<double>(watch.nsecsElapsed()) / 1e6;
    if (!painted || !child.waitForFinished(patience)) {
        std::fputs("The child has shown no window.\n", stderr);
        std::exit(EXIT_FAILURE);
    }
    std::istringstream lines(child.readAllStandardOutput().toStdString());
    std::string word;
    lines >> word >> start.rss >> start.pss;
    start.rss /= 1024;
    start.pss /= 1024;
    return start;
}

void print(const char* what, const std::vector<Start>& empty, const std::vector<Start>& game, double Start::*part)
{
    const auto column = [part](const std::vector<Start>& starts) {
        std::vector<double> values;
        values.reserve(starts.size());
        for (const Start& start : starts)
            values.push_back(start.*part);
        return median(values);
    };
    std::printf("%s: %.1f; an empty window: %.1f; ratio %.2f (goal: at most 1.3)\n", what, column(game), column(empty),
                column(game) / column(empty));
}

/// A program folder with a configuration, so that nothing is asked.
void fill(const QTemporaryDir& folder, const QString& source)
{
    for (const QFileInfo& file : QDir(source).entryInfoList({"L?Ascii.txt", "*.sch", "*.txt"}, QDir::Files))
        QFile::copy(file.filePath(), folder.filePath(file.fileName()));
    std::ofstream stored(folder.filePath("Lexigrove.cfg").toStdString(), std::ios::binary);
    stored << "22 Nov 2026 12:00:00\r\n\r\n3\r\nBLUE\r\nUsrDict.txt\r\nSysDict1.txt\r\nSysDict2.txt\r\nSysDict3.txt\r\n"
              "250\r\n";
    for (const bool on : {false, false, true, false, false, true, false, false, false, true, true, false, true, false})
        stored << (on ? "True\r\n" : "False\r\n");
}

} // namespace

int main(int argc, char** argv)
{
    const std::vector<std::string> arguments(argv, argv + argc);
    if (arguments.size() > 1 && arguments[1].starts_with("--child")) {
        QApplication application(argc, argv);
        if (arguments[1] == "--child-at-rest")
            return restGame(application, arguments[2]);
        return arguments.size() > 2 ? showGame(application, arguments[2]) : showEmptyWindow(application);
    }

    const QCoreApplication application(argc, argv);
    const QString source = arguments.size() > 1 ? QString::fromStdString(arguments[1])
                                                : QCoreApplication::applicationDirPath() + "/../share/lexigrove";
    const int rounds = arguments.size() > 2 ? std::stoi(arguments[2]) : 15;
    const QTemporaryDir folder;
    fill(folder, source);
    qputenv("XDG_STATE_HOME", folder.path().toLocal8Bit()); // the window's place

    std::vector<Start> empty;
    std::vector<Start> game;
    for (int round = 0; round <= rounds; ++round) {
        const Start one = measure({"--child"});
        const Start other = measure({"--child", folder.path() + "/"});
        if (round == 0) // the first start reads the libraries from the disk
            continue;
        empty.push_back(one);
        game.push_back(other);
    }
    std::printf("Medians of %d starts each\n", rounds);
    print("First frame, ms", empty, game, &Start::painted);
    print("At rest, resident MB", empty, game, &Start::rss);
    print("At rest, proportional MB", empty, game, &Start::pss);

    QProcess rest;
    rest.start(QCoreApplication::applicationFilePath(), {"--child-at-rest", folder.path() + "/"});
    rest.waitForFinished(patience);
    std::istringstream figures(rest.readAllStandardOutput().toStdString());
    double wakeUpRate = 0;
    double frame = 0;
    figures >> wakeUpRate >> frame;
    std::printf("Wake-ups a second of the game at rest; figure %.1f (goal: at most 4)\n", wakeUpRate);
    std::printf("Painting the board at 3840x2160, ms; figure %.1f (goal: at most 8)\n", frame);
    return EXIT_SUCCESS;
}
