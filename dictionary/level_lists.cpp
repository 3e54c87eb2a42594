#include "dictionary/level_lists.hpp"

#include "dictionary/maintained_format.hpp"
#include "platform/text_file.hpp"

#include <filesystem>
#include <stdexcept>
#include <vector>

namespace lexigrove
{

namespace
{

WordList wordsOf(std::string text)
{
    if (!isMaintainedHeader(std::string_view(text).substr(0, text.find_first_of("\r\n"))))
        return WordList::ofLines(std::move(text));
    const MaintainedWords decoded = decodeMaintained(text);
    const std::vector<std::string_view> words(decoded.words.begin(), decoded.words.end());
    return WordList::of(words);
}

} // namespace

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
            entry->second = wordsOf(readFile(path));
        } catch (const std::exception&) { // no file, or too much of it: no words
            return entry->second;
        }
    }
    return entry->second;
}

} // namespace lexigrove
