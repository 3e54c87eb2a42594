#include "dictionary/list_correction.hpp"
#include "tests/dictionary/dictionary_world.hpp"

#include <gtest/gtest.h>
#include <rapidcheck.h>

namespace lexigrove
{
namespace
{

// A corrected list has no fault left, and whatever could be played of the old one is found in it.
TEST(ListCorrection, KeepsEveryWordThatCanBePlayed)
{
    const TemporaryFolder folder;
    const std::string copy = folder.file("mine-corrected.txt");
    EXPECT_EQ(correctedName(folder.file("mine.txt")), copy);
    const auto line = rc::gen::container<std::string>(rc::gen::element('A', 'B', 'b', 'c', '-', '\xE4'));
    EXPECT_TRUE(rc::check([&] {
        std::vector<std::string> lines = *rc::gen::container<std::vector<std::string>>(line);
        lines.insert(lines.begin(), "\xEF\xBB\xBF"
                                    "cab ");
        folder.write("mine.txt", asLines(lines));
        std::filesystem::remove(copy);
        writeCorrected(folder.file("mine.txt"), copy);
        const WordList words = WordList::ofLines(readFile(copy));
        RC_ASSERT(firstFault(words, copy).empty());
        RC_ASSERT(words.findWord("CAB") != -1);
        for (const std::string& word : lines)
            RC_ASSERT((words.findWord(ascii::upperCase(word)) != -1) == std::ranges::all_of(word, ascii::isLetter));
    }));
    folder.write("mine-corrected.txt", "EMU\r\n");
    EXPECT_THROW(writeCorrected(folder.file("mine.txt"), copy), FileError);
    EXPECT_EQ(folder.read("mine-corrected.txt"), "EMU\r\n");
    folder.write("none.txt", "1\r\n\r\n");
    EXPECT_THROW(writeCorrected(folder.file("none.txt"), folder.file("none-corrected.txt")), FileError);
    folder.write("coded.txt", headerLine("CAT", "", "") + "\r\n\x81S\r\n}DOG\r\n");
    writeCorrected(folder.file("coded.txt"), folder.file("words.txt"));
    EXPECT_EQ(folder.read("words.txt"), "CAT\r\nCATS\r\nDOG\r\n");
}

TEST(ListCorrection, TellsTheFirstFault)
{
    const std::pair<const char*, const char*> faults[] = {{"A\nB\n\n", "3 of mine.txt is empty"},
                                                          {"A\nbee\n1", "2 of mine.txt is in lower case"},
                                                          {"BEE\nBEE\nA", "2 of mine.txt is there twice"},
                                                          {"BEE\nA", "2 of mine.txt is out of order"},
                                                          {"CAN'T", "1 of mine.txt holds something else"}};
    for (const auto& [text, fault] : faults)
        EXPECT_TRUE(firstFault(WordList::ofLines(text), "/lists/mine.txt").starts_with(std::string("Line ") + fault));
}

} // namespace
} // namespace lexigrove
