#pragma once

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace lexigrove
{

/// A file could not be read or written. `what()` gives the failure, the file and the system's reason, one per line.
class FileError : public std::runtime_error
{
public:
    /// `errorNumber` is the `errno` of the failure, or 0 if the content itself was at fault.
    FileError(const std::string& failure, const std::string& path, int errorNumber);
};

/// More than any file of the game holds.
inline constexpr std::size_t largestFile = std::size_t{64} << 20;

/// Tells without reading them whether a file's contents are the same as before: every write and replacement changes it.
struct FileVersion {
    std::uint64_t file = 0;
    std::uint64_t size = 0;
    std::int64_t changed = 0; ///< nanoseconds

    bool operator==(const FileVersion&) const = default;
};
/// All 0 for no file.
FileVersion versionOf(const std::string& path);

/// The whole file, byte for byte. Throws FileError, also for what is no regular file and for one of more than `largest`
/// bytes, before it takes any memory for them.
std::string readFile(const std::string& path, std::size_t largest = largestFile);

/// The lines of a text; CR LF, LF and CR all end a line. Text after the last line end is a line too. The views point
/// into `text`.
std::vector<std::string_view> splitLines(std::string_view text);

/// `readFile` followed by `splitLines`, with owned lines.
std::vector<std::string> readLines(const std::string& path);

/// How safe new contents are when `replaceFile` returns. Written ones survive the end of the program, flushed ones that
/// of the machine as well, which takes as long as the disk does.
enum class Durability { Flushed, Written };

/// Replaces the file whole or not at all: writes a temporary file beside it, flushes it to the disk and renames it over
/// the target. After a failure (FileError) or a crash at any moment the old file is intact.
void replaceFile(const std::string& path, std::string_view bytes, Durability durability = Durability::Flushed);

/// `replaceFile` of the lines, each ended by CR LF.
void replaceLines(const std::string& path, const std::vector<std::string>& lines);

/// Replaces `target` with a copy of `source`, whole or not at all.
void copyFile(const std::string& source, const std::string& target);

/// Whether the file that a lock is held on goes with it or stays in the folder.
enum class LockFile { Goes, Stays };

/// Holds an exclusive lock on "<path>.lock" until the end of the scope, so that running games take turns with the file.
/// In a folder that is not writable it silently holds nothing. Throws FileError if the turn of another does not end
/// within some seconds; so does a second lock on the same file within one process.
class FileLock
{
public:
    explicit FileLock(const std::string& path, LockFile file = LockFile::Stays);
    ~FileLock() { release(); }
    FileLock(FileLock&& other) noexcept
        : path_(std::move(other.path_)), file_(other.file_), descriptor_(std::exchange(other.descriptor_, -1))
    {
    }
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

private:
    void release();

    std::string path_;
    LockFile file_;
    int descriptor_ = -1;
};

} // namespace lexigrove
