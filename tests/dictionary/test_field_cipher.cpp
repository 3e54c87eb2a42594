#include "dictionary/field_cipher.hpp"

#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <stdexcept>

using namespace lexigrove;

// A wrong padding, digit case or key position makes the files of other copies of the game unreadable.
TEST(FieldCipher, WritesCellsOfTwoCharacters)
{
    EXPECT_EQ(encipher("129", KESTR), "7A776A");
    EXPECT_EQ(encipher("CAT", KESTR), " 8 4 7");
    EXPECT_EQ(encipher("K", KESTR), " 0");
    EXPECT_EQ(encipher("KESTRK", KESTR), " 0 0 0 0 0 0");
    EXPECT_EQ(encipher("\xFF", scoreFileKey), "C8");
    EXPECT_EQ(encipher("", KESTR), "");
    EXPECT_NE(encipher("ABCDEF", KESTR), encipher("ABC", KESTR) + encipher("DEF", KESTR));
}

// Whatever stands in a damaged file must decipher to something.
TEST(FieldCipher, DeciphersWhatIsNoCell)
{
    EXPECT_EQ(decipher("", KESTR), "");
    EXPECT_EQ(decipher("7", KESTR), std::string(1, 'K' ^ 7));
    EXPECT_EQ(decipher("a ", KESTR), decipher(" A", KESTR));
    EXPECT_EQ(decipher("4G", KESTR), std::string(1, 'K' ^ 4));
    EXPECT_EQ(decipher("G4  --", KESTR), "KES");
}

TEST(FieldCipher, RefusesAnEmptyKeyAtTheFirstCharacter)
{
    EXPECT_THROW((void)encipher("A", ""), std::invalid_argument);
    EXPECT_THROW((void)decipher("4", ""), std::invalid_argument);
    EXPECT_EQ(encipher("", ""), "");
}

TEST(FieldCipher, EveryTextComesBack)
{
    EXPECT_TRUE(rc::check([](const std::string& text) {
        const std::string key = *rc::gen::nonEmpty<std::string>();
        const std::string cipher = encipher(text, key);
        RC_ASSERT(cipher.size() == 2 * text.size());
        RC_ASSERT(decipher(cipher, key) == text);
    }));
}
