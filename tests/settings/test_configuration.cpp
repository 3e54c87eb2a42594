#include "platform/text_file.hpp"
#include "settings/configuration.hpp"
#include "tests/support/quiet_ports.hpp"
#include "tests/support/temporary_folder.hpp"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lexigrove
{
namespace
{

const std::string defaultFile = "12/24/2023 12:00\r\n\r\n0\r\nGreen\r\n"
                                "UsrDict.txt\r\nSysDict1.txt\r\nSysDict2.txt\r\nSysDict3.txt\r\n250\r\n"
                                "False\r\nFalse\r\nTrue\r\nFalse\r\nFalse\r\nTrue\r\nFalse\r\nFalse\r\n"
                                "False\r\nTrue\r\nTrue\r\nFalse\r\nTrue\r\nFalse\r\n";

/// The options dialog, its file and everything they need.
class OptionsTest : public testing::Test
{
protected:
    /// The options stored in this text.
    void load(const std::string& text)
    {
        folder.write("Lexigrove.cfg", text);
        configuration.load(rgb(1, 2, 3), rgb(4, 5, 6));
    }

    /// A file with one line, 1 to 23, replaced.
    static std::string with(std::size_t line, const std::string& text, const std::string& file = defaultFile)
    {
        std::string changed;
        std::size_t number = 0;
        for (const auto old : splitLines(file))
            changed += (++number == line ? text : std::string(old)) + "\r\n";
        return changed;
    }

    TemporaryFolder folder;
    ScriptedDialogs dialogs;
    RecordedSounds device;
    QuietScreen screen;
    StillClock time;
    Dc clock;
    Dictionary dictionary{folder.path()};
    ColourScheme scheme{folder.path(), dialogs};
    SoundCues sounds{device, folder.path()};
    OptionsForm form{{dialogs, screen, dictionary, scheme, sounds, folder.path()}};
    Configuration configuration{{dialogs, time, form, clock, scheme, dictionary, folder.path()}};
};

// Guards against a file that is cut off, or garbled, at any line: what came before is kept, the controls take their
// defaults, and the new file is complete.
TEST_F(OptionsTest, FaultAtAnyLine)
{
    const std::string changed =
        with(2, "Night.sch",
             with(3, "5", with(4, "BLUE", with(9, "40", with(12, "False", with(13, "True", with(18, "True")))))));
    std::vector<std::pair<std::size_t, std::string>> damaged{
        {3, with(3, "99999", changed)}, {9, with(9, "1e9", changed)}, {20, with(20, "", changed)}};
    std::size_t place = 0;
    for (std::size_t line = 1; line <= 23; place = changed.find('\n', place) + 1, ++line) {
        damaged.emplace_back(line, changed.substr(0, place));
        if (line == 3 || line >= 9)
            damaged.emplace_back(line, with(line, "garbage", changed));
    }
    for (const auto& [fault, file] : damaged) {
        SCOPED_TRACE("fault at line " + std::to_string(fault));
        load(defaultFile);
        dialogs.messages.clear();
        load(file);
        EXPECT_THAT(dialogs.messages, testing::ElementsAre("Configuration file:\r\n" + configuration.path() +
                                                           "\r\nnot found, default file will be created"));
        std::string expected = with(9, "0"); // as the file before had it, without animation
        for (const std::size_t line : {2U, 3U, 4U, 9U}) {
            if (fault > line)
                expected = with(line, std::string(splitLines(changed).at(line - 1)), expected);
        }
        EXPECT_EQ(folder.read("Lexigrove.cfg"), expected);
    }
}

// Guards against sound that is neither on nor off after a file cut off between its two lines, and sound that a later
// fault switches on again.
TEST_F(OptionsTest, SoundAfterAFault)
{
    const std::string soundOff = with(20, "False", with(21, "True"));
    load(with(21, "garbage", soundOff));
    EXPECT_TRUE(form.Option15.Value && sounds.isOn());
    load(with(22, "garbage", soundOff));
    EXPECT_FALSE(sounds.isOn());
    EXPECT_EQ(folder.read("Lexigrove.cfg"), soundOff);
}

// Guards against the clock's own colours with "DEFAULT", and against a case-insensitive comparison of that name.
TEST_F(OptionsTest, DefaultClockTakesTheWindowsColours)
{
    load(with(4, "Default"));
    EXPECT_EQ(clock.ClockBackground(), 0U);
    load(with(4, "DEFAULT"));
    EXPECT_EQ(clock.ClockBackground(), rgb(1, 2, 3));
    EXPECT_EQ(clock.DigitHighlight(), rgb(4, 5, 6));
}

// Guards against keyboard choices, which run no handler, being ignored at a game's start.
TEST_F(OptionsTest, StartTakesWhatTheControlsSay)
{
    for (Choice* choice : {&form.Option16, &form.Option5, &form.Option11})
        form.select(*choice);
    EXPECT_TRUE(sounds.isOn());
    form.takeChoices();
    EXPECT_FALSE(sounds.isOn());
    EXPECT_EQ(form.settings.dropDelay, 0);
    EXPECT_EQ(dictionary.level(), 3);

    form.settings.dropDelay = 33;
    form.select(form.Option10);
    form.setValue(form.Option5, false); // none selected: the old one stays
    form.takeChoices();
    EXPECT_EQ(form.settings.dropDelay, 33);
    EXPECT_EQ(dictionary.level(), 3);
}

// Guards against a file dialog that changes the program's working folder, and a list with files that are not schemes or
// in an order that depends on the disk.
TEST_F(OptionsTest, FilesOfTheFolder)
{
    const auto working = std::filesystem::current_path();
    dialogs.answers = {""};
    dialogs.at["Select"] = [&] { std::filesystem::current_path(folder.path()); };
    form.browseUserDictionary();
    EXPECT_EQ(std::filesystem::current_path(), working);
    EXPECT_EQ(dialogs.requests.at(0).filter, std::string("Text Files (*.txt;*.dat;*.dic)\0*.txt;*.dat;*.dic\0", 49));
    EXPECT_EQ(dialogs.requests.at(0).initialFolder, folder.path());

    for (const char* name : {"b.sch", "A.sch", "Loud.SCH", "note.txt", "sch", "x.sch.bak", ".hidden.sch"})
        folder.write(name, "");
    std::filesystem::create_directory(folder.file("folder.sch"));
    EXPECT_THAT(scheme.filesInFolder(), testing::ElementsAre("A.sch", "Loud.SCH", "b.sch"));
    EXPECT_TRUE(ColourScheme(folder.file("nowhere/"), dialogs).filesInFolder().empty());
}

} // namespace
} // namespace lexigrove
