#include "settings/colour_scheme.hpp"
#include "tests/settings/world.hpp"

#include <gmock/gmock.h>
#include <optional>

namespace lexigrove
{

namespace
{

class ColourSchemeTest : public testing::Test
{
protected:
    TemporaryFolder folder;
    ScriptedDialogs dialogs;
    ColourScheme scheme{folder.path(), dialogs};
};

std::optional<Colour> schemeColour(std::string_view line)
{
    Colour colour = 0;
    return readSchemeLine(line, colour) ? std::optional(colour) : std::nullopt;
}

std::optional<Colour> defaultSchemeColour(std::string_view line)
{
    Colour colour = 0;
    return readDefaultSchemeLine(line, colour) ? std::optional(colour) : std::nullopt;
}

std::string linesOf(int count, const std::string& line)
{
    std::string text;
    for (int i = 0; i < count; ++i)
        text += line + "\r\n";
    return text;
}

} // namespace

// Guards against a number conversion that is stricter, or wilder, than that of a scheme's author.
TEST(SchemeLine, ColoursAreReadLeniently)
{
    EXPECT_EQ(schemeColour("255;0;0"), rgb(255, 0, 0));
    EXPECT_EQ(schemeColour("1;2;3;4;what follows"), rgb(1, 2, 3));
    EXPECT_EQ(schemeColour(" 1 0 ;20 blue;+30.7"), rgb(10, 20, 31));
    EXPECT_EQ(schemeColour("2.5;3.5;&H1f"), rgb(2, 4, 31)); // a half goes to the even neighbour
    EXPECT_EQ(schemeColour("300;-7;x"), rgb(255, 0, 0));
    EXPECT_EQ(schemeColour("1;2"), std::nullopt);
    EXPECT_EQ(schemeColour(""), std::nullopt);

    EXPECT_EQ(defaultSchemeColour("&H8000000F;button face"), system_colour::buttonFace);
    EXPECT_EQ(defaultSchemeColour("-2147483633"), system_colour::buttonFace);
    EXPECT_EQ(defaultSchemeColour("255;0;0"), rgb(255, 0, 0));
    EXPECT_EQ(defaultSchemeColour("&hFFFF"), rgb(255, 255, 0));
    EXPECT_EQ(defaultSchemeColour("99999999999;too large"), std::nullopt);
    EXPECT_EQ(defaultSchemeColour(std::string(400, '9')), std::nullopt);
    EXPECT_EQ(defaultSchemeColour(""), std::nullopt);
}

// Guards against the wrong format for a name, and against a name that is not set.
TEST_F(ColourSchemeTest, NameDecidesTheFormat)
{
    folder.write("Default.sch", linesOf(13, "&H112233;comment"));
    folder.write("Other.sch", linesOf(13, "1;2;3"));
    EXPECT_TRUE(scheme.load("Other.sch"));
    EXPECT_EQ(scheme.currentName, "Other.sch");
    EXPECT_EQ(scheme.entry(12), rgb(1, 2, 3));
    EXPECT_TRUE(scheme.load(""));
    EXPECT_EQ(scheme.currentName, "Default.sch");
    EXPECT_EQ(scheme.entry(0), 0x112233U);
    EXPECT_TRUE(dialogs.messages.empty());
}

// Guards against a short file that takes the whole table along, or is not told.
TEST_F(ColourSchemeTest, FailureKeepsWhatWasRead)
{
    const Colour before = scheme.entry(12);
    folder.write("Short.sch", linesOf(12, "9;9;9"));
    EXPECT_FALSE(scheme.load("Short.sch"));
    EXPECT_EQ(scheme.entry(11), rgb(9, 9, 9));
    EXPECT_EQ(scheme.entry(12), before);
    EXPECT_EQ(scheme.currentName, "Default.sch");

    folder.write("Bad.sch", linesOf(3, "7;7;7") + "7;7\r\n" + linesOf(12, "7;7;7"));
    EXPECT_FALSE(scheme.load("Bad.sch"));
    EXPECT_EQ(scheme.entry(2), rgb(7, 7, 7));
    EXPECT_EQ(scheme.entry(3), rgb(9, 9, 9));

    EXPECT_FALSE(scheme.load("")); // no Default.sch either
    EXPECT_THAT(dialogs.messages,
                testing::ElementsAre("Color Scheme File:Short.sch not found, defaults will be used",
                                     "Color Scheme File:Bad.sch not found, defaults will be used",
                                     "Color Scheme File:Default.sch not found, defaults will be used"));
}

// Guards against files in the list that are no schemes, and an order that changes with the disk.
TEST_F(ColourSchemeTest, FolderIsListedInOrder)
{
    for (const char* name : {"b.sch", "A.sch", "Loud.SCH", "note.txt", "sch", "x.sch.bak", ".hidden.sch"})
        folder.write(name, "");
    std::filesystem::create_directory(folder.file("folder.sch"));
    EXPECT_THAT(scheme.filesInFolder(), testing::ElementsAre("A.sch", "Loud.SCH", "b.sch"));
    EXPECT_TRUE(ColourScheme(folder.file("nowhere/"), dialogs).filesInFolder().empty());
}

} // namespace lexigrove
