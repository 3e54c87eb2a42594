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
class ProgramFolderTest : public testing::Test
{
protected:
    ProgramFolderTest()
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

    std::string start() const { return ProgramFolder(request()).path(); }

    TemporaryFolder machine_;
};

std::string errorOf(const ProgramFolderRequest& request)
{
    try {
        return "none, but " + ProgramFolder(request).path();
    } catch (const ProgramFolderError& error) {
        return error.what();
    }
}

// Guards against a game that reads one folder and writes another, and against a folder without its trailing separator,
// to which every file name is simply appended.
TEST_F(ProgramFolderTest, TheFirstThatAppliesWins)
{
    EXPECT_EQ(start(), user(""));

    ProgramFolderRequest portable = request();
    portable.executable = path("stick/lexigrove");
    fs::create_directories(path("stick"));
    replaceFile(path("stick/L1Ascii.txt"), "ONE\r\n");
    EXPECT_EQ(ProgramFolder(portable).path(), path("stick/"));

    for (const char* name : {"home", "home/", "home/../home/."}) {
        portable.folderOption = path(name);
        EXPECT_EQ(ProgramFolder(portable).path(), path("home/")) << name;
    }
    EXPECT_FALSE(fs::exists(path("home/L1Ascii.txt"))) << "a named folder is used as it stands";

    ProgramFolderRequest elsewhere = request();
    elsewhere.dataHome = path("data home");
    elsewhere.executable = path("opt/lexigrove");
    elsewhere.installedData = path("usr/share/lexigrove");
    EXPECT_EQ(ProgramFolder(elsewhere).path(), path("data home/lexigrove/"));
    EXPECT_EQ(readFile(path("data home/lexigrove/Default.sch")), "first colours");

    elsewhere.dataHome = "relative";
    EXPECT_EQ(ProgramFolder(elsewhere).path(), user("")) << "a relative XDG_DATA_HOME is to be ignored";
}

// Guards against an upgrade that takes a player's own colours, words or scores away.
TEST_F(ProgramFolderTest, WhatTheUserChangedOrBroughtStays)
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
TEST_F(ProgramFolderTest, WhatTheUserLeftAloneFollowsTheInstalledFiles)
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
TEST_F(ProgramFolderTest, WhatCannotBeHadIsSaidInOneSentence)
{
    ProgramFolderRequest request = this->request();
    request.folderOption = path("nowhere");
    EXPECT_EQ(errorOf(request), "There is no folder \"" + path("nowhere") + "\".");

    request = this->request();
    request.home = "";
    EXPECT_THAT(errorOf(request), HasSubstr("no home folder"));

    request = this->request();
    request.executable = path("home/lexigrove");
    request.dataHome = path("empty");
    EXPECT_THAT(errorOf(request), HasSubstr("word lists are not installed"));
    EXPECT_FALSE(fs::exists(path("empty")));
}

// Guards a game that cannot be played because of one file in the way, and one that keeps nothing without a word.
TEST_F(ProgramFolderTest, ItIsPlayedWhereverItCanBe)
{
    fs::create_directories(user("Default.sch/folder")); // in the way of a file
    EXPECT_EQ(start(), user(""));
    install("Other.sch", "others");
    EXPECT_EQ(start(), user(""));
    EXPECT_EQ(readFile(user("Other.sch")), "others");

    ProgramFolderRequest request = this->request();
    request.home = path("usr/share/lexigrove/L1Ascii.txt"); // a file where a folder should be
    std::string passing;
    {
        const ProgramFolder folder(request);
        passing = folder.path();
        EXPECT_EQ(readFile(passing + "Default.sch"), "first colours");
        EXPECT_THAT(folder.notice(), HasSubstr("Not a directory. You can play, but nothing is kept."));
    }
    EXPECT_FALSE(fs::exists(passing));
}

// Guards the scores of games played from a build tree, which once lay beside the programs.
TEST_F(ProgramFolderTest, AnEarlierFolderIsTakenOver)
{
    const auto earlier = [this](const std::string& name) { return path("usr/bin/" + name); };
    for (const char* name : {"L1Ascii.txt", "Default.sch"})
        fs::copy_file(path(std::string("usr/share/lexigrove/") + name), earlier(name));
    replaceFile(earlier("lexigrove"), "\x7f"
                                      "ELF program");
    replaceFile(earlier("LexigroveScores.txt"), "earlier scores");
    replaceFile(earlier("Lexigrove.cfg"), earlier("Mine.txt"));
    fs::create_directories(earlier("Games"));
    replaceFile(earlier("Games/a.txt"), "a game");
    fs::create_directories(user(""));
    replaceFile(user("LexigroveScores.txt"), "scores");

    const ProgramFolder folder(request());
    EXPECT_EQ(readFile(user("LexigroveScores.txt")), "scores");
    EXPECT_EQ(readFile(user("Earlier/LexigroveScores.txt")), "earlier scores");
    EXPECT_EQ(readFile(user("Games/a.txt")), "a game");
    EXPECT_EQ(readFile(user("Lexigrove.cfg")), user("Mine.txt"));
    EXPECT_TRUE(fs::exists(earlier("lexigrove")));
    EXPECT_FALSE(fs::exists(earlier("LexigroveScores.txt")));
    EXPECT_THAT(folder.notice(), HasSubstr("have moved from"));
    EXPECT_EQ(ProgramFolder(request()).notice(), "");
}

} // namespace
} // namespace lexigrove
