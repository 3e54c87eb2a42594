#include "dictionary/field_cipher.hpp"
#include "tests/dictionary/dictionary_world.hpp"

#include <algorithm>
#include <gtest/gtest.h>
#include <rapidcheck.h>

using namespace lexigrove;

namespace
{

std::string fileOf(const std::vector<std::string>& words)
{
    const WordList list = WordList::ofLines(asLines(words));
    return headerLine(list.entry(1), "1/2/2024", "3:04") + "\r\n" + codedLines(list);
}

/// Words of Windows-1252 without line ends, many of which share their beginnings.
rc::Gen<std::string> anyWord()
{
    const auto letter = rc::gen::suchThat<char>([](char character) { return character != '\r' && character != '\n'; });
    return rc::gen::oneOf(rc::gen::container<std::string>(rc::gen::element('A', 'B', 'C')),
                          rc::gen::container<std::string>(letter));
}

} // namespace

TEST(FieldCipher, EveryTextComesBack)
{
    EXPECT_TRUE(rc::check([](const std::string& text) {
        const std::string key = *rc::gen::nonEmpty<std::string>();
        const std::string cipher = encipher(text, key);
        RC_ASSERT(cipher.size() == 2 * text.size());
        RC_ASSERT(decipher(cipher, key) == text);
    }));
}

// A copy of the game must read what another wrote, whatever words it holds.
TEST(MaintainedFormat, SortedWordsSurvive)
{
    EXPECT_EQ(fileOf({"CAT", "CATS", "CATS", "DOG"}),
              "7A776A\t 8 4 7\t1/2/2024 3:04\r\n\x81S\r\n\x81\r\n}DOG\r\n"); // "129", CAT; 129, 129, 129 - 4
    EXPECT_EQ(expandLine("CATS", std::string(1, char(100 - 4 + 2)) + "B", 100), "CAB");
    EXPECT_TRUE(rc::check([] {
        auto words = *rc::gen::nonEmpty(rc::gen::container<std::vector<std::string>>(anyWord()));
        std::sort(words.begin(), words.end());
        const MaintainedWords decoded = decodeMaintained(fileOf(words));
        RC_ASSERT(decoded.words == words);
        RC_ASSERT(decoded.codingBase == 129);
    }));
}

// Damaged files end with words or with the format's own error, which fuzzing tries, too, but finds no header's base.
TEST(MaintainedFormat, DamageStaysHarmless)
{
    for (const char* base : {"", "-5", "32768", "1e99", "nan", "inf", "99999999999999999999", "0.4", "-"})
        EXPECT_THROW((void)decodeMaintained(encipher(base, KESTR) + "\tA\r\nB\r\n", Coding::Maintained), FormatError)
            << base;

    EXPECT_TRUE(isMaintainedHeader(encipher("1", KESTR) + "\tA"));

    // Each line lengthens the previous word by three letters: 750 KB would become 90 GB.
    std::string growing = headerLine("A", "", "") + "\r\n";
    for (int i = 1; i < 250'000; ++i)
        growing += "\x81XYZ\n";
    EXPECT_THROW((void)decodeMaintained(growing), FormatError);
}

// A marker that is not a byte, or that ends its line, would lose the dictionary.
TEST(MaintainedFormat, RefusesWordsThatItCannotHold)
{
    for (const std::size_t length : {116U, 119U, 130U, 300U})
        EXPECT_THROW((void)fileOf({std::string(length, 'A'), "B"}), FormatError) << length;
    for (const std::size_t length : {115U, 117U, 118U, 120U, 129U})
        EXPECT_EQ(decodeMaintained(fileOf({std::string(length, 'A'), "B"})).words.back(), "B") << length;
    const std::string longWord(300, 'A');
    EXPECT_EQ(decodeMaintained(fileOf({longWord, longWord + "S"})).words.back(), longWord + "S") << "all shared";
    EXPECT_THROW((void)codedLines(WordList::of(std::vector<std::string_view>{"A\n"})), FormatError);
}

TEST(MaintainedFormat, TellsItsHeaderFromAWord)
{
    EXPECT_TRUE(isMaintainedHeader(headerLine("CAT", "1/1/2024", "1:00")));
    EXPECT_TRUE(isMaintainedHeader(encipher("64", KESTR) + "\t"));
    for (const std::string& line : {std::string(), std::string("CAT"), std::string("7A776A"), std::string("CAT\tDOG"),
                                    std::string("\t"), std::string("7A776AXX\tA"), encipher("-1", KESTR) + "\tA"})
        EXPECT_FALSE(isMaintainedHeader(line)) << line;
    EXPECT_THROW((void)splitHeaderLine("CAT"), FormatError);
    EXPECT_EQ(splitHeaderLine(encipher("12.5", KESTR) + "\t\tX").codingBase, 12) << "a half goes to the even number";
}
