#pragma once

#include <string>

namespace lexigrove
{

/// Brings the files of an installed read-only folder into a player's folder: those that are missing, and those that
/// changed where they are installed while the player left their copies as they were. A file that the player changed or
/// brought is never touched. What was copied, with its size, time and checksum, is noted in ".installed" in `target`,
/// so that a start at which nothing changed reads no file's content. Sub-folders and hidden files are passed over.
/// Throws FileError or std::filesystem::filesystem_error.
void followInstalledFiles(const std::string& installed, const std::string& target);

} // namespace lexigrove
