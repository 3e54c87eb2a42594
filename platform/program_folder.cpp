#include "platform/program_folder.hpp"

#include "platform/installed_files.hpp"
#include "platform/system.hpp"
#include "platform/text_file.hpp"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
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

fs::path dataBeside(const ProgramFolderRequest& request)
{
    return fs::path(request.executable).parent_path().parent_path() / "share" / gameFolder;
}

fs::path installedData(const ProgramFolderRequest& request)
{
    if (!request.executable.empty() && holdsData(dataBeside(request)))
        return dataBeside(request);
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

/// The game's folder in one of the user's base folders: the one that the environment names, else the one in the home.
fs::path userFolder(const std::string& named, const std::string& home, const char* inHome)
{
    if (named.starts_with('/'))
        return fs::path(named) / gameFolder;
    return home.empty() ? fs::path() : fs::path(home) / inHome / gameFolder;
}

/// Runs the action. Returns what has failed, in words for a sentence; empty if nothing has.
template <typename Action>
std::string failureOf(const Action& action)
{
    try {
        action();
    } catch (const fs::filesystem_error& error) {
        return error.code().message();
    } catch (const FileError& error) {
        return oneLine(error.what());
    }
    return {};
}

std::string environment(const char* name)
{
    const char* value = std::getenv(name);
    return value != nullptr ? value : "";
}

} // namespace

ProgramFolderRequest programFolderRequest(std::optional<std::string> folderOption)
{
    return {std::move(folderOption), ownExecutable(), LEXIGROVE_INSTALLED_DATA, environment("XDG_DATA_HOME"),
            homeFolder()};
}

ProgramFolder::ProgramFolder(const ProgramFolderRequest& request)
{
    if (request.folderOption) {
        path_ = namedFolder(*request.folderOption);
        return;
    }
    const fs::path own = fs::path(request.executable).parent_path();
    const bool ownIsGame = !request.executable.empty() && holdsData(own) && access(own.string().c_str(), W_OK) == 0;
    if (ownIsGame && !holdsData(dataBeside(request))) {
        path_ = withTrailingSlash(own);
        return;
    }
    const fs::path user = userFolder(request.dataHome, request.home, ".local/share");
    if (user.empty())
        throw ProgramFolderError("There is no home folder to keep the game's files in; name a folder with --folder.");
    installed_ = installedData(request).string();
    user_ = withTrailingSlash(user);
    path_ = user_;
    const std::string failure = failureOf([&] { fillUserFolder(ownIsGame ? own.string() : ""); });
    if (!failure.empty())
        fillPassingFolder("The folder \"" + user.string() + "\" cannot be written: " + failure + ".");
    if (!holdsData(path_))
        throw ProgramFolderError("The game's word lists are not installed, and \"" + user.string() +
                                 "\" does not hold them.");
}

ProgramFolder::PassingFolder::~PassingFolder()
{
    std::error_code ignored;
    if (!path.empty())
        fs::remove_all(path, ignored);
}

void ProgramFolder::fillUserFolder(const std::string& earlier)
{
    if (!installed_.empty()) {
        const bool isNew = fs::create_directories(user_);
        if (!earlier.empty()) {
            const std::string aside = takeOverFiles(earlier, user_);
            notice_ = "Your scores, words and options have moved from \"" + earlier + "\" to \"" + user_ + "\".";
            if (!aside.empty())
                notice_ += " There were some already; the earlier ones are in \"" + aside + "\".";
        }
        if (isNew)
            placeFirstFiles(installed_, user_);
        syncInstalledFiles(installed_, user_);
    }
    if (access(user_.c_str(), W_OK) != 0 && errno != ENOENT)
        throw fs::filesystem_error("", std::error_code(errno, std::generic_category()));
}

void ProgramFolder::fillPassingFolder(const std::string& reason)
{
    const std::string failure = failureOf([&] {
        passing_.path = newTemporaryFolder();
        if (passing_.path.empty())
            throw ProgramFolderError(reason);
        if (fs::is_directory(user_))
            copyFiles(user_, passing_.path);
        if (!installed_.empty()) {
            placeFirstFiles(installed_, passing_.path);
            syncInstalledFiles(installed_, passing_.path);
        }
    });
    if (!failure.empty())
        throw ProgramFolderError(reason);
    path_ = withTrailingSlash(passing_.path);
    notice_ = reason + " You can play, but nothing is kept.";
}

std::string stateFolder(const std::string& otherwise)
{
    const fs::path folder = userFolder(environment("XDG_STATE_HOME"), homeFolder(), ".local/state");
    return folder.empty() ? otherwise : withTrailingSlash(folder);
}

} // namespace lexigrove
