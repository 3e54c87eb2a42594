#include "platform/text_file.hpp"

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <io.h>
#include <share.h>
#include <sys/stat.h>
#include <thread>
#include <utility>
#include <windows.h>

namespace lexigrove
{

namespace
{

namespace fs = std::filesystem;

void requireRegular(const char* failure, const std::string& path)
{
    std::error_code ignored;
    if (fs::is_directory(path, ignored))
        throw FileError(failure, path, EISDIR);
    if (fs::exists(path, ignored) && !fs::is_regular_file(path, ignored))
        throw FileError(failure, path + "\nIt is no regular file", 0);
}

/// Writes a new file whole, as far as the disk if it is to be durable. Returns 0, or the number of the error.
int writeNew(const std::string& path, std::string_view bytes, Durability durability)
{
    const int file = ::_open(path.c_str(), _O_WRONLY | _O_CREAT | _O_TRUNC | _O_BINARY, _S_IREAD | _S_IWRITE);
    if (file < 0)
        return errno;
    int error = 0;
    while (!bytes.empty() && error == 0) {
        const int written = ::_write(file, bytes.data(), static_cast<unsigned>(bytes.size()));
        error = written < 0 ? errno : 0;
        bytes.remove_prefix(written < 0 ? 0 : static_cast<std::size_t>(written));
    }
    if (error == 0 && durability == Durability::Flushed && ::_commit(file) != 0)
        error = errno;
    ::_close(file);
    return error;
}

} // namespace

FileError::FileError(const std::string& failure, const std::string& path, int errorNumber)
    : std::runtime_error(failure + "\n" + path +
                         (errorNumber != 0 ? "\n" + std::string(std::strerror(errorNumber)) : ""))
{
}

FileVersion versionOf(const std::string& path)
{
    std::error_code failure;
    const auto size = fs::file_size(path, failure);
    return failure ? FileVersion{}
                   : FileVersion{0, size, fs::last_write_time(path, failure).time_since_epoch().count()};
}

std::string readFile(const std::string& path, std::size_t largest)
{
    constexpr const char* failure = "Cannot read the file";
    requireRegular(failure, path);
    std::FILE* const file = std::fopen(path.c_str(), "rb");
    if (file == nullptr)
        throw FileError("Cannot open the file", path, errno);
    std::string bytes;
    std::string block(std::size_t{1} << 16, '\0');
    for (std::size_t got = 1; got > 0 && bytes.size() <= largest; bytes.append(block, 0, got))
        got = std::fread(block.data(), 1, block.size(), file);
    const int error = std::ferror(file) != 0 ? EIO : 0;
    std::fclose(file);
    if (error != 0 || bytes.size() > largest)
        throw FileError(failure, path, error != 0 ? error : EFBIG);
    return bytes;
}

void replaceFile(const std::string& path, std::string_view bytes, Durability durability)
{
    requireRegular("Cannot replace the file", path);
    std::error_code ignored;
    const std::string target = fs::is_symlink(path, ignored) ? fs::weakly_canonical(path).string() : path;
    if (fs::exists(target, ignored) && ::_access(target.c_str(), 2) != 0) // 2: to be written
        throw FileError("Cannot replace the file", path, errno);
    const std::string temporary = target + ".new";
    int error = writeNew(temporary, bytes, durability);
    if (error == 0 && ::MoveFileExA(temporary.c_str(), target.c_str(), MOVEFILE_REPLACE_EXISTING) == 0)
        error = EACCES;
    if (error != 0) {
        fs::remove(temporary, ignored);
        throw FileError("Cannot write the file", path, error);
    }
}

/// Nobody else can open the file while it is held.
FileLock::FileLock(const std::string& path, LockFile file) : path_(path + ".lock"), file_(file)
{
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(3);
    while (::_sopen_s(&descriptor_, path_.c_str(), _O_RDWR | _O_CREAT | _O_BINARY, _SH_DENYRW, _S_IREAD | _S_IWRITE) !=
               0 &&
           ::_access(path_.c_str(), 0) == 0) {
        if (std::chrono::steady_clock::now() > deadline)
            throw FileError("It is the turn of another game; try again when it is done with the file", path, 0);
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
}

void FileLock::release()
{
    if (descriptor_ < 0)
        return;
    ::_close(std::exchange(descriptor_, -1));
    std::error_code ignored;
    if (file_ == LockFile::Goes)
        fs::remove(path_, ignored);
}

} // namespace lexigrove
