#include "tests/dictionary/dictionary_world.hpp"

#include <chrono>
#include <csignal>
#include <filesystem>
#include <random>
#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

using namespace lexigrove;

namespace
{

/// A small file system of its own, mounted for this process alone and gone with it.
class SmallDisk
{
public:
    explicit SmallDisk(std::size_t bytes)
    {
        const bool own = ::unshare(CLONE_NEWNS) == 0; // needs root
        const std::string options = "size=" + std::to_string(bytes);
        mounted_ = own && ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                   ::mount("none", folder_.path().c_str(), "tmpfs", 0, options.c_str()) == 0;
    }
    ~SmallDisk()
    {
        if (mounted_)
            ::umount2(folder_.path().c_str(), MNT_DETACH);
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    [[nodiscard]] bool mounted() const { return mounted_; }
    [[nodiscard]] const std::string& path() const { return folder_.path(); }
    [[nodiscard]] bool makeReadOnly() const
    {
        return ::mount("none", path().c_str(), "tmpfs", MS_REMOUNT | MS_RDONLY, nullptr) == 0;
    }

private:
    TemporaryFolder folder_;
    bool mounted_ = false;
};

std::vector<std::string> filesIn(const std::string& folder)
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        names.push_back(entry.path().filename());
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace

// A full disk must cost neither the level file nor the backup, at whichever of the two it fills up.
TEST(MaintenanceDisk, FullDiskLosesNothing)
{
    const std::string list = asLines(countedWords(20'000));
    const SmallDisk disk(4 * list.size());
    if (!disk.mounted())
        GTEST_SKIP() << "no right to mount a file system";
    DictionaryWorld world(disk.path());
    world.loadText(2, list);

    // A few blocks are left: the backup does not fit.
    replaceFile(world.backup(2), "OLD BACKUP");
    replaceFile(disk.path() + "filler", std::string(3 * list.size() - 20'000, 'X'));
    world.add("ZEBRA");
    ASSERT_EQ(world.dialogs.messages.size(), 3U);
    EXPECT_EQ(world.dialogs.messages[2], "Cannot write the file\n" + world.backup(2) + "\nNo space left on device");
    EXPECT_EQ(readFile(world.levelFile(2)), list);
    EXPECT_EQ(readFile(world.backup(2)), "OLD BACKUP");

    // The backup fits, the new file does not.
    std::filesystem::remove(world.backup(2));
    std::filesystem::remove(disk.path() + "filler");
    replaceFile(disk.path() + "filler", std::string(2 * list.size() - 16'000, 'X'));
    world.add("ZEBU");
    ASSERT_EQ(world.dialogs.messages.size(), 4U);
    EXPECT_EQ(world.dialogs.messages[3], "Cannot write the file\n" + world.levelFile(2) + "\nNo space left on device");
    EXPECT_EQ(readFile(world.levelFile(2)), list);
    EXPECT_EQ(readFile(world.backup(2)), list);
    EXPECT_EQ(filesIn(disk.path()), (std::vector<std::string>{"L2Ascii.txt", "SysDik2Backup.txt", "filler"}));
    EXPECT_FALSE(world.screen.busy);

    // With room again, what was added meanwhile is written too.
    std::filesystem::remove(disk.path() + "filler");
    world.add("ZOO");
    EXPECT_EQ(world.dialogs.messages.back(), "Word ZOO added to " + world.levelFile(2));
    EXPECT_EQ(decodeMaintained(readFile(world.levelFile(2))).words.size(), 20'003U);
}

TEST(MaintenanceDisk, ReadOnlyFolderLosesNothing)
{
    const SmallDisk disk(1 << 20);
    if (!disk.mounted())
        GTEST_SKIP() << "no right to mount a file system";
    DictionaryWorld world(disk.path());
    world.load(1, {"CAT", "DOG"});
    replaceFile(world.backup(1), "OLD BACKUP");
    ASSERT_TRUE(disk.makeReadOnly());
    world.add("EMU");
    ASSERT_EQ(world.dialogs.messages.size(), 3U);
    EXPECT_TRUE(world.dialogs.messages[2].ends_with("\n" + world.backup(1) + "\nRead-only file system"));
    EXPECT_EQ(readFile(world.levelFile(1)), "CAT\r\nDOG\r\n");
    EXPECT_EQ(readFile(world.backup(1)), "OLD BACKUP");
}

// A file that cannot be read back is put back from memory, and the backup is left alone.
TEST(MaintenanceDisk, PutsBackWhatCannotBeReadBack)
{
    const TemporaryFolder folder;
    DictionaryWorld world(folder.path());
    world.load(1, {"CAT", "DOG"});
    world.dialogs.at["File compressed"] = [&] { std::filesystem::remove(world.levelFile(1)); };
    world.add("EMU");
    ASSERT_EQ(world.dialogs.messages.size(), 5U);
    EXPECT_EQ(world.dialogs.messages[4], "Cannot open the file\n" + world.levelFile(1) + "\nNo such file or directory");
    EXPECT_EQ(readFile(world.levelFile(1)), "CAT\r\nDOG\r\n");
    EXPECT_EQ(readFile(world.backup(1)), "CAT\r\nDOG\r\n");

    std::string tooLong = headerLine("CAT", "", "") + "\r\n";
    for (int i = 0; i < WordList::capacity; ++i)
        tooLong += "~\n";
    world.dialogs.at["File compressed"] = [&] { replaceFile(world.levelFile(1), tooLong); };
    world.add("FOX");
    EXPECT_EQ(world.dialogs.messages.back(), "The dictionary holds more than 250,000 lines\n" + world.levelFile(1));
    EXPECT_EQ(readFile(world.levelFile(1)), "CAT\r\nDOG\r\n");
}

// A crash at any moment: the level file is the old one or the new one, and the backup is whole.
TEST(MaintenanceDisk, KilledAtAnyMomentLosesNothing)
{
    const TemporaryFolder folder;
    DictionaryWorld world(folder.path());
    const std::string oldList = asLines(countedWords(194'000));
    const std::string oldBackup = asLines(countedWords(190'000));
    world.loadText(3, oldList);

    const auto start = std::chrono::steady_clock::now();
    {
        DictionaryWorld whole(folder.path());
        whole.loadText(3, oldList);
        whole.add("MIDDLE");
    }
    const auto duration = std::chrono::steady_clock::now() - start;
    const std::string newList = readFile(world.levelFile(3));
    ASSERT_EQ(decodeMaintained(newList).words.size(), 194'001U);

    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    std::uniform_int_distribution<std::chrono::nanoseconds::rep> moment(0, std::chrono::nanoseconds(duration).count());
    int stages[3] = {}; // nothing written, backed up, rewritten
    for (int kill = 0; kill < 100; ++kill) {
        replaceFile(world.levelFile(3), oldList);
        replaceFile(world.backup(3), oldBackup);
        const std::chrono::nanoseconds wait(moment(random));
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            world.add("MIDDLE");
            ::_exit(0);
        }
        std::this_thread::sleep_for(wait);
        ::kill(child, SIGKILL);
        ASSERT_EQ(::waitpid(child, nullptr, 0), child);
        const std::string level = readFile(world.levelFile(3));
        const std::string backup = readFile(world.backup(3));
        ASSERT_TRUE(level == oldList || level == newList) << "killed after " << wait.count() << " ns";
        ASSERT_TRUE(backup == oldList || (backup == oldBackup && level == oldList)) << "killed after " << wait.count();
        ++stages[level == newList ? 2 : backup == oldList ? 1 : 0];
    }
    RecordProperty("killed before the backup", stages[0]);
    RecordProperty("killed before the rewrite", stages[1]);
    RecordProperty("killed after the rewrite", stages[2]);
    std::printf("Killed before the backup %d, before the rewrite %d, after it %d times\n", stages[0], stages[1],
                stages[2]);
}
