#include "platform/program_folder.hpp"

#include "platform/installed_files.hpp"
#include "platform/text_file.hpp"

#include <cstdlib>
#include <filesystem>
#include <pwd.h>
#include <system_error>
#include <unistd.h>
#include <utility>

#ifndef LEXIGROVE_INSTALLED_DATA
#define LEXIGROVE_INSTALLED_DATA ""
#endif

namespace lexigrove
{

namespace
{

namespace fs = std::filesystem;

constexpr const char* gameFolder = "lexigrove";
constexpr const char* dataMarker = "L1Ascii.txt"; // present in every folder that holds the game's data

bool holdsData(const fs::path& folder)
{
    std::error_code ignored;
    return fs::is_regular_file(folder / dataMarker, ignored);
}

std::string withTrailingSlash(const fs::path& folder)
{
    std::string text = folder.lexically_normal().string();
    if (!text.ends_with('/'))
        text += '/';
    return text;
}

std::string namedFolder(const std::string& name)
{
    std::error_code error;
    if (!fs::is_directory(name, error))
        throw ProgramFolderError("There is no folder \"" + name + "\".");
    return withTrailingSlash(fs::absolute(name));
}

fs::path installedData(const ProgramFolderRequest& request)
{
    if (!request.executable.empty()) {
        fs::path beside = fs::path(request.executable).parent_path().parent_path() / "share" / gameFolder;
        if (holdsData(beside))
            return beside;
    }
    return !request.installedData.empty() && holdsData(request.installedData) ? request.installedData : "";
}

/// The lines of a FileError's text, joined.
std::string oneLine(std::string text)
{
    for (char& c : text) {
        if (c == '\n' || c == '\r')
            c = ' ';
    }
    return text;
}

fs::path userFolder(const ProgramFolderRequest& request)
{
    if (request.dataHome.starts_with('/'))
        return fs::path(request.dataHome) / gameFolder;
    if (request.home.empty())
        throw ProgramFolderError("There is no home folder to keep the game's files in; name a folder with --folder.");
    return fs::path(request.home) / ".local" / "share" / gameFolder;
}

std::string filledUserFolder(const ProgramFolderRequest& request)
{
    const fs::path folder = userFolder(request);
    const fs::path installed = installedData(request);
    try {
        if (!installed.empty()) {
            if (fs::create_directories(folder))
                placeFirstFiles(installed.string(), folder.string());
            syncInstalledFiles(installed.string(), folder.string());
        }
    } catch (const fs::filesystem_error& error) {
        throw ProgramFolderError("The folder \"" + folder.string() +
                                 "\" cannot be made or filled: " + error.code().message() + ".");
    } catch (const FileError& error) {
        throw ProgramFolderError("The folder \"" + folder.string() + "\" cannot be filled: " + oneLine(error.what()));
    }
    if (!holdsData(folder))
        throw ProgramFolderError("The game's word lists are not installed, and \"" + folder.string() +
                                 "\" does not hold them.");
    return withTrailingSlash(folder);
}

std::string environment(const char* name)
{
    const char* value = std::getenv(name);
    return value != nullptr ? value : "";
}

std::string homeFolder()
{
    std::string home = environment("HOME");
    if (!home.empty())
        return home;
    const passwd* user = getpwuid(getuid());
    return user != nullptr && user->pw_dir != nullptr ? user->pw_dir : "";
}

} // namespace

ProgramFolderRequest programFolderRequest(std::optional<std::string> folderOption)
{
    std::error_code ignored;
    return {std::move(folderOption), fs::read_symlink("/proc/self/exe", ignored).string(), LEXIGROVE_INSTALLED_DATA,
            environment("XDG_DATA_HOME"), homeFolder()};
}

std::string programFolder(const ProgramFolderRequest& request)
{
    if (request.folderOption)
        return namedFolder(*request.folderOption);
    const fs::path own = fs::path(request.executable).parent_path();
    if (!request.executable.empty() && holdsData(own) && access(own.c_str(), W_OK) == 0)
        return withTrailingSlash(own);
    return filledUserFolder(request);
}

} // namespace lexigrove
