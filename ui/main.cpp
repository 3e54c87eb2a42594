#include "platform/program_folder.hpp"
#include "ui/front_end.hpp"
#include "ui/start_options.hpp"

#include <QApplication>
#include <QIcon>
#include <QMessageBox>
#include <QTimer>

#include <cstdio>

namespace
{

using namespace lexigrove;

int play(const StartOptions& options)
{
    FrontEnd game(programFolder(programFolderRequest(options.folder)));
    GameFlow& flow = game.flow;
    MainWindow& window = game.window;
    QObject::connect(&window, &MainWindow::ended, qApp, &QApplication::quit, Qt::QueuedConnection);

    flow.startUp(options.arrangement);
    if (flow.ended())
        return EXIT_SUCCESS;
    window.show();
    QTimer::singleShot(0, &window, [&] {
        if (options.startAtOnce)
            flow.startGame();
        else
            flow.openOptionsAndStart();
    });
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
    QApplication application(argc, argv);
    QApplication::setApplicationName("lexigrove");
    QApplication::setApplicationVersion(LEXIGROVE_VERSION);
    QApplication::setDesktopFileName("lexigrove");
    QApplication::setWindowIcon(QIcon(":/lexigrove.svg"));
    try {
        return play(options);
    } catch (const ProgramFolderError& error) {
        std::fprintf(stderr, "lexigrove: %s\n", error.what());
        QMessageBox::critical(nullptr, "LexiGrove", QString::fromLocal8Bit(error.what()));
        return EXIT_FAILURE;
    }
}
