#include "record/saved_game_file.hpp"

#include "platform/text_file.hpp"

#include <filesystem>
#include <system_error>

namespace lexigrove
{

std::optional<std::string> SavedGameFile::read() const
{
    std::error_code failure;
    if (!std::filesystem::exists(path_, failure))
        return std::nullopt;
    constexpr std::size_t most = std::size_t{1} << 20; // a game of 60 words takes about 20,000 bytes
    return readFile(path_, most);
}

bool SavedGameFile::write(const std::string& text, Durability durability) const
{
    try {
        replaceFile(path_, text, durability);
        return true;
    } catch (const FileError&) {
        return false;
    }
}

void SavedGameFile::remove() const
{
    std::error_code failure;
    std::filesystem::remove(path_, failure);
}

std::string SavedGameFile::setAside() const
{
    std::error_code failure;
    const std::filesystem::path path(path_);
    const std::filesystem::path aside = path.parent_path() / "LexigroveGame-damaged.txt";
    std::filesystem::rename(path, aside, failure);
    return (failure ? path : aside).filename().string();
}

} // namespace lexigrove
