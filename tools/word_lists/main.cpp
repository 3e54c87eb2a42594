// Makes the word lists of the three levels and the notices that their sources require.

#include "platform/text_file.hpp"
#include "tools/word_lists/levels.hpp"
#include "tools/word_lists/word_file.hpp"

#include <array>
#include <exception>
#include <iostream>
#include <string>
#include <vector>

namespace
{

using namespace lexigrove;

constexpr std::array<const char*, 3> levelFiles{"L1Ascii.txt", "L2Ascii.txt", "L3Ascii.txt"};

/// The sources' own notices, complete, one after another.
void writeNotices(const std::string& path, const std::vector<std::string>& notices)
{
    std::vector<std::string> lines{"The word lists L1Ascii.txt, L2Ascii.txt and L3Ascii.txt were made from the works "
                                   "of others, whose notices follow."};
    for (const std::string& notice : notices) {
        const std::vector<std::string> text = readLines(notice);
        lines.insert(lines.end(), {"", std::string(78, '='), ""});
        lines.insert(lines.end(), text.begin(), text.end());
    }
    replaceLines(path, lines);
}

} // namespace

int main(int argc, char** argv)
{
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    if (arguments.size() < 6) {
        std::cerr << "Usage: make-word-lists TARGET-FOLDER OWN-FOLDER SCOWL-FOLDER COUNTS-FILE WORDNET-FOLDER "
                     "NOTICE...\n";
        return 2;
    }
    try {
        const std::string folder = arguments[0] + "/";
        const std::string own = arguments[1] + "/";
        const std::vector<std::string> names = tools::readOwnWords(own + "names.txt");
        const tools::Levels levels = tools::makeLevels({.scowl = tools::readScowl(arguments[2]),
                                                        .counts = tools::readWordCounts(arguments[3]),
                                                        .wordNet = tools::readWordNet(arguments[4]),
                                                        .themes = tools::readOwnWords(own + "themes.txt"),
                                                        .coarse = tools::readOwnWords(own + "coarse.txt"),
                                                        .names = {names.begin(), names.end()}});
        writeNotices(folder + "Words-Notices.txt", {arguments.begin() + 5, arguments.end()});
        for (std::size_t level = 0; level < levels.size(); ++level)
            replaceLines(folder + levelFiles.at(level), levels.at(level));
        return 0;
    } catch (const std::exception& error) {
        std::cerr << error.what() << "\n";
        return 1;
    }
}
