// Copies the files of one folder into a program folder and keeps what a player has changed there.

#include "platform/installed_files.hpp"

#include <exception>
#include <filesystem>
#include <iostream>

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::cerr << "Usage: fill-folder SOURCE-FOLDER PROGRAM-FOLDER\n";
        return 2;
    }
    try {
        std::filesystem::create_directories(argv[2]);
        lexigrove::syncInstalledFiles(argv[1], argv[2]);
        return 0;
    } catch (const std::exception& error) {
        std::cerr << error.what() << "\n";
        return 1;
    }
}
