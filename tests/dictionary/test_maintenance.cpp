#include "platform/leaving.hpp"
#include "tests/dictionary/dictionary_world.hpp"

#include <filesystem>
#include <gmock/gmock.h>

using namespace lexigrove;
using testing::ElementsAre;

namespace
{

constexpr const char* coded1 = "Level 1 holds the maintained format; convert it in Dictionary Maintenance";

class MaintenanceTest : public testing::Test
{
protected:
    /// The words that a level's file holds in the maintained format.
    [[nodiscard]] std::vector<std::string> wordsInFile(int level) const
    {
        return decodeMaintained(readFile(world.levelFile(level))).words;
    }
    [[nodiscard]] std::vector<std::string> listed() const
    {
        std::vector<std::string> items;
        items.reserve(static_cast<std::size_t>(maintenance.List1.ListCount()));
        for (int i = 0; i < maintenance.List1.ListCount(); ++i)
            items.emplace_back(maintenance.List1.list(i));
        return items;
    }

    TemporaryFolder folder;
    DictionaryWorld world{folder.path()};
    DictionaryMaintenance& maintenance = world.maintenance;
    std::vector<std::string>& messages = world.dialogs.messages;
};

} // namespace

// Every message, in order, letter for letter; the word goes in with its blanks, in upper case and in its place.
TEST_F(MaintenanceTest, AddsAWordStepByStep)
{
    const std::string plain = "CAT\r\nDOG\r\n";
    world.loadText(2, plain);
    world.dialogs.at["Word  cow"] = [] { ADD_FAILURE() << "not in upper case"; };
    world.dialogs.at["File compressed"] = [this] {
        EXPECT_EQ(readFile(world.levelFile(2)), headerLine("CAT", "12/24/2023", "12:00") + "\r\n\x7FOW \r\n}DOG\r\n");
        EXPECT_FALSE(world.screen.busy);
    };
    const std::string file = world.levelFile(2);
    world.add("cow ");
    EXPECT_THAT(messages,
                ElementsAre("Add new word and sort", "Word COW  added and dictionary sorted, now backup old dictionary",
                            "File " + world.backup(2) + " backed up, now compress file " + file,
                            "File compressed, now read and verify " + file, "Word COW  added to " + file));
    EXPECT_EQ(entriesOf(world.dictionary.words), (std::vector<std::string>{"CAT", "COW ", "DOG"}));
    EXPECT_EQ(readFile(world.backup(2)), plain);
    EXPECT_EQ(wordsInFile(2), entriesOf(world.dictionary.words));
    EXPECT_EQ(listed(), entriesOf(world.dictionary.words)) << "the words read back are shown";
    EXPECT_EQ(world.dictionary.codingBase, 129);
    EXPECT_FALSE(world.screen.busy);
    EXPECT_GT(world.screen.timesBusy, 3);

    world.add(" dog  ");
    EXPECT_THAT(messages, ElementsAre("DOG already exists"));
    for (const char* empty : {"", "   "}) {
        world.add(empty);
        EXPECT_THAT(messages, ElementsAre(" already exists"));
    }
    EXPECT_EQ(readFile(world.backup(2)), plain) << "a refusal touches no file";
}

TEST_F(MaintenanceTest, RemovesAWordStepByStep)
{
    world.load(3, {"CAT", "DOG"});
    const std::string file = world.levelFile(3);
    world.remove(" cat ");
    EXPECT_THAT(messages,
                ElementsAre("Remove word and sort", "Word CAT removed and dictionary sorted, now backup old dictionary",
                            "File " + world.backup(3) + " backed up, now compress file" + file,
                            "File compressed, now read and verify " + file, "Word CAT removed from " + file));
    EXPECT_EQ(wordsInFile(3), std::vector<std::string>{"DOG"});
    for (const char* missing : {"CAT", "", " "}) {
        world.remove(missing);
        EXPECT_THAT(messages,
                    ElementsAre((*missing == 'C' ? "CAT" : "") + std::string(" does not exist in dictionary")));
    }
    EXPECT_EQ(world.dictionary.words.count(), 1);

    world.remove("DOG"); // the header has no place for "no word": it keeps the last one
    EXPECT_EQ(messages.back(), "Word DOG removed from " + file);
    EXPECT_EQ(world.dictionary.words.count(), 0);
    world.add("EEL");
    EXPECT_EQ(entriesOf(world.dictionary.words), std::vector<std::string>{"EEL"});
    EXPECT_EQ(wordsInFile(3), std::vector<std::string>{"EEL"});
}

// Both copies go, the count goes down by one, and the old last entry is written once more. The next addition sorts it
// in.
TEST_F(MaintenanceTest, RemovesAWordThatStandsTwice)
{
    world.load(1, {"A", "B", "B", "C", "D"});
    world.remove("B");
    EXPECT_EQ(messages.back(), "Word B removed from " + world.levelFile(1));
    EXPECT_EQ(entriesOf(world.dictionary.words), (std::vector<std::string>{"A", "C", "D", "C"}));
    EXPECT_EQ(world.dictionary.words.entry(5), "D");
    EXPECT_EQ(wordsInFile(1), entriesOf(world.dictionary.words));
    world.add("E");
    EXPECT_EQ(entriesOf(world.dictionary.words), (std::vector<std::string>{"A", "C", "C", "D", "E"}));
}

TEST_F(MaintenanceTest, AddsAndRemovesAtBothEnds)
{
    std::vector<std::string> words = countedWords(1000);
    world.load(1, words);
    for (const char* word : {"AAA", "ZZZ"})
        world.add(word);
    words.insert(words.begin(), "AAA");
    words.emplace_back("ZZZ");
    EXPECT_EQ(entriesOf(world.dictionary.words), words);
    EXPECT_EQ(wordsInFile(1), words);
    for (const char* word : {"ZZZ", "AAA"})
        world.remove(word);
    EXPECT_EQ(wordsInFile(1), countedWords(1000));
}

// The limit is met exactly: one word more than 200,000 in a list from elsewhere is no reason to refuse.
TEST_F(MaintenanceTest, IsFullAtExactly200000)
{
    world.load(3, countedWords(199'999));
    world.add("ZEBRA");
    EXPECT_EQ(world.dictionary.words.count(), 200'000);
    EXPECT_EQ(wordsInFile(3).size(), 200'000U);
    const std::string file = readFile(world.levelFile(3));
    world.add("ZEBU");
    EXPECT_THAT(messages, ElementsAre("Dictionary is full"));
    world.add("ZEBRA");
    EXPECT_THAT(messages, ElementsAre("ZEBRA already exists"));
    EXPECT_EQ(readFile(world.levelFile(3)), file);

    world.load(3, countedWords(200'001));
    world.add("ZEBU");
    EXPECT_EQ(messages.back(), "Word ZEBU added to " + world.levelFile(3));
    EXPECT_EQ(world.dictionary.words.count(), 200'002);

    world.load(3, countedWords(250'000)); // no more room in the word array
    world.add("ZEBU");
    EXPECT_EQ(messages.size(), 2U);
    EXPECT_EQ(world.dictionary.words.count(), 250'000);
    EXPECT_EQ(readFile(world.levelFile(3)), asLines(countedWords(250'000)));
}

TEST_F(MaintenanceTest, ChecksAgainstTheDictionaryOnceAListIsShown)
{
    world.load(2, {"CAT", "DOG"});
    const auto check = [this](const std::string& text) {
        messages.clear();
        maintenance.Text1 = text;
        maintenance.spellCheck();
        return messages.at(0);
    };
    EXPECT_EQ(check("CAT"), "Load Dictionary first");
    maintenance.showDictionary();
    EXPECT_EQ(check(" cat "), "CAT found");
    EXPECT_EQ(check("cow"), "COW NOT found");
    EXPECT_EQ(check(""), " found");
    EXPECT_EQ(messages.size(), 1U);
    maintenance.reset();
    EXPECT_EQ(check("CAT"), "Load Dictionary first");
    world.add("EMU");
    EXPECT_EQ(check("EMU"), "EMU found") << "the verification shows a list too";
}

TEST_F(MaintenanceTest, OpensWithAWordAndALevelOnly)
{
    world.load(3, {"CAT"});
    EXPECT_FALSE(maintenance.open("", world.status));
    EXPECT_FALSE(maintenance.open("Your move", world.status));
    EXPECT_EQ(world.status.Label1, "Select a word first");
    ASSERT_TRUE(maintenance.open("EMU", world.status));
    maintenance.activate();
    EXPECT_EQ(maintenance.Text1, "EMU");
    EXPECT_TRUE(maintenance.Option3.Value && maintenance.Option3.Enabled);
    EXPECT_FALSE(maintenance.Option1.Value || maintenance.Option1.Enabled || maintenance.Option2.Enabled);

    // The words of level 3 must not reach another level's file.
    maintenance.chooseOption(2);
    EXPECT_TRUE(maintenance.Option3.Value);
    world.dictionary.applyChoice(2, "");
    maintenance.activate();
    EXPECT_TRUE(maintenance.Option2.Value && !maintenance.Option2.Enabled);
    world.add("EMU");
    EXPECT_EQ(messages.size(), 1U);
    EXPECT_FALSE(std::filesystem::exists(world.levelFile(2)));

    world.dictionary.applyChoice(0, "Mine.txt");
    EXPECT_FALSE(maintenance.open("EMU", world.status));
    EXPECT_EQ(world.status.Label1, "Cannot add words to user dictionary through this option");
    EXPECT_TRUE(world.status.Warn);
    maintenance.activate();
    world.remove("CAT");
    EXPECT_EQ(messages.size(), 1U);
    EXPECT_EQ(world.dictionary.words.count(), 1);
}

// The list shows the words as they were when it was filled, whatever happens to the dictionary meanwhile.
TEST_F(MaintenanceTest, ListsAndSearches)
{
    world.load(1, {"BEE", "CAT", "CATTLE", "SCAT", "b\xE4r", "catnip"});
    WordView& list = maintenance.List1;
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
    EXPECT_EQ(list.rowCount(), 6);
    EXPECT_EQ(maintenance.Text1, "SCAT") << "the search leaves the edited word alone";
    world.load(1, {"DOG"});
    EXPECT_EQ(list.row(0), "BEE");
    EXPECT_THROW((void)list.row(6), std::out_of_range);
}

// A file changed behind the game's back between write and read must be seen, and the backup must come back.
TEST_F(MaintenanceTest, RestoresTheBackupAfterADifference)
{
    const std::string file = world.levelFile(2);
    const std::string header = headerLine("CAT", "", "") + "\r\n";
    struct Case {
        std::string text;
        std::string message;
    };
    const std::vector<Case> cases{
        {header + "~COW\r\n~DOGS\r\n}EMU\r\n", "Error 3DOGDOGS"}, // another word
        {headerLine("BAT", "", "") + "\r\n~COW\r\n", "Error 1CATBAT"},
        {header + "~COW\r\n", "Error 3DOGCOW"},              // cut off at a line's end
        {header + "~COW\r\n~DOG\r\n~EMU\r\n", "Error 4EMU"}, // a word more
        {header + "~COW\r\n\x01\r\n", "Error 3DOGCOW"},      // what cannot be decoded
        {"CAT\r\nCOW\r\nDOG\r\n", "Error 1CAT"},
        {"", "Error 1CAT"},
    };
    for (const Case& change : cases) {
        SCOPED_TRACE(change.message);
        world.load(2, {"CAT", "DOG"});
        world.dialogs.at["File compressed"] = [&] { replaceFile(file, change.text); };
        world.add("COW");
        ASSERT_EQ(messages.size(), 6U);
        EXPECT_EQ(messages[4], change.message);
        EXPECT_EQ(messages[5], "File restored " + file);
        EXPECT_EQ(readFile(file), "CAT\r\nDOG\r\n");
        EXPECT_EQ(entriesOf(world.dictionary.words), (std::vector<std::string>{"CAT", "COW", "DOG"}));
    }
    world.load(2, {"CAT", "DOG"});
    world.dialogs.at["File compressed"] = [&] {
        replaceFile(file, cases[0].text);
        std::filesystem::remove(world.backup(2)); // not even the backup is left: then from memory
    };
    world.remove("DOG");
    EXPECT_THAT(messages.back(), "file restored " + file);
    EXPECT_EQ(readFile(file), "CAT\r\nDOG\r\n");
}

// Words that the format cannot hold are found before anything is changed.
TEST_F(MaintenanceTest, RefusesAWordThatCannotBeCoded)
{
    world.load(1, {"CAT", "DOG"});
    world.add("COW");
    const std::string file = readFile(world.levelFile(1));
    const std::string backup = readFile(world.backup(1));
    for (const std::string& word :
         {std::string(131, 'C'), std::string(120, 'C'), std::string("C\rC"), std::string("A\nA")}) {
        world.add(word);
        ASSERT_EQ(messages.size(), 2U);
        EXPECT_EQ(messages[0], "Add new word and sort");
        EXPECT_TRUE(messages[1].ends_with("\n" + world.levelFile(1))) << messages[1];
        EXPECT_EQ(readFile(world.levelFile(1)), file);
        EXPECT_EQ(readFile(world.backup(1)), backup);
        EXPECT_EQ(world.dictionary.words.count(), 3) << "nor does the word spoil the next addition";
    }
    EXPECT_FALSE(world.screen.busy);
    world.add("EMU");
    EXPECT_EQ(messages.size(), 5U);
}

// Leaving the program at a message leaves a whole file and a whole backup.
TEST_F(MaintenanceTest, TheWindowMayBeClosedAtEveryMessage)
{
    for (const char* message : {"Add", "Word EMU added and", "File " /* backed up, and compressed */}) {
        world.load(1, {"CAT", "DOG"});
        replaceFile(world.backup(1), "OLD");
        world.dialogs.at[message] = [] { throw Leaving{}; };
        EXPECT_THROW(world.add("EMU"), Leaving);
        world.dialogs.at.clear();
        EXPECT_EQ(readFile(world.levelFile(1)), "CAT\r\nDOG\r\n");
        EXPECT_EQ(readFile(world.backup(1)), *message == 'F' ? "CAT\r\nDOG\r\n" : "OLD");
        EXPECT_FALSE(world.screen.busy);
    }
}

// After a session with additions the next game would have no words to play; this is the way back.
TEST_F(MaintenanceTest, ExitOffersAPlainListOnce)
{
    world.load(1, {"A", "B", "B", "C", "D"});
    const std::string file = world.levelFile(1);
    maintenance.exit();
    EXPECT_TRUE(world.dialogs.questions.empty());
    world.add("E");
    maintenance.exit();
    maintenance.exit();
    EXPECT_THAT(world.dialogs.questions,
                ElementsAre("Write the level file as a plain word list, so that the next game can use it?"));
    EXPECT_EQ(wordsInFile(1).size(), 6U) << "answered with No";

    world.remove("B");
    const std::string maintained = readFile(file);
    messages.clear();
    world.dialogs.answer = true;
    maintenance.exit();
    EXPECT_EQ(readFile(file), asLines({"A", "C", "D", "D", "E"})) << "in order, so that lookups work";
    EXPECT_EQ(readFile(world.backup(1)), maintained);
    EXPECT_THAT(messages, ElementsAre("File " + world.backup(1) + " backed up, now write plain word list " + file,
                                      "Plain word list written, now read and verify " + file,
                                      "Level 1 is a plain word list: " + file));
    world.dictionary.read(world.dialogs, world.status, world.random, world.clock);
    EXPECT_EQ(world.dictionary.words.findWord("E"), 5);
}

TEST_F(MaintenanceTest, CodedLinesAreConvertedAndNeverChanged)
{
    const std::string maintained = headerLine("CAT", "", "") + "\r\n\x81S\r\n}DOG\r\n";
    const std::string file = world.levelFile(1);
    world.loadText(1, maintained);
    world.add("EMU");
    EXPECT_THAT(messages, ElementsAre(coded1));
    world.remove("}DOG");
    EXPECT_THAT(messages, ElementsAre(coded1));
    EXPECT_EQ(readFile(file), maintained);

    // A conversion that does not read back the same is undone as an addition is.
    world.dialogs.at["Plain word list written"] = [&] { replaceFile(file, "CAT\r\nCATS\r\nDOGS\r\n"); };
    messages.clear();
    maintenance.writePlainList();
    ASSERT_EQ(messages.size(), 4U);
    EXPECT_EQ(messages[2], "Error 3DOGDOGS");
    EXPECT_EQ(readFile(file), maintained);
    EXPECT_TRUE(world.dictionary.holdsCodedLines());

    world.dialogs.at.clear();
    maintenance.writePlainList();
    EXPECT_EQ(readFile(file), "CAT\r\nCATS\r\nDOG\r\n");
    EXPECT_EQ(world.dictionary.words.findWord("DOG"), 3) << "the words take the place of their coded lines";
    world.add("EMU");
    EXPECT_EQ(messages.size(), 5U);

    world.load(1, {"CAT"});
    messages.clear();
    maintenance.writePlainList();
    EXPECT_THAT(messages, ElementsAre("The file already is a plain word list\n" + file));
    EXPECT_EQ(readFile(file), "CAT\r\n");
    replaceFile(file, headerLine("CAT", "", "") + "\r\n\x01\r\n");
    maintenance.writePlainList();
    EXPECT_EQ(messages.size(), 2U) << "damaged: nothing is written";
    EXPECT_TRUE(isMaintainedHeader(readLines(file).at(0)));
}
