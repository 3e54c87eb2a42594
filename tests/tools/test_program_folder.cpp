#include "platform/program_folder.hpp"
#include "platform/text_file.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lexigrove
{
namespace
{

namespace fs = std::filesystem;
using testing::HasSubstr;

/// A machine on which the game is installed below "usr" and the user lives in "home".
class ProgramFolder : public testing::Test
{
protected:
    ProgramFolder()
    {
        for (const char* name : {"usr/bin", "usr/share/lexigrove/first", "home"})
            fs::create_directories(path(name));
        install("L1Ascii.txt", "ONE\r\n");
        install("Default.sch", "first colours");
    }

    void install(const std::string& name, const std::string& content)
    {
        replaceFile(path("usr/share/lexigrove/" + name), content);
    }

    [[nodiscard]] std::string path(const std::string& name) const { return machine_.file(name); }
    [[nodiscard]] std::string user(const std::string& name) const
    {
        return path("home/.local/share/lexigrove/" + name);
    }

    [[nodiscard]] ProgramFolderRequest request() const
    {
        ProgramFolderRequest request;
        request.executable = path("usr/bin/lexigrove");
        request.home = path("home");
        return request;
    }

    std::string start() const { return programFolder(request()); }

    TemporaryFolder machine_;
};

std::string errorOf(const ProgramFolderRequest& request)
{
    try {
        return "none, but " + programFolder(request);
    } catch (const ProgramFolderError& error) {
        return error.what();
    }
}

// Guards against a game that reads one folder and writes another, and against a folder without its trailing separator,
// to which every file name is simply appended.
TEST_F(ProgramFolder, TheFirstThatAppliesWins)
{
    EXPECT_EQ(start(), user(""));

    ProgramFolderRequest portable = request();
    portable.executable = path("stick/lexigrove");
    fs::create_directories(path("stick"));
    replaceFile(path("stick/L1Ascii.txt"), "ONE\r\n");
    EXPECT_EQ(programFolder(portable), path("stick/"));

    for (const char* name : {"home", "home/", "home/../home/."}) {
        portable.folderOption = path(name);
        EXPECT_EQ(programFolder(portable), path("home/")) << name;
    }
    EXPECT_FALSE(fs::exists(path("home/L1Ascii.txt"))) << "a named folder is used as it stands";

    ProgramFolderRequest elsewhere = request();
    elsewhere.dataHome = path("data home");
    elsewhere.executable = path("opt/lexigrove");
    elsewhere.installedData = path("usr/share/lexigrove");
    EXPECT_EQ(programFolder(elsewhere), path("data home/lexigrove/"));
    EXPECT_EQ(readFile(path("data home/lexigrove/Default.sch")), "first colours");

    elsewhere.dataHome = "relative";
    EXPECT_EQ(programFolder(elsewhere), user("")) << "a relative XDG_DATA_HOME is to be ignored";
}

// Guards against an upgrade that takes a player's own colours, words or scores away.
TEST_F(ProgramFolder, WhatTheUserChangedOrBroughtStays)
{
    fs::create_directories(user(""));
    replaceFile(user("Own.sch"), "brought before the first start");
    install("Own.sch", "installed");
    start();
    replaceFile(user("Default.sch"), "my colours");
    replaceFile(user("LexigroveScores.txt"), "my scores");
    start();
    install("Default.sch", "second colours");
    install("Own.sch", "installed anew");
    start();
    install("Default.sch", "third");
    start();

    EXPECT_EQ(readFile(user("Default.sch")), "my colours");
    EXPECT_EQ(readFile(user("Own.sch")), "brought before the first start");
    EXPECT_EQ(readFile(user("LexigroveScores.txt")), "my scores");
}

// Guards against players who keep the word lists of their first version forever.
TEST_F(ProgramFolder, WhatTheUserLeftAloneFollowsTheInstalledFiles)
{
    install("first/Lexigrove.cfg", "kind");
    start();
    EXPECT_EQ(readFile(user("Lexigrove.cfg")), "kind");
    install("L1Ascii.txt", "ONE\r\nTWO\r\n");
    install("New.sch", "new");
    fs::remove(user("Default.sch"));
    fs::remove(user("Lexigrove.cfg"));
    start();
    EXPECT_FALSE(fs::exists(user("Lexigrove.cfg"))) << "the first start is over";
    EXPECT_EQ(readFile(user("L1Ascii.txt")), "ONE\r\nTWO\r\n");
    EXPECT_EQ(readFile(user("New.sch")), "new");
    EXPECT_EQ(readFile(user("Default.sch")), "first colours") << "a deleted file is put back";

    // A crash between copying and writing the manifest, or a lost manifest: a file equal to the installed one is the
    // game's.
    fs::remove(user(".installed"));
    start();
    install("New.sch", "newer");
    start();
    EXPECT_EQ(readFile(user("New.sch")), "newer");

    replaceFile(user(".installed"), "\t\t\n\xFF nonsense\tNew.sch\t1\t2\t3\t4\r\n");
    start();
    EXPECT_EQ(readFile(user("New.sch")), "newer");
}

// Guards against a stack of system errors, or silence, instead of one sentence that a player can act on.
TEST_F(ProgramFolder, WhatCannotBeHadIsSaidInOneSentence)
{
    ProgramFolderRequest request = this->request();
    request.folderOption = path("nowhere");
    EXPECT_EQ(errorOf(request), "There is no folder \"" + path("nowhere") + "\".");

    request = this->request();
    request.home = "";
    EXPECT_THAT(errorOf(request), HasSubstr("no home folder"));

    request.home = path("usr/share/lexigrove/L1Ascii.txt"); // a file where a folder should be
    EXPECT_THAT(errorOf(request), HasSubstr("cannot be made or filled: Not a directory."));

    request = this->request();
    fs::create_directories(user("Default.sch/folder")); // in the way of a file
    EXPECT_THAT(errorOf(request), testing::AllOf(HasSubstr("cannot be filled: "), testing::Not(HasSubstr("\n"))));

    request = this->request();
    request.executable = path("home/lexigrove");
    request.dataHome = path("empty");
    EXPECT_THAT(errorOf(request), HasSubstr("word lists are not installed"));
    EXPECT_FALSE(fs::exists(path("empty")));
}

} // namespace
} // namespace lexigrove
