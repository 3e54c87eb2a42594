#include "tests/dictionary/dictionary_world.hpp"

#include <filesystem>
#include <gmock/gmock.h>
#include <rapidcheck.h>
#include <set>
#include <sys/wait.h>
#include <unistd.h>

using namespace lexigrove;
using testing::ElementsAre;

namespace
{

namespace fs = std::filesystem;

class MaintenanceTest : public testing::Test, protected DictionaryWorld
{
protected:
    /// The words that a level's file holds in the maintained format.
    [[nodiscard]] std::vector<std::string> wordsInFile(int level) const
    {
        return decodeMaintained(readFile(levelFile(level))).words;
    }

    std::vector<std::string>& messages = dialogs.messages;
};

} // namespace

// Whatever is added and removed, in whatever order, the words, their file and its backup agree.
TEST_F(MaintenanceTest, FilesFollowAnyChanges)
{
    const auto word = rc::gen::nonEmpty(rc::gen::container<std::string>(rc::gen::element('A', 'B', 'C')));
    EXPECT_TRUE(rc::check([&] {
        auto words = *rc::gen::nonEmpty(rc::gen::container<std::set<std::string>>(word));
        load(1, {words.begin(), words.end()});
        for (const auto& [isNew, changed] : *rc::gen::container<std::vector<std::pair<bool, std::string>>>(
                 rc::gen::pair(rc::gen::arbitrary<bool>(), word))) {
            const std::string before = readFile(levelFile(1));
            isNew ? add(changed) : remove(changed);
            const bool changes = isNew ? words.insert(changed).second : words.erase(changed) == 1;
            RC_ASSERT(messages.size() == (changes ? 5U : 1U));
            RC_ASSERT(entriesOf(dictionary.words) == std::vector<std::string>(words.begin(), words.end()));
            if (!changes || words.empty()) // the header has no place for "no word"
                break;
            RC_ASSERT(wordsInFile(1) == entriesOf(dictionary.words));
            RC_ASSERT(readFile(backup(1)) == before);
        }
    }));
}

// Only exactly 200,000 words are full: a list from elsewhere with one more is no reason to refuse.
TEST_F(MaintenanceTest, IsFullAtExactly200000)
{
    load(3, countedWords(199'999));
    add("ZEBRA");
    EXPECT_EQ(wordsInFile(3).size(), 200'000U);
    add("ZEBU");
    EXPECT_THAT(messages, ElementsAre("Dictionary is full"));
    add("ZEBRA");
    EXPECT_THAT(messages, ElementsAre("ZEBRA already exists"));

    load(3, countedWords(200'001));
    add("ZEBU");
    EXPECT_EQ(messages.back(), "Word ZEBU added to " + levelFile(3));
    load(3, countedWords(250'000)); // no more room in the word array
    add("ZEBU");
    EXPECT_EQ(messages.size(), 2U);
    EXPECT_EQ(dictionary.words.count(), 250'000);
    EXPECT_EQ(readFile(levelFile(3)), asLines(countedWords(250'000)));
}

TEST_F(MaintenanceTest, OpensWithAWordAndALevelOnly)
{
    load(2, {"CAT"});
    EXPECT_FALSE(maintenance.open("", status));
    EXPECT_EQ(status.Label1, "Select a word first");
    EXPECT_TRUE(status.Warn);
    ASSERT_TRUE(maintenance.open("EMU", status));
    maintenance.activate();
    EXPECT_EQ(maintenance.Text1, "EMU");
    EXPECT_TRUE(maintenance.Option2.Value && maintenance.Option2.Enabled);
    EXPECT_FALSE(maintenance.Option1.Value || maintenance.Option1.Enabled || maintenance.Option3.Enabled);

    // The words of level 2 must not reach another level's file.
    for (const int other : {0, 1, 3, 4}) {
        maintenance.chooseOption(other);
        EXPECT_TRUE(maintenance.Option2.Value);
    }
    dictionary.applyChoice(3, "");
    maintenance.activate();
    add("EMU");
    EXPECT_EQ(messages.size(), 1U);
    EXPECT_FALSE(fs::exists(levelFile(3)));
    dictionary.applyChoice(0, "Mine.txt");
    EXPECT_FALSE(maintenance.open("EMU", status));
    maintenance.activate();
    remove("CAT");
    EXPECT_EQ(messages.size(), 1U);
    EXPECT_EQ(dictionary.words.count(), 1);
    const auto fingerprint = dictionary.fingerprint();
    EXPECT_EQ(dictionary.fingerprint(), fingerprint);
    load(1, {"DOG"});
    EXPECT_NE(dictionary.fingerprint(), fingerprint);
}

// The list shows the words as they were when it was filled, whatever happens to the dictionary meanwhile.
TEST_F(MaintenanceTest, ListsAndSearches)
{
    load(1, {"BEE", "CAT", "CATTLE", "SCAT", "b\xE4r", "catnip"});
    auto& list = maintenance.List1;
    list.setSearch("Cat");
    EXPECT_EQ(list.rowCount(), 0);
    maintenance.showDictionary();
    ASSERT_EQ(list.rowCount(), 4);
    EXPECT_EQ(list.ListCount(), 6);
    EXPECT_EQ(list.row(3), "catnip");
    maintenance.Text1 = "EMU";
    maintenance.clickRow(4);
    EXPECT_EQ(maintenance.Text1, "EMU");
    maintenance.clickRow(2);
    EXPECT_EQ(maintenance.Text1, "SCAT");
    list.setSearch("B\xC4");
    EXPECT_EQ(list.rowCount(), 1);
    list.setSearch("EC"); // the end of one word and the beginning of the next
    EXPECT_EQ(list.rowCount(), 0);
    list.setSearch("");
    EXPECT_EQ(maintenance.Text1, "SCAT") << "the search leaves the edited word alone";
    load(1, {"DOG"});
    EXPECT_EQ(list.row(0), "BEE");
    EXPECT_THROW((void)list.row(6), std::out_of_range);
    maintenance.reset();
    change(&DictionaryMaintenance::spellCheck, "DOG");
    EXPECT_THAT(messages, ElementsAre("Load Dictionary first"));
}

// A file changed behind the game's back between writing and reading must be noticed, and the backup restored.
TEST_F(MaintenanceTest, WhatReadsBackOtherwiseIsUndone)
{
    const std::string file = levelFile(2);
    const std::string header = headerLine("CAT", "", "") + "\r\n";
    std::string tooLong = header;
    for (int i = 0; i < WordList::capacity; ++i)
        tooLong += "~\n";
    const std::pair<std::string, std::string> cases[] = {
        {header + "~COW\r\n~DOGS\r\n}EMU\r\n", "Error 3DOGDOGS"}, // another word
        {headerLine("BAT", "", "") + "\r\n~COW\r\n", "Error 1CATBAT"},
        {header + "~COW\r\n", "Error 3DOGCOW"},              // cut off at a line's end
        {header + "~COW\r\n~DOG\r\n~EMU\r\n", "Error 4EMU"}, // one word too many
        {header + "~COW\r\n\x01\r\n", "Error 3DOGCOW"},      // cannot be decoded
        {"CAT\r\nCOW\r\nDOG\r\n", "Error 1CAT"},
        {"", "Error 1CAT"},
        {tooLong, "The dictionary holds more than 250,000 lines\n" + file},
    };
    for (const auto& [text, message] : cases) {
        SCOPED_TRACE(message);
        load(2, {"CAT", "DOG"});
        dialogs.at["File compressed"] = [&] { replaceFile(file, text); };
        add("COW");
        ASSERT_GE(messages.size(), 5U);
        EXPECT_EQ(messages[4], message);
        if (message == "Error 1CATBAT") {
            EXPECT_EQ(maintenance.List1.list(0), "BAT") << "listed before it is compared";
        }
        EXPECT_EQ(messages.back(), message[0] == 'E' ? "File restored " + file : message);
        EXPECT_EQ(readFile(file), "CAT\r\nDOG\r\n");
        EXPECT_EQ(readFile(backup(2)), "CAT\r\nDOG\r\n");
        EXPECT_EQ(entriesOf(dictionary.words), (std::vector<std::string>{"CAT", "COW", "DOG"}));
    }
    load(2, {"CAT", "DOG"});
    dialogs.at["File compressed"] = [&] {
        replaceFile(file, cases[0].first);
        fs::remove(backup(2)); // not even the backup is left, so it is restored from memory
    };
    remove("DOG");
    EXPECT_EQ(messages.back(), "file restored " + file);
    dialogs.at["Error"] = [&] {
        EXPECT_NE(readFile(file), "CAT\r\nDOG\r\n");
        throw Leaving{};
    };
    EXPECT_THROW(add("FOX"), Leaving);
    EXPECT_EQ(readFile(file), "CAT\r\nDOG\r\n");
    dialogs.at.erase("Error");
    EXPECT_EQ(readFile(file), "CAT\r\nDOG\r\n");
    dialogs.at["File compressed"] = [&] { fs::remove(file); };
    add("FOX");
    EXPECT_EQ(messages.back(), "Cannot open the file\n" + file + "\nNo such file or directory");
    EXPECT_EQ(readFile(file), "CAT\r\nDOG\r\n");
}

// Guards two games on one folder: what each was told is so, and no game undoes the other's change.
TEST_F(MaintenanceTest, TwoGamesChangeTheSameWords)
{
    const std::vector<std::string> words = countedWords(70);
    const auto some = [&](int from, int to) { return std::vector(words.begin() + from, words.begin() + to); };
    load(1, some(0, 20));
    const auto inAnotherGame = [&](const std::vector<std::string>& added, const std::vector<std::string>& removed) {
        const pid_t child = ::fork();
        if (child != 0)
            return child;
        int done = 0;
        dialogs.at[""] = [&] {
            const std::string& text = messages.back();
            done += text.ends_with(" to " + levelFile(1)) || text.ends_with(" from " + levelFile(1)) ? 1 : 0;
        };
        for (std::size_t i = 0; i < added.size(); ++i) {
            add(added[i]);
            if (i < removed.size())
                remove(removed[i]);
        }
        ::_exit(done);
    };
    const pid_t games[] = {inAnotherGame(some(20, 50), {}), inAnotherGame(some(40, 70), some(0, 10))};
    int done = 0;
    for (const pid_t game : games) {
        int end = 0;
        ASSERT_EQ(::waitpid(game, &end, 0), game);
        done += WEXITSTATUS(end);
    }
    EXPECT_EQ(done, 60) << "50 new words, some of them wanted by both games, and 10 removed";
    EXPECT_EQ(wordsInFile(1), some(10, 70));
}

// Neither leaving the program at a message nor a file that cannot be written costs the level file or the backup; and a
// file is replaced, never overwritten, so a crash costs nothing either.
TEST_F(MaintenanceTest, EveryStageCanFail)
{
    const std::string text = "CAT\r\nDOG\r\n";
    for (const char* message : {"Add", "Word EMU added and", "File " /* backed up, and compressed */}) {
        loadText(1, text);
        replaceFile(backup(1), "OLD");
        dialogs.at = {{message, [] { throw Leaving{}; }}};
        EXPECT_THROW(add("EMU"), Leaving);
        EXPECT_EQ(readFile(levelFile(1)), text);
        EXPECT_EQ(readFile(backup(1)), *message == 'F' ? text : "OLD");
        EXPECT_FALSE(screen.busy);
    }
    const auto blocked = [](const std::string& path) { // by a folder in its place
        fs::remove(path);
        fs::create_directory(path);
    };
    loadText(1, text);
    dialogs.at = {{"Word EMU added and", [&] { blocked(backup(1)); }}};
    add("EMU");
    EXPECT_EQ(messages.back(), "Cannot replace the file\n" + backup(1) + "\nIs a directory");
    EXPECT_EQ(readFile(levelFile(1)), text);

    fs::remove(backup(1));
    loadText(1, text);
    dialogs.at = {{"File " + backup(1), [&] { blocked(levelFile(1)); }}};
    add("EMU");
    EXPECT_EQ(messages.back(), "Cannot replace the file\n" + levelFile(1) +
                                   "\nIs a directory\nCannot replace the file\n" + levelFile(1) + "\nIs a directory");
    EXPECT_EQ(readFile(backup(1)), text);
    EXPECT_FALSE(screen.busy);

    fs::remove(levelFile(1));
    loadText(1, text);
    dialogs.at.clear();
    fs::create_hard_link(levelFile(1), folder.file("list"));
    fs::create_hard_link(backup(1), folder.file("backup"));
    add("EMU");
    EXPECT_EQ(messages.size(), 5U);
    EXPECT_EQ(folder.read("list"), text);
    EXPECT_FALSE(fs::equivalent(backup(1), folder.file("backup")));
}

// After a session with additions the next game would have no words to play; this is the way back.
TEST_F(MaintenanceTest, ExitOffersAPlainListOnce)
{
    load(1, {"A", "B", "B", "C", "D"});
    const std::string file = levelFile(1);
    maintenance.exit(); // asks nothing
    add("E");
    dialogs.answers = {"no"};
    maintenance.exit();
    maintenance.exit();
    EXPECT_THAT(dialogs.questions,
                ElementsAre("Write the level file as a plain word list, so that the next game can use it?"));
    EXPECT_EQ(wordsInFile(1).size(), 6U) << "answered with No";

    remove("B");
    const std::string maintained = readFile(file);
    messages.clear();
    dialogs.answers = {"yes"};
    maintenance.exit();
    EXPECT_EQ(readFile(file), asLines({"A", "C", "D", "D", "E"})) << "in order, so that lookups work";
    EXPECT_EQ(readFile(backup(1)), maintained);
    EXPECT_THAT(messages, ElementsAre("File " + backup(1) + " backed up, now write plain word list " + file,
                                      "Plain word list written, now read and verify " + file,
                                      "Level 1 is a plain word list: " + file));
}

TEST_F(MaintenanceTest, CodedLinesAreConverted)
{
    const std::string maintained = headerLine("CAT", "", "") + "\r\n\x81S\r\n}DOG\r\n";
    const std::string file = levelFile(1);
    loadText(1, maintained);
    // A conversion that does not read back the same is undone, like an addition.
    dialogs.at["Plain word list written"] = [&] { replaceFile(file, "CAT\r\nCATS\r\nDOGS\r\n"); };
    change(&DictionaryMaintenance::writePlainList);
    ASSERT_EQ(messages.size(), 4U);
    EXPECT_EQ(messages[2], "Error 3DOGDOGS");
    EXPECT_EQ(readFile(file), maintained);
    EXPECT_TRUE(dictionary.holdsCodedLines());

    dialogs.at.clear();
    maintenance.writePlainList();
    EXPECT_EQ(readFile(file), "CAT\r\nCATS\r\nDOG\r\n");
    EXPECT_EQ(dictionary.words.findWord("DOG"), 3) << "the words take the place of their coded lines";
    add("EMU");
    EXPECT_EQ(messages.size(), 5U);

    // The backup of before the addition is the only plain list now: it stays, and is not what a failure restores.
    const std::string withEmu = readFile(file);
    for (const bool fails : {true, false}) {
        dialogs.at["Plain word list written"] = [&] { fails ? replaceFile(file, "CAT\r\n") : void(); };
        change(&DictionaryMaintenance::writePlainList);
        EXPECT_EQ(messages[0], "File " + backup(1) + " is kept, now write plain word list " + file);
        EXPECT_EQ(readFile(file), fails ? withEmu : "CAT\r\nCATS\r\nDOG\r\nEMU\r\n");
        EXPECT_EQ(readFile(backup(1)), "CAT\r\nCATS\r\nDOG\r\n");
    }

    load(1, {"CAT"});
    change(&DictionaryMaintenance::writePlainList);
    EXPECT_THAT(messages, ElementsAre("The file already is a plain word list\n" + file));
    const std::string damaged = headerLine("CAT", "", "") + "\r\n\x01\r\n";
    replaceFile(file, damaged);
    change(&DictionaryMaintenance::writePlainList);
    EXPECT_EQ(messages.size(), 1U);
    EXPECT_EQ(readFile(file), damaged);
}
