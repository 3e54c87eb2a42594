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

/// The folder that holds all of the game's files, for as long as the game runs.
class ProgramFolder
{
public:
    /// The first of these that applies:
    /// - the folder that the player named; it must exist, and nothing is copied into it;
    /// - the executable's own folder, if it holds "L1Ascii.txt" and is writable (a portable copy);
    /// - "lexigrove" in the user's data folder, created if missing and synced by `syncInstalledFiles` from the
    /// installed
    ///   data ("../share/lexigrove" relative to the executable's folder, else `installedData`). The files of a player
    ///   beside an executable with such data, where games played from a build tree once kept them, are taken over;
    /// - where that cannot be written, a copy of it that goes with this object.
    /// Throws ProgramFolderError.
    explicit ProgramFolder(const ProgramFolderRequest& request);

    /// Absolute, with a trailing "/".
    [[nodiscard]] const std::string& path() const { return path_; }
    /// What the player must know of it, in plain sentences; mostly empty.
    [[nodiscard]] const std::string& notice() const { return notice_; }

private:
    /// A folder that is removed in the end.
    struct PassingFolder {
        PassingFolder() = default;
        ~PassingFolder();
        PassingFolder(const PassingFolder&) = delete;
        PassingFolder& operator=(const PassingFolder&) = delete;

        std::string path;
    };

    void fillUserFolder(const std::string& earlier);
    void fillPassingFolder(const std::string& reason);

    std::string installed_; ///< the installed data; empty if there is none
    std::string user_;      ///< the user's folder
    std::string path_;
    PassingFolder passing_; ///< without a path if the files are kept
    std::string notice_;
};

/// "lexigrove" in the user's state folder, with a trailing "/", for what no player would miss; `otherwise` if there is
/// no home.
std::string stateFolder(const std::string& otherwise);

} // namespace lexigrove
