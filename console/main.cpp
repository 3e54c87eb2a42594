#include "console/command_line.hpp"
#include "console/console.hpp"
#include "platform/program_folder.hpp"

#include <clocale>
#include <exception>
#include <iostream>
#include <unistd.h>

namespace
{

constexpr int badOptionStatus = 2;

int play(const lexigrove::CommandLine& options)
{
    const lexigrove::ProgramFolder folder(lexigrove::programFolderRequest(options.folder));
    if (!folder.notice().empty())
        std::cerr << "lexigrove-console: " << folder.notice() << '\n';
    if (isatty(STDIN_FILENO) != 0) {
        std::cerr << "LexiGrove " << LEXIGROVE_VERSION
                  << ": \"new_game\" starts a game, \"show\" shows it, \"help\" says more.\n";
    }
    lexigrove::Console console(folder.path(), options.timeOfDay, std::cin, std::cout);
    console.run(options.position);
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    std::setlocale(LC_TIME, ""); // the short forms of date and time
    std::ios::sync_with_stdio(false);
    std::cin.tie(nullptr); // the console flushes before it reads
    try {
        lexigrove::CommandLine options;
        try {
            options = lexigrove::readCommandLine(argc, argv);
        } catch (const lexigrove::BadOption& error) {
            std::cerr << "lexigrove-console: " << error.what() << "\nTry \"lexigrove-console --help\".\n";
            return badOptionStatus;
        }
        if (options.help || options.version) {
            std::cout << (options.help ? lexigrove::helpText : std::string("LexiGrove ") + LEXIGROVE_VERSION + "\n");
            return 0;
        }
        try {
            return play(options);
        } catch (const lexigrove::ProgramFolderError& error) {
            std::cerr << "lexigrove-console: " << error.what() << '\n';
            return options.folder ? badOptionStatus : 1;
        }
    } catch (const std::exception& error) {
        std::cerr << "lexigrove-console: " << error.what() << '\n';
        return 1;
    }
}
