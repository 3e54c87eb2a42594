#pragma once

#include <string>

namespace lexigrove
{

/// Copies the files of an installed read-only folder into a player's folder: those that are missing, and those that
/// have changed there while the player left the copies alone. A file that the player changed or added is never touched.
/// The manifest ".installed" in `target` lists what was copied, with size, time and checksum, so that a start without
/// changes reads no file's content. Subfolders and hidden files are skipped. A file that cannot be copied stays as it
/// is until the next time. Throws FileError or std::filesystem::filesystem_error if nothing can.
void syncInstalledFiles(const std::string& installed, const std::string& target);

/// Copies the files of the installed folder's subfolder "first", with which a new player's folder begins, where they
/// are missing: a configuration and a score list. Whoever removes them later gets what the game does without them.
/// Throws as above.
void placeFirstFiles(const std::string& installed, const std::string& target);

/// Moves a player's files from an earlier program folder into `target`; programs and the game's own files stay behind
/// or go. Nothing that `target` holds is replaced: what differs there goes into a new folder "Earlier" of it. Whatever
/// breaks off in the middle can be done again. Returns the new folder, or an empty path. Throws as above.
std::string takeOverFiles(const std::string& earlier, const std::string& target);

/// Copies what can be read of a player's folder. Throws as above.
void copyFiles(const std::string& source, const std::string& target);

} // namespace lexigrove
