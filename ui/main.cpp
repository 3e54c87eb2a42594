#include "platform/program_folder.hpp"
#include "ui/first_start.hpp"
#include "ui/front_end.hpp"
#include "ui/machine/console_instead.hpp"
#include "ui/machine/one_game.hpp"
#include "ui/start_options.hpp"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

#include <cstdio>
#include <optional>

namespace
{

using namespace lexigrove;

/// Another program plays in the folder already: the player goes to its window, or plays here unkept. False when this
/// program is to end.
bool goesOnBeside(const OneGame& oneGame)
{
    QMessageBox box(QMessageBox::NoIcon, "LexiGrove",
                    "LexiGrove is already open. The game is kept there; one that you play here is not kept.");
    QPushButton* const go = box.addButton("Go to its window", QMessageBox::AcceptRole);
    box.addButton("Play here", QMessageBox::RejectRole);
    box.setEscapeButton(go);
    box.exec();
    return box.clickedButton() != go || !oneGame.showFirst();
}

void comeToFront(QWidget& window)
{
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
}

int play(const StartOptions& options)
{
    const ProgramFolder programFolder(programFolderRequest(options.folder));
    const std::string& folder = programFolder.path();
    const OneGame oneGame(folder);
    if (!oneGame.isFirst() && !goesOnBeside(oneGame))
        return EXIT_SUCCESS;
    if (!programFolder.notice().empty())
        QMessageBox::information(nullptr, "LexiGrove", QString::fromLocal8Bit(programFolder.notice()));
    prepareFirstStart(folder);
    FrontEnd game(folder);
    GameFlow& flow = game.flow;
    MainWindow& window = game.window;
    flow.setKeeping(oneGame.isFirst() ? GameFlow::Keeping::On : GameFlow::Keeping::Off);
    QObject::connect(&oneGame, &OneGame::showRequested, &window, [&] { comeToFront(window); });
    QObject::connect(&window, &MainWindow::ended, qApp, &QApplication::quit, Qt::QueuedConnection);

    flow.startUp(options.arrangement);
    if (flow.ended())
        return EXIT_SUCCESS;
    const auto begin = [&] {
        flow.continueGame();
        if (flow.inGame() || flow.ended())
            return;
        if (options.position)
            flow.playPosition(*options.position);
        else if (options.daily)
            flow.perform(Command::Daily);
        else if (options.startAtOnce)
            flow.startGame();
        else
            flow.openOptionsAndStart();
    };
    // Once the window has its place on the screen, so that a dialog finds its own over it.
    QObject::connect(&window, &MainWindow::painted, &window, begin,
                     static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
    window.show();
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    StartOptions options;
    try {
        options = readStartOptions(argc, argv);
    } catch (const StartOptionError& error) {
        std::fprintf(stderr, "lexigrove: %s\nTry 'lexigrove --help'.\n", error.what());
        return 2;
    }
    if (options.answer) {
        std::fputs(options.answer->c_str(), stdout);
        return EXIT_SUCCESS;
    }
    std::optional<ConsoleInstead> consoleInstead(options);
    QApplication application(argc, argv);
    consoleInstead.reset();
    QApplication::setApplicationName("lexigrove");
    QApplication::setApplicationVersion(LEXIGROVE_VERSION);
    QApplication::setDesktopFileName("lexigrove");
    try {
        return play(options);
    } catch (const ProgramFolderError& error) {
        std::fprintf(stderr, "lexigrove: %s\n", error.what());
        QMessageBox::critical(nullptr, "LexiGrove", QString::fromLocal8Bit(error.what()));
        return EXIT_FAILURE;
    }
}
