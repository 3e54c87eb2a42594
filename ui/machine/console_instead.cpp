#include "ui/machine/console_instead.hpp"

#include <QStringList>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <unistd.h>
#include <vector>

namespace lexigrove
{

namespace
{

std::vector<std::string> consoleCommand; // the program and its arguments
QStringList messages;

[[noreturn]] void becomeConsole()
{
    std::fprintf(
        stderr,
        "There is no display that can be opened%s: starting lexigrove-console, the game's line by line version, "
        "in place of the window.\n",
        messages.isEmpty() ? "" : qPrintable(" (" + messages.first() + ")"));
    std::vector<char*> arguments;
    arguments.reserve(consoleCommand.size() + 1);
    for (std::string& argument : consoleCommand)
        arguments.push_back(argument.data());
    arguments.push_back(nullptr);
    execv(arguments.front(), arguments.data());
    std::perror(arguments.front());
    std::_Exit(EXIT_FAILURE);
}

void hear(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (type == QtFatalMsg)
        becomeConsole();
    messages += qFormatLogMessage(type, context, text);
}

} // namespace

ConsoleInstead::ConsoleInstead(const StartOptions& options)
{
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe");
    consoleCommand = {program.parent_path() / "lexigrove-console"};
    if (options.folder)
        consoleCommand.insert(consoleCommand.end(), {"--folder", *options.folder});
    if (options.position)
        consoleCommand.insert(consoleCommand.end(), {"--position", textOf(*options.position)});
    qInstallMessageHandler(hear);
}

ConsoleInstead::~ConsoleInstead()
{
    qInstallMessageHandler(nullptr);
    for (const QString& message : messages)
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

} // namespace lexigrove
