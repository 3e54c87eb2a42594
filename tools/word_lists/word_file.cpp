#include "tools/word_lists/word_file.hpp"

#include "platform/text_file.hpp"
#include "tools/word_lists/scowl.hpp"

#include <sstream>
#include <stdexcept>

namespace lexigrove::tools
{

std::vector<std::string> readOwnWords(const std::string& path)
{
    std::vector<std::string> words;
    const auto fault = [&path](const std::string& word) {
        return std::runtime_error("\"" + word + "\" in " + path + " is no word in lower case.");
    };
    for (const std::string& line : readLines(path)) {
        if (line.starts_with("# "))
            continue;
        std::istringstream text(line);
        for (std::string word; text >> word;) {
            if (!isPlainWord(word))
                throw fault(word);
            words.push_back(word);
        }
    }
    return words;
}

} // namespace lexigrove::tools
