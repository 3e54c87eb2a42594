#include "settings/preset_board.hpp"

#include "platform/ascii.hpp"

#include <algorithm>

namespace lexigrove
{

std::string askForPresetLetters(Dialogs& dialogs, std::size_t count)
{
    const std::string prompt = "Enter " + std::to_string(count) + " letters A to Z in any sequence";
    std::string defaultAnswer;
    for (;;) {
        const std::string typed = dialogs.input("Preset Letters", prompt, defaultAnswer);
        if (typed.empty())
            return {};
        if (typed.find(' ') != std::string::npos)
            continue;
        std::string letters = ascii::upperCase(typed);
        if (letters.size() < count) {
            dialogs.message("enter " + std::to_string(count - letters.size()) + " more letters");
            defaultAnswer = typed;
            continue;
        }
        if (letters.size() > count) {
            dialogs.message("last " + std::to_string(letters.size() - count) + " too many, will be discarded");
            letters.resize(count);
        }
        if (std::all_of(letters.begin(), letters.end(), ascii::isUpper))
            return letters;
        dialogs.message("Only A-Z allowed, please re-enter");
    }
}

} // namespace lexigrove
