#include "platform/text_file.hpp"
#include "settings/configuration.hpp"
#include "tests/settings/options_world.hpp"

#include <gmock/gmock.h>

namespace lexigrove
{

namespace
{

class FrozenClock : public Clock
{
public:
    [[nodiscard]] double secondsSinceMidnight() const override { return 45296; }
    [[nodiscard]] std::string shortDate() const override { return "08/01/05"; }
    [[nodiscard]] std::string shortTime() const override { return "12:34"; }
};

const std::string defaultFile = "08/01/05 12:34\r\n"
                                "\r\n0\r\nGreen\r\n"
                                "UsrDict.txt\r\nSysDict1.txt\r\nSysDict2.txt\r\nSysDict3.txt\r\n"
                                "250\r\n"
                                "False\r\nFalse\r\nTrue\r\nFalse\r\n"
                                "False\r\nTrue\r\nFalse\r\nFalse\r\n"
                                "False\r\nTrue\r\n"
                                "True\r\nFalse\r\n"
                                "True\r\nFalse\r\n";

class ConfigurationTest : public OptionsWorld
{
protected:
    static constexpr const char* fileName = "Lexigrove.cfg";
    static constexpr Colour windowColour = rgb(1, 2, 3);
    static constexpr Colour listColour = rgb(4, 5, 6);

    void load() { configuration.load(windowColour, listColour); }

    [[nodiscard]] std::string notFound() const
    {
        return "Configuration file:\r\n" + configuration.path() + "\r\nnot found, default file will be created";
    }

    /// The default file with one line, 1 to 23, in place of its own.
    static std::string with(std::size_t line, const std::string& text, const std::string& file = defaultFile)
    {
        std::string changed;
        std::size_t number = 0;
        for (const auto old : splitLines(file))
            changed += (++number == line ? text : std::string(old)) + "\r\n";
        return changed;
    }

    FrozenClock time;
    Dc clock;
    Configuration configuration{{dialogs, time, form, clock, scheme, dictionary, folder.path()}};
};

} // namespace

// Guards against a first start without a message or with another file.
TEST_F(ConfigurationTest, MissingFileIsReplacedByTheDefaults)
{
    load();
    EXPECT_THAT(dialogs.messages, testing::ElementsAre(notFound()));
    EXPECT_EQ(folder.read(fileName), defaultFile);
    EXPECT_EQ(form.Combo1.Text, "Default");
    EXPECT_EQ(form.settings.dropDelay, 250);
    EXPECT_TRUE(sounds.isOn());
}

// Guards against a choice that is written to, or read from, another line.
TEST_F(ConfigurationTest, EveryChoiceComesBack)
{
    const std::string file = "yesterday\r\nNight.sch\r\n4\r\nRED\r\nC:\\my words.txt\r\na\r\nb\r\n\r\n77\r\n"
                             "True\r\nFalse\r\nFalse\r\nFalse\r\nFalse\r\nFalse\r\nFalse\r\nTrue\r\n"
                             "True\r\nFalse\r\nFalse\r\nTrue\r\nFalse\r\nTrue\r\n";
    folder.write(fileName, file);
    load();
    EXPECT_TRUE(dialogs.messages.empty());
    EXPECT_EQ(scheme.currentName, "Night.sch");
    EXPECT_EQ(form.Combo1.Text, "Night.sch");
    EXPECT_EQ(clock.DigitWidth(), 4);
    EXPECT_EQ(clock.ClockBackground(), rgb(50, 0, 0));
    EXPECT_THAT(dictionary.fileTable, testing::ElementsAre("C:\\my words.txt", "a", "b", ""));
    EXPECT_EQ(form.settings.dropDelay, 77);
    EXPECT_EQ(form.UsrDictName.Text, "C:\\my words.txt");
    EXPECT_EQ(form.UsrDictName.ToolTipText, "C:\\my words.txt");
    EXPECT_TRUE(form.UsrDictName.Enabled);
    EXPECT_TRUE(form.GetUserDictName.Enabled());
    EXPECT_FALSE(sounds.isOn());
    EXPECT_EQ(sounds.SoundOnOff.Caption, "Sound is off");

    // Each of lines 10 to 23 stands for one control and no other.
    const char* const controls[] = {"Option2", "Option3",  "Option4",  "Option5",  "Option6",  "Option7", "Option8",
                                    "Option9", "Option10", "Option11", "Option15", "Option16", "s7x8",    "s8x8"};
    const auto lines = readLines(configuration.path());
    for (std::size_t i = 0; i < std::size(controls); ++i)
        EXPECT_EQ(form.find(controls[i])->Value, lines[9 + i] == "True") << controls[i];

    dictionary.fileTable[0] = "not this"; // line 5 is the box's text
    configuration.save();
    EXPECT_EQ(folder.read(fileName), "08/01/05 12:34" + file.substr(9));
}

// Guards against the clock's own colours with "DEFAULT", and against a name that is compared without its case.
TEST_F(ConfigurationTest, DefaultClockTakesTheWindowsColours)
{
    folder.write(fileName, with(4, "Default"));
    load();
    EXPECT_EQ(clock.ClockBackground(), 0U);
    folder.write(fileName, with(4, "DEFAULT"));
    load();
    EXPECT_EQ(clock.ClockBackground(), windowColour);
    EXPECT_EQ(clock.DigitHighlight(), listColour);
    EXPECT_EQ(clock.ClockColor(), "DEFAULT");
}

// Guards against lines read more strictly or more loosely than they are written, and choices that contradict each
// other.
TEST_F(ConfigurationTest, PeculiarLines)
{
    folder.write(fileName, with(9, " 12 "));
    load();
    EXPECT_EQ(form.settings.dropDelay, 0); // line 19, "No Animation", overrides

    folder.write(fileName, with(9, " 1 2 ", with(18, "True", with(19, "False"))));
    load();
    EXPECT_EQ(form.settings.dropDelay, 12);

    folder.write(fileName, with(10, "true")); // selected, yet only "True" opens the box
    load();
    EXPECT_TRUE(form.Option4.Value); // line 12, the last "True" of its frame
    EXPECT_FALSE(form.Option2.Value);
    EXPECT_FALSE(form.UsrDictName.Enabled);

    folder.write(fileName, with(20, "False", with(23, "True")));
    form.soundButton();
    load();
    EXPECT_FALSE(sounds.isOn()); // neither "On" nor "Off": the flag stays
    EXPECT_TRUE(form.s8x8.Value);
    EXPECT_FALSE(form.s7x8.Value);
    EXPECT_TRUE(dialogs.messages.empty());
}

// Guards against a file that is cut off, or garbled, at any line: what came before stays, the controls take their
// defaults, and the fresh file is whole.
TEST_F(ConfigurationTest, FaultAtAnyLine)
{
    std::vector<std::pair<std::size_t, std::string>> damaged; // the line of the fault, 1 to 23, and the file
    const std::string changed =
        with(2, "Night.sch",
             with(3, "5", with(4, "BLUE", with(9, "40", with(12, "False", with(13, "True", with(18, "True")))))));
    std::string head;
    std::size_t number = 0;
    for (const auto line : splitLines(changed)) {
        damaged.emplace_back(++number, head);
        head += std::string(line) + "\r\n";
        if (number == 3 || number >= 9)
            damaged.emplace_back(number, with(number, "garbage", changed));
    }
    damaged.emplace_back(3, with(3, "99999", changed));
    damaged.emplace_back(9, with(9, "1e9", changed));
    damaged.emplace_back(20, with(20, "", changed));
    damaged.emplace_back(12, with(5, "mine.txt", with(10, "True", with(12, "garbage", changed))));

    for (const auto& [fault, file] : damaged) {
        SCOPED_TRACE("fault at line " + std::to_string(fault));
        scheme.currentName.clear();
        clock = Dc();
        form.settings.dropDelay = 250;
        dialogs.messages.clear();
        folder.write(fileName, file);
        load();
        EXPECT_THAT(dialogs.messages, testing::ElementsAre(notFound()));
        std::string expected = defaultFile;
        if (fault > 2)
            expected = with(2, "Night.sch", expected);
        if (fault > 3)
            expected = with(3, "5", expected);
        if (fault > 4)
            expected = with(4, "BLUE", expected);
        if (fault > 9)
            expected = with(9, "40", expected);
        EXPECT_EQ(folder.read(fileName), expected);
    }
}

// Guards against sound that is neither on nor off after a file cut off between its two lines, and sound that a fault
// behind them switches on again.
TEST_F(ConfigurationTest, SoundAfterAFault)
{
    const std::string soundOff = with(20, "False", with(21, "True"));
    const auto end = [&](int lines) { // of so many lines
        std::size_t place = 0;
        for (int i = 0; i < lines; ++i)
            place = soundOff.find('\n', place) + 1;
        return place;
    };
    folder.write(fileName, soundOff.substr(0, end(20)));
    load();
    EXPECT_TRUE(form.Option15.Value);
    EXPECT_TRUE(sounds.isOn());
    folder.write(fileName, soundOff.substr(0, end(21)));
    load();
    EXPECT_TRUE(form.Option16.Value);
    EXPECT_FALSE(sounds.isOn());
    EXPECT_EQ(folder.read(fileName), soundOff);
}

// Guards against options lost, or a game that stops, where the folder cannot be written.
TEST_F(ConfigurationTest, UnwritableFolderIsTold)
{
    std::filesystem::create_directory(folder.file(fileName)); // a folder in its place: can be neither read nor replaced
    form.select(form.Option5);
    configuration.save();
    const std::string notSaved =
        "Configuration file:\r\n" + configuration.path() + "\r\ncould not be accessed, options not saved";
    EXPECT_THAT(dialogs.messages, testing::ElementsAre(notSaved));
    EXPECT_TRUE(form.Option5.Value);
    load();
    EXPECT_THAT(dialogs.messages, testing::ElementsAre(notSaved, notFound(), notSaved));
}

// Guards against a file name with a line break that shifts every line behind it.
TEST_F(ConfigurationTest, LineBreaksInNamesStayInTheirLine)
{
    form.select(form.Option2);
    form.typeUserDictName("/words/odd\r\nname.txt");
    configuration.save();
    load();
    EXPECT_TRUE(dialogs.messages.empty());
    EXPECT_EQ(form.UsrDictName.Text, "/words/odd??name.txt");
}

} // namespace lexigrove
