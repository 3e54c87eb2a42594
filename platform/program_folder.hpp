#pragma once

#include <optional>
#include <stdexcept>
#include <string>

namespace lexigrove
{

/// No program folder could be found or created. `what()` is one plain sentence for the player.
class ProgramFolderError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// What determines the program folder. Every path except `folderOption` is absolute or empty.
struct ProgramFolderRequest {
    std::optional<std::string> folderOption; ///< the folder that the player named with --folder
    std::string executable;                  ///< the running program's own file
    std::string installedData;               ///< where the build was told to install the read-only data
    std::string dataHome;                    ///< XDG_DATA_HOME; empty or relative: `home` + "/.local/share"
    std::string home;                        ///< the user's home folder
};

/// The request for this process, from its executable, its environment and the user's home.
ProgramFolderRequest programFolderRequest(std::optional<std::string> folderOption);

/// The absolute path, with a trailing "/", of the folder that holds all of the game's files. The first of these that
/// applies:
/// - the folder that the player named; it must exist, and nothing is copied into it;
/// - the executable's own folder, if it holds "L1Ascii.txt" and is writable (a build tree, a portable copy);
/// - "lexigrove" in the user's data folder, created if missing and synced by `syncInstalledFiles` from the installed
///   data ("../share/lexigrove" relative to the executable's folder, else `installedData`).
/// Throws ProgramFolderError.
std::string programFolder(const ProgramFolderRequest& request);

} // namespace lexigrove
