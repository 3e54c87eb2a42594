#include "dictionary/level_lists.hpp"

#include "dictionary/maintained_format.hpp"
#include "platform/text_file.hpp"

#include <filesystem>
#include <stdexcept>

namespace lexigrove
{

const WordList& LevelLists::level(int level)
{
    return read("L" + std::to_string(level) + "Ascii.txt");
}

const WordList& LevelLists::own(int ownLevel, const std::string& userDictionary)
{
    return ownLevel == 0 ? read(userDictionary) : level(ownLevel);
}

/// A relative name lies in the program folder.
const WordList& LevelLists::read(const std::string& name)
{
    const auto [entry, isNew] = lists_.try_emplace(name);
    if (isNew) {
        try {
            const std::string path = std::filesystem::path(name).is_absolute() ? name : folder_ + name;
            entry->second = wordsIn(readFile(path));
        } catch (const std::exception&) { // no file, or too much of it: no words
            return entry->second;
        }
    }
    return entry->second;
}

} // namespace lexigrove
