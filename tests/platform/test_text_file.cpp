#include "platform/text_file.hpp"
#include "tests/support/temporary_folder.hpp"

#include <cerrno>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace lexigrove
{
namespace
{

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::EndsWith;

class TextFile : public testing::Test
{
protected:
    [[nodiscard]] std::string path(const std::string& name) const { return (folder_ / name).string(); }

    [[nodiscard]] std::vector<std::string> names() const
    {
        std::vector<std::string> found;
        for (const auto& entry : fs::directory_iterator(folder_))
            found.push_back(entry.path().filename().string());
        return found;
    }

    TemporaryFolder temporary_;
    fs::path folder_ = fs::path(temporary_.path()).parent_path(); // without the trailing separator
};

/// The error's text; empty if nothing failed.
std::string errorOf(const std::function<void()>& action)
{
    try {
        action();
    } catch (const FileError& error) {
        return error.what();
    }
    return {};
}

pid_t inChild(const std::function<void()>& action)
{
    const pid_t child = ::fork();
    if (child == 0) {
        action();
        ::_exit(0);
    }
    return child;
}

int endOf(pid_t child)
{
    int status = 0;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    return status;
}

// Guards files from other systems, and a last line that is lost or doubled.
TEST_F(TextFile, anyLineEndEndsALine)
{
    EXPECT_THAT(splitLines("a\r\nb\nc\rd"), ElementsAre("a", "b", "c", "d"));
    EXPECT_THAT(splitLines("a\r\n\r\nb\n\n\r\r"), ElementsAre("a", "", "b", "", "", ""));
    EXPECT_THAT(splitLines("\n\r\n"), ElementsAre("", ""));
    EXPECT_TRUE(splitLines("").empty());

    replaceLines(path("lines"), {"one", "", std::string("t\0\xFF", 3)});
    EXPECT_EQ(readFile(path("lines")), std::string("one\r\n\r\nt\0\xFF\r\n", 12));
    EXPECT_THAT(readLines(path("lines")), ElementsAre("one", "", std::string("t\0\xFF", 3)));
    copyFile(path("lines"), path("copy"));
    EXPECT_EQ(readFile(path("copy")), readFile(path("lines")));
    EXPECT_FALSE(readFile("/proc/self/status").empty()) << "a file that does not tell its size";
}

// Guards what the player has set up: permissions, links, write protection; and special files that a rename would
// destroy.
TEST_F(TextFile, aReplacedFileKeepsItsPlaceAndRights)
{
    replaceFile(path("real"), "old");
    ASSERT_EQ(::chmod(path("real").c_str(), 0640), 0);
    fs::create_symlink("real", path("link"));
    fs::create_symlink("link", path("chain"));
    replaceFile(path("chain"), "new");
    EXPECT_TRUE(fs::is_symlink(path("chain")));
    EXPECT_TRUE(fs::is_symlink(path("link")));
    EXPECT_EQ(readFile(path("real")), "new");
    EXPECT_EQ(fs::status(path("real")).permissions(), fs::perms(0640));

    fs::create_symlink("unborn", path("dangling"));
    replaceFile(path("dangling"), "born");
    EXPECT_EQ(readFile(path("unborn")), "born");

    fs::create_symlink("loop", path("loop"));
    EXPECT_NE(errorOf([&] { replaceFile(path("loop"), "x"); }), "");
    fs::create_directory(path("folder"));
    EXPECT_THAT(errorOf([&] { replaceFile(path("folder"), "x"); }), EndsWith("folder\nIs a directory"));
    ASSERT_EQ(::mkfifo(path("fifo").c_str(), 0600), 0);
    EXPECT_NE(errorOf([&] { replaceFile(path("fifo"), "x"); }), "");
    EXPECT_TRUE(fs::is_fifo(path("fifo")));
    EXPECT_EQ(errorOf([&] { static_cast<void>(readFile(path("none"))); }),
              "Cannot open the file\n" + path("none") + "\nNo such file or directory");
    EXPECT_EQ(std::string(FileError("Not a score file", "x", 0).what()), "Not a score file\nx");
}

// Guards the old file, and the folder from litter, when a write breaks off in the middle.
TEST_F(TextFile, aFailedWriteLosesNothing)
{
    const std::string old(3000, 'o');
    replaceFile(path("file"), old);
    const pid_t child = inChild([&] { // a limit on the file size represents any failure in mid-write
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{20000, 20000};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        const std::string error = errorOf([&] { replaceFile(path("file"), std::string(50000, 'n')); });
        ::_exit(error == "Cannot write the file\n" + path("file") + "\nFile too large" ? 0 : 1);
    });
    EXPECT_EQ(endOf(child), 0) << "no error, or another text";
    EXPECT_EQ(readFile(path("file")), old);
    EXPECT_THAT(names(), ElementsAre("file"));
}

// Guards the same where nothing can be written at all.
TEST_F(TextFile, aReadOnlyDiskIsTold)
{
    const std::string user = "0 " + std::to_string(::getuid()) + " 1";
    const std::string group = "0 " + std::to_string(::getgid()) + " 1";
    if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0) { // with the right to mount, whoever the user is
        std::ofstream("/proc/self/setgroups") << "deny";
        std::ofstream("/proc/self/uid_map") << user;
        std::ofstream("/proc/self/gid_map") << group;
    }
    if (::mount("none", folder_.c_str(), "tmpfs", 0, "size=64k") != 0)
        GTEST_SKIP() << "A small disk could not be mounted: neither root's rights nor a user namespace";
    replaceFile(path("file"), "old");
    EXPECT_EQ(::mount("none", folder_.c_str(), "tmpfs", MS_REMOUNT | MS_RDONLY, "size=64k"), 0);
    for (const char* name : {"file", "other"})
        EXPECT_THAT(errorOf([&] { replaceFile(path(name), "n"); }),
                    EndsWith(name + std::string("\nRead-only file system")));
    EXPECT_EQ(readFile(path("file")), "old");
    {
        const FileLock lock(path("file")); // silently holds nothing
    }
    EXPECT_EQ(::umount(folder_.c_str()), 0);
}

// Guards against a file that is half old and half new, and against litter that grows with every crash.
TEST_F(TextFile, killedAtAnyMomentItIsTheOldFileOrTheNew)
{
    const unsigned seed = std::random_device{}();
    std::mt19937 random(seed);
    const std::string a(300000, 'a');
    const std::string b(400000, 'b');
    replaceFile(path("file"), a);
    int seenB = 0;
    for (int round = 0; round < 100; ++round) {
        const pid_t child = inChild([&] {
            for (;;) {
                replaceFile(path("file"), b);
                replaceFile(path("file"), a);
            }
        });
        std::this_thread::sleep_for(std::chrono::microseconds(random() % 5000));
        ::kill(child, SIGKILL);
        endOf(child);
        const std::string found = readFile(path("file"));
        ASSERT_TRUE(found == a || found == b) << "seed " << seed << ", round " << round;
        ASSERT_LE(names().size(), 2U);
        seenB += found == b ? 1 : 0;
    }
    EXPECT_GT(seenB, 0) << "no child came to write: seed " << seed;
    replaceFile(path("file"), "after");
    EXPECT_EQ(readFile(path("file")), "after");
    EXPECT_THAT(names(), ElementsAre("file"));
}

// Guards a game that waits for ever for one that hangs, and a folder in which one writer's litter stops all others.
TEST_F(TextFile, whoeverHoldsAFileDoesNotStopTheGame)
{
    replaceFile(path("file"), "old");
    const FileLock held(path("file"));
    const pid_t other = inChild([&] {
        ::alarm(20);
        const std::string error = errorOf([&] { const FileLock lock(path("file")); });
        ::_exit(error.find("process " + std::to_string(::getppid()) + ";") != std::string::npos ? 0 : 1);
    });
    EXPECT_EQ(endOf(other), 0) << "waited for ever, or did not say whose turn it is";

    fs::create_directory(path("file.new"));
    replaceFile(path("file"), "new");
    EXPECT_EQ(readFile(path("file")), "new");
    EXPECT_TRUE(fs::is_directory(path("file.new")));
    EXPECT_EQ(names().size(), 3U) << "the third is the lock";
}

// Guards two running games: no addition is lost under the lock, a leftover lock file does no harm, and writers without
// a lock never mix their bytes.
TEST_F(TextFile, twoProcessesDoNotDisturbEachOther)
{
    replaceFile(path("count"), "0");
    endOf(inChild([&] { // a game killed while it holds the lock
        const FileLock lock(path("count"));
        ::raise(SIGKILL);
    }));
    std::vector<pid_t> children;
    for (const char mark : {'x', 'y', 'z'})
        children.push_back(inChild([&, mark] {
            for (int i = 0; i < 100; ++i) {
                {
                    const FileLock lock(path("count"));
                    replaceFile(path("count"), std::to_string(std::stoi(readFile(path("count"))) + 1));
                }
                replaceFile(path("mixed"), std::string(5000, mark));
                const std::string found = readFile(path("mixed"));
                if (found != std::string(5000, found[0]))
                    ::_exit(1);
            }
        }));
    for (const pid_t child : children)
        EXPECT_EQ(endOf(child), 0) << "a mixed file, or an error";
    EXPECT_EQ(readFile(path("count")), "300");
}

} // namespace
} // namespace lexigrove
