#include "platform/text_file.hpp"

#include <cerrno>
#include <chrono>
#include <cstring>
#include <fcntl.h>
#include <future>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace lexigrove
{

namespace
{

/// The system's reason in English: a translation would use the desktop's character set, not the game's.
std::string describe(const std::string& failure, const std::string& path, int errorNumber)
{
    std::string text = failure + "\n" + path;
    if (errorNumber != 0) {
        const char* reason = strerrordesc_np(errorNumber);
        text += "\n";
        text += reason != nullptr ? reason : "Unknown error";
    }
    return text;
}

/// An open file, closed at the end of its scope.
class Descriptor
{
public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor()
    {
        if (number_ >= 0)
            ::close(number_);
    }
    Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    Descriptor& operator=(Descriptor&& other) noexcept
    {
        std::swap(number_, other.number_);
        return *this;
    }

    [[nodiscard]] int get() const { return number_; }
    [[nodiscard]] bool isOpen() const { return number_ >= 0; }

private:
    int number_;
};

/// Folders, pipes and devices are no files to read or to replace: some never end, others never answer.
void requireRegular(const struct stat& status, const char* failure, const std::string& path)
{
    if (S_ISDIR(status.st_mode))
        throw FileError(failure, path, EISDIR);
    if (!S_ISREG(status.st_mode))
        throw FileError(failure, path + "\nIt is no regular file", 0);
}

bool lockedExclusively(int descriptor, int operation)
{
    int result = 0;
    do
        result = ::flock(descriptor, operation);
    while (result != 0 && errno == EINTR);
    return result == 0 || errno != EWOULDBLOCK; // without lock support, the program goes on unlocked
}

/// Waits for the exclusive lock, but no longer than a player would: false if it is another's turn still.
bool lockExclusively(int descriptor)
{
    if (lockedExclusively(descriptor, LOCK_EX | LOCK_NB))
        return true;
    // The system lets those that wait have their turns, but gives no time limit: a thread of its own waits. It may
    // outlive this call, and then gives the lock back at once.
    std::promise<void> locked;
    const std::future<void> turn = locked.get_future();
    std::thread([own = Descriptor(::dup(descriptor)), locked = std::move(locked)]() mutable {
        lockedExclusively(own.get(), LOCK_EX);
        locked.set_value();
    }).detach();
    return turn.wait_for(std::chrono::seconds(3)) == std::future_status::ready;
}

bool isSameFile(int descriptor, const std::string& path)
{
    struct stat open = {};
    struct stat named = {};
    return ::fstat(descriptor, &open) == 0 && ::lstat(path.c_str(), &named) == 0 && open.st_dev == named.st_dev &&
           open.st_ino == named.st_ino;
}

std::string folderOf(const std::string& path)
{
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos)
        return ".";
    return path.substr(0, slash == 0 ? 1 : slash);
}

/// The file at the end of a chain of symbolic links, whether it exists or not.
std::string followLinks(const std::string& path)
{
    constexpr int maxLinks = 40; // the system's own limit
    std::string file = path;
    for (int links = 0; links <= maxLinks; ++links) {
        std::string link(4096, '\0');
        const ssize_t length = ::readlink(file.c_str(), link.data(), link.size());
        if (length < 0)
            return file;
        link.resize(static_cast<std::size_t>(length));
        file = link.starts_with('/') ? link : (folderOf(file) + '/').append(link);
    }
    throw FileError("Cannot write the file", path, ELOOP);
}

void writeAll(int descriptor, std::string_view bytes, const std::string& path)
{
    while (!bytes.empty()) {
        const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            throw FileError("Cannot write the file", path, errno);
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
}

void flush(int descriptor, const std::string& path)
{
    if (::fsync(descriptor) == 0 || errno == EINVAL || errno == ENOSYS || errno == ENOTSUP)
        return; // the last three: a file system that has nothing to flush
    throw FileError("Cannot write the file", path, errno);
}

/// The temporary file beside a target. Its name is fixed, so that a crash leaves at most one such file, which the next
/// writer reuses; a lock keeps two writers apart. Where that name is taken for good, by another user's file or by what
/// is no file, each user has a name of their own.
class TemporaryFile
{
public:
    explicit TemporaryFile(const std::string& target)
        : target_(target), path_(target + ".new"), descriptor_(openLocked(path_))
    {
        if (!descriptor_.isOpen())
            descriptor_ = openLocked(path_ += "-" + std::to_string(::geteuid()));
        if (!descriptor_.isOpen())
            throw FileError("Cannot write the file", target, errno);
    }
    ~TemporaryFile()
    {
        if (!renamed_)
            ::unlink(path_.c_str());
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    /// Gives the file the permissions of the one that it replaces, and the owner if the system allows.
    void copyPermissionsOf(const struct stat& old) const
    {
        struct stat own = {};
        const bool sameOwner =
            ::fstat(descriptor_.get(), &own) == 0 && own.st_uid == old.st_uid && own.st_gid == old.st_gid;
        const bool hasOwner = sameOwner || ::fchown(descriptor_.get(), old.st_uid, old.st_gid) == 0;
        const mode_t permissions = old.st_mode & (hasOwner ? 07777U : 0777U);
        if (::fchmod(descriptor_.get(), permissions) != 0)
            throw FileError("Cannot write the file", target_, errno);
    }

    void write(std::string_view bytes, Durability durability) const
    {
        if (::ftruncate(descriptor_.get(), 0) != 0)
            throw FileError("Cannot write the file", target_, errno);
        writeAll(descriptor_.get(), bytes, target_);
        if (durability == Durability::Flushed)
            flush(descriptor_.get(), target_);
    }

    void renameOverTarget()
    {
        if (::rename(path_.c_str(), target_.c_str()) != 0)
            throw FileError("Cannot replace the file", target_, errno);
        renamed_ = true;
    }

private:
    /// Not open, with errno, where no such file can be written. Another writer may have renamed or removed the file
    /// while this one waited for its lock; then there is a new file to lock.
    static Descriptor openLocked(const std::string& path)
    {
        for (;;) {
            Descriptor file(::open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0666));
            if (!file.isOpen())
                return file;
            struct stat status = {};
            if (::fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode) || !lockExclusively(file.get())) {
                errno = EBUSY;
                return Descriptor(-1);
            }
            if (isSameFile(file.get(), path))
                return file;
        }
    }

    std::string target_;
    std::string path_;
    Descriptor descriptor_;
    bool renamed_ = false;
};

} // namespace

FileError::FileError(const std::string& failure, const std::string& path, int errorNumber)
    : std::runtime_error(describe(failure, path, errorNumber))
{
}

FileVersion versionOf(const std::string& path)
{
    struct stat status = {};
    if (::stat(path.c_str(), &status) != 0)
        return {};
    return {status.st_ino, static_cast<std::uint64_t>(status.st_size),
            std::int64_t{status.st_ctim.tv_sec} * 1'000'000'000 + status.st_ctim.tv_nsec};
}

std::string readFile(const std::string& path, std::size_t largest)
{
    // A pipe without a writer would not open, so it is opened without waiting. A regular file never waits.
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    if (!file.isOpen())
        throw FileError("Cannot open the file", path, errno);
    constexpr const char* failure = "Cannot read the file";
    struct stat status = {};
    if (::fstat(file.get(), &status) != 0)
        throw FileError(failure, path, errno);
    requireRegular(status, failure, path);

    const auto size = static_cast<std::size_t>(status.st_size);
    if (size > largest)
        throw FileError(failure, path, EFBIG);
    std::string bytes(size > 0 ? size + 1 : 4096, '\0'); // one more to read the end
    std::size_t length = 0;
    for (;;) {
        if (length > largest)
            throw FileError(failure, path, EFBIG);
        if (length == bytes.size())
            bytes.resize(2 * bytes.size());
        const ssize_t got = ::read(file.get(), bytes.data() + length, bytes.size() - length);
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            throw FileError(failure, path, errno);
        if (got == 0)
            break;
        length += static_cast<std::size_t>(got);
    }
    bytes.resize(length);
    return bytes;
}

void replaceFile(const std::string& path, std::string_view bytes, Durability durability)
{
    const std::string target = followLinks(path);
    struct stat old = {};
    const bool exists = ::stat(target.c_str(), &old) == 0;
    if (exists)
        requireRegular(old, "Cannot replace the file", path);
    if (exists && ::access(target.c_str(), W_OK) != 0) // a rename would bypass the player's write protection
        throw FileError("Cannot replace the file", path, errno);

    TemporaryFile temporary(target);
    if (exists)
        temporary.copyPermissionsOf(old);
    temporary.write(bytes, durability);
    temporary.renameOverTarget();
    if (durability == Durability::Written)
        return;

    // Syncing the folder is best effort.
    const Descriptor folder(::open(folderOf(target).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder.isOpen())
        ::fsync(folder.get());
}

namespace
{

/// The process that holds a lock writes its number into the file, for whoever waits.
std::string holderOf(int descriptor)
{
    std::string holder(20, '\0');
    (void)!::pread(descriptor, holder.data(), holder.size(), 0);
    return holder.substr(0, holder.find_first_not_of("0123456789"));
}

} // namespace

FileLock::FileLock(const std::string& path, LockFile file) : path_(path + ".lock"), file_(file)
{
    constexpr int flags = O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
    do {
        release();
        descriptor_ = ::open(path_.c_str(), O_RDWR | O_CREAT | flags, 0666);
        if (descriptor_ < 0) // created by another user of the folder; read access is enough for a lock
            descriptor_ = ::open(path_.c_str(), O_RDONLY | flags);
        if (descriptor_ < 0)
            return;
        if (!lockExclusively(descriptor_)) {
            const std::string holder = holderOf(descriptor_);
            ::close(std::exchange(descriptor_, -1));
            throw FileError("It is the turn of another game, process " + holder +
                                "; try again when it is done with the file",
                            path, 0);
        }
    } while (!isSameFile(descriptor_, path_)); // it went with the turn before
    const std::string holder = std::to_string(::getpid()) + '\n';
    (void)!::pwrite(descriptor_, holder.data(), holder.size(), 0);
}

void FileLock::release()
{
    if (descriptor_ < 0)
        return;
    if (file_ == LockFile::Goes && isSameFile(descriptor_, path_))
        ::unlink(path_.c_str());
    ::close(std::exchange(descriptor_, -1));
}

} // namespace lexigrove
