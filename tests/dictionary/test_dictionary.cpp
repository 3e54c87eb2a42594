#include "dictionary/field_cipher.hpp"
#include "platform/leaving.hpp"
#include "tests/dictionary/dictionary_world.hpp"

#include <filesystem>
#include <numeric>

using namespace lexigrove;

namespace
{

class DictionaryTest : public testing::Test
{
protected:
    /// Reads what stands in the folder; true when the program went on.
    bool read()
    {
        try {
            world.dictionary.read(world.dialogs, world.status, world.random, world.clock);
            return true;
        } catch (const ProgramEnd&) {
            return false;
        }
    }
    bool exportWords() { return world.dictionary.exportWords(world.dialogs, world.random, world.clock); }

    static std::string failureText(const std::string& name)
    {
        return "Error while reading dictionary:\r\n" + name + "\r\nProgram cannot continue";
    }

    TemporaryFolder folder;
    DictionaryWorld world{folder.path()};
    Dictionary& dictionary = world.dictionary;
};

} // namespace

// The names that a configuration file gives to the levels must never decide what is played with.
TEST_F(DictionaryTest, ReadsTheThreePlainListsWhateverTheTableSays)
{
    EXPECT_EQ(dictionary.fileTable[0], folder.file("UsrDict.txt"));
    EXPECT_EQ(dictionary.fileTable[2], folder.file("SysDict2.txt"));
    EXPECT_EQ(dictionary.fileTable[3], folder.file("L3Ascii.txt"));
    EXPECT_EQ(dictionary.level(), 2);
    EXPECT_EQ(dictionary.loadedLevel(), -1);
    folder.write("L2Ascii.txt", "CAT\r\nDOG\r\n");
    folder.write("Other.txt", "HORSE\r\n");
    dictionary.fileTable = {"Other.txt", "Other.txt", "Other.txt", "Other.txt"};
    ASSERT_TRUE(read());
    EXPECT_EQ(entriesOf(dictionary.words), (std::vector<std::string>{"CAT", "DOG"}));
    EXPECT_EQ(dictionary.fileTable[1], folder.file("L1Ascii.txt"));
    EXPECT_EQ(dictionary.fileTable[0], "Other.txt") << "the user dictionary's name stays";
    EXPECT_EQ(world.status.Label1, "Reading Dictionary...");
    EXPECT_FALSE(world.status.Warn);
    EXPECT_EQ(std::accumulate(dictionary.letters.letterCounts.begin(), dictionary.letters.letterCounts.end(), 0), 100);
    EXPECT_EQ(dictionary.letters.letterCounts['O' - 'A' + 1] >= 16, true) << "one of six letters";
}

TEST_F(DictionaryTest, AppliesEachChoice)
{
    dictionary.redThresholdTable = {0, 11, 22, 33};
    for (int level = 1; level <= 3; ++level) {
        dictionary.applyChoice(level, "Ignored.txt");
        EXPECT_EQ(dictionary.caption(), "Lexigrove - Level " + std::to_string(level));
        EXPECT_EQ(dictionary.redThreshold(), 11 * level);
        EXPECT_EQ(dictionary.fileTable[0], folder.file("UsrDict.txt"));
    }
    dictionary.applyChoice(0, "Mine.txt");
    EXPECT_EQ(dictionary.caption(), "Lexigrove - User Dictionary (Mine.txt)");
    EXPECT_EQ(dictionary.redThreshold(), 22);
    EXPECT_THROW(dictionary.applyChoice(4, ""), std::out_of_range);
    EXPECT_EQ(dictionary.level(), 0);
}

// A relative name is looked for beside the game and not where the game was started from.
TEST_F(DictionaryTest, ReadsAUserDictionaryByEitherKindOfName)
{
    folder.write("Mine.txt", "zebra\rApe\n\nBEE");
    for (const std::string& name : {std::string("Mine.txt"), folder.file("Mine.txt")}) {
        dictionary.applyChoice(0, name);
        ASSERT_TRUE(read()) << name;
        EXPECT_EQ(entriesOf(dictionary.words), (std::vector<std::string>{"zebra", "Ape", "", "BEE"}));
        EXPECT_EQ(dictionary.loadedLevel(), 0);
    }
    // Of eleven characters A, B and two E are letters: 9, 9 and 18 places, the others are drawn.
    EXPECT_GE(dictionary.letters.letterCounts[1], 9);
    EXPECT_GE(dictionary.letters.letterCounts[5], 18);
}

// The message must come, with the file's name, before the program ends; and nothing may be half loaded.
TEST_F(DictionaryTest, EveryFailureSaysSoAndEndsTheProgram)
{
    std::string tooLong;
    for (int i = 0; i <= WordList::capacity; ++i)
        tooLong += "A\r\n";
    folder.write("L1Ascii.txt", "CAT\r\n");
    dictionary.applyChoice(1, "");
    ASSERT_TRUE(read());

    EXPECT_FALSE((dictionary.applyChoice(2, ""), read())) << "no such file";
    for (const std::string& text : {std::string(), std::string("\r\n\r\n"), tooLong}) {
        folder.write("L2Ascii.txt", text);
        EXPECT_FALSE(read());
    }
    std::filesystem::remove(folder.file("L2Ascii.txt"));
    std::filesystem::create_directory(folder.file("L2Ascii.txt"));
    EXPECT_FALSE(read()) << "a folder";
    EXPECT_EQ(world.dialogs.messages, std::vector<std::string>(5, failureText(folder.file("L2Ascii.txt"))));
    EXPECT_EQ(entriesOf(dictionary.words), std::vector<std::string>{"CAT"});

    dictionary.applyChoice(0, "Nowhere.txt");
    EXPECT_FALSE(read());
    EXPECT_EQ(world.dialogs.messages.back(), failureText("Nowhere.txt"));
}

// After words were added the level's file is no plain list: it loads line for line, and the player is told.
TEST_F(DictionaryTest, TellsOfAMaintainedLevelFile)
{
    const std::string header = headerLine("CAT", "1/1/2024", "1:00");
    for (int level = 0; level <= 3; ++level)
        folder.write("L" + std::to_string(level) + "Ascii.txt", header + "\r\n\x81S\r\n");
    dictionary.applyChoice(0, "L0Ascii.txt");
    ASSERT_TRUE(read());
    EXPECT_FALSE(dictionary.holdsCodedLines()) << "no level";
    dictionary.applyChoice(3, "");
    ASSERT_TRUE(read());
    EXPECT_TRUE(dictionary.holdsCodedLines());
    EXPECT_EQ(entriesOf(dictionary.words), (std::vector<std::string>{header, "\x81S"}));
    EXPECT_EQ(world.status.Label1, "Level 3 holds the maintained format; convert it in Dictionary Maintenance");
    EXPECT_TRUE(world.status.Warn);
    folder.write("L1Ascii.txt", "CAT\r\n");
    dictionary.applyChoice(1, "");
    ASSERT_TRUE(read());
    EXPECT_FALSE(dictionary.holdsCodedLines());
}

TEST_F(DictionaryTest, ExportsALevelOfTheOlderCoding)
{
    const std::string header = encipher("64", KESTR) + "\t" + encipher("AT", KESTR) + "\t1/1/1999";
    folder.write("L2Ascii.txt", header + "\r\nBTE\r\nCS\r\n"); // two and three letters shared
    ASSERT_TRUE(read());
    ASSERT_TRUE(exportWords());
    EXPECT_EQ(entriesOf(dictionary.words), (std::vector<std::string>{"AT", "ATTE", "ATTS"}));
    EXPECT_EQ(dictionary.codingBase, 64);
    EXPECT_EQ(folder.read("L3Ascii-1.txt"), "ATTE\r\nATTS\r\n") << "only words of three letters and more";
    EXPECT_FALSE(dictionary.holdsCodedLines());

    // A plain list is no maintained file: its words must not be taken for coded lines.
    folder.write("L2Ascii.txt", "CAT\r\nDOG\r\n");
    EXPECT_FALSE(exportWords());
    EXPECT_EQ(world.dialogs.messages, std::vector<std::string>{failureText(folder.file("L2Ascii.txt"))});
    EXPECT_EQ(dictionary.words.count(), 3);
    EXPECT_EQ(folder.read("L3Ascii-1.txt"), "ATTE\r\nATTS\r\n");
}

TEST_F(DictionaryTest, ExportsAUserDictionaryInOrder)
{
    folder.write("Mine.txt", "zebra\r\nb\xE4r\r\nApe\r\n");
    dictionary.applyChoice(0, "Mine.txt");
    ASSERT_TRUE(exportWords());
    EXPECT_EQ(entriesOf(dictionary.words), (std::vector<std::string>{"APE", "B\xC4R", "ZEBRA"}));
    EXPECT_EQ(dictionary.words.findWord("ZEBRA"), 3);
    EXPECT_GE(dictionary.letters.letterCounts['Z' - 'A' + 1], 9) << "the letters are counted in upper case";
    EXPECT_FALSE(std::filesystem::exists(folder.file("L3Ascii-1.txt")));

    folder.write("Mine.txt", "");
    EXPECT_FALSE(exportWords());
    EXPECT_EQ(world.dialogs.messages, std::vector<std::string>{failureText("Mine.txt")});
    EXPECT_EQ(dictionary.words.count(), 3);
}
