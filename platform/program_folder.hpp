#pragma once

#include <optional>
#include <stdexcept>
#include <string>

namespace lexigrove
{

/// No program folder could be had. `what()` is one plain sentence for the player.
class ProgramFolderError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// What decides on the program folder. Every path is absolute or empty, but for `folderOption`.
struct ProgramFolderRequest {
    std::optional<std::string> folderOption; ///< the folder that the player named with --folder
    std::string executable;                  ///< the running program's own file
    std::string installedData;               ///< where the build was told to install the read-only data
    std::string dataHome;                    ///< XDG_DATA_HOME; empty or relative: `home` + "/.local/share"
    std::string home;                        ///< the user's home folder
};

/// The request of this process: its executable, its environment, the user's home.
ProgramFolderRequest programFolderRequest(std::optional<std::string> folderOption);

/// The folder in which every file of the game lies, absolute, with its closing "/". The first of these that applies:
/// - the folder that the player named, as it stands; it must exist, and nothing is put into it;
/// - the executable's own folder, where it holds "L1Ascii.txt" and can be written (a build tree, a portable copy);
/// - "lexigrove" in the user's data folder, which is made, and filled from the installed data ("../share/lexigrove" as
///   seen from the executable's folder, else `installedData`). A missing file is put back, and one that the user has
///   left as it was follows a changed installed one; a file that the user has changed or brought is never touched. What
///   was installed is noted in ".installed" there.
/// Throws ProgramFolderError.
std::string programFolder(const ProgramFolderRequest& request);

} // namespace lexigrove
