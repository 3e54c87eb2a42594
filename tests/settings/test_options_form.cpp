#include "tests/settings/options_world.hpp"

#include <gmock/gmock.h>

namespace lexigrove
{

using OptionsFormTest = OptionsWorld;
using testing::ElementsAre;
using namespace std::string_literals;

namespace
{

std::vector<std::string> selectedIn(const ChoiceFrame& frame)
{
    std::vector<std::string> names;
    for (const Choice* choice : frame.choices) {
        if (choice->Value)
            names.push_back(choice->name);
    }
    return names;
}

} // namespace

// Guards against choices of a frame that stand together, or choices of another frame that go out.
TEST_F(OptionsFormTest, ChoicesExcludeEachOtherWithinTheirFrame)
{
    form.select(form.Option2);
    form.select(form.Option10);
    form.select(form.Check1);
    EXPECT_THAT(selectedIn(form.DictionaryFrame), ElementsAre("Option2"));
    EXPECT_THAT(selectedIn(form.DropFrame), ElementsAre("Option10"));
    EXPECT_THAT(selectedIn(form.SoundFrame), ElementsAre("Option15"));
    form.setValue(form.Option2, false);
    EXPECT_TRUE(selectedIn(form.DictionaryFrame).empty());
}

// Guards against handlers that set another value than their row of the dialog, or run without a release of the mouse.
TEST_F(OptionsFormTest, MouseRunsHandlers)
{
    form.select(form.Option16); // with the keyboard
    EXPECT_TRUE(sounds.isOn());
    click(form.Option16);
    EXPECT_FALSE(sounds.isOn());
    EXPECT_EQ(sounds.SoundOnOff.Caption, "Sound is off");
    form.mouseReleased(form.Option15); // not selected: nothing
    EXPECT_FALSE(sounds.isOn());
    click(form.Option15);
    EXPECT_EQ(sounds.SoundOnOff.Caption, "Sound is on");
    EXPECT_TRUE(device.commands.empty());

    form.settings.dropDelay = 70;
    click(form.Option10);
    EXPECT_EQ(form.settings.dropDelay, 70);
    click(form.Option11);
    EXPECT_EQ(form.settings.dropDelay, 0);
    click(form.Option10); // stays 0 until something else sets it
    EXPECT_EQ(form.settings.dropDelay, 0);
    form.settings.dropDelay = 70;
    form.select(form.Option11);
    form.mouseReleased(form.Option10);
    EXPECT_EQ(form.settings.dropDelay, 0);

    const auto modes = [&] {
        return std::array{form.settings.highestScoreMode, form.settings.longestWordMode, form.settings.anyWordMode};
    };
    click(form.Option13);
    EXPECT_THAT(modes(), ElementsAre(false, true, false));
    form.mouseReleased(form.Option14);
    EXPECT_THAT(modes(), ElementsAre(false, true, false));
    click(form.Option14);
    EXPECT_THAT(modes(), ElementsAre(false, false, true));
    click(form.Option12);
    EXPECT_THAT(modes(), ElementsAre(true, false, false));

    click(form.Check1);
    EXPECT_TRUE(form.StrategyFrame.Enabled);
    form.setValue(form.Check1, false);
    form.mouseReleased(form.Check1);
    EXPECT_FALSE(form.StrategyFrame.Enabled);
    EXPECT_TRUE(form.Option12.Value);
}

// Guards against a dictionary that differs from the choice shown, and a name box that can be edited under a level.
TEST_F(OptionsFormTest, DictionaryFollowsItsChoices)
{
    click(form.Option5);
    EXPECT_EQ(dictionary.level(), 3);
    click(form.Option2);
    EXPECT_TRUE(form.UsrDictName.Enabled);
    EXPECT_TRUE(form.GetUserDictName.Enabled());
    form.typeUserDictName("mine.txt");
    EXPECT_EQ(dictionary.level(), 0);
    EXPECT_EQ(dictionary.fileTable[0], "mine.txt");
    EXPECT_EQ(dictionary.caption(), "Lexigrove - User Dictionary (mine.txt)");
    click(form.Option3);
    EXPECT_EQ(dictionary.level(), 1);
    EXPECT_FALSE(form.UsrDictName.Enabled);
    EXPECT_FALSE(form.GetUserDictName.Enabled());
    form.setValue(form.Option3, false);
    form.applyDictionaryChoice(); // none selected: the old one stays
    EXPECT_EQ(dictionary.level(), 1);
}

// Guards against choices of the keyboard that a game's start passes over.
TEST_F(OptionsFormTest, StartTakesWhatTheControlsSay)
{
    form.select(form.Option16);
    form.select(form.Option13);
    form.select(form.Option5);
    form.takeChoices();
    EXPECT_FALSE(sounds.isOn());
    EXPECT_EQ(form.settings.dropDelay, 0); // "No Animation"
    EXPECT_TRUE(form.settings.longestWordMode);
    EXPECT_FALSE(form.settings.highestScoreMode);
    EXPECT_EQ(dictionary.level(), 3);

    form.settings.dropDelay = 33;
    form.select(form.Option10);
    form.takeChoices();
    EXPECT_EQ(form.settings.dropDelay, 33);
}

// Guards against a cancelled file dialog that changes the name, and one that moves the program's working folder.
TEST_F(OptionsFormTest, BrowsingForADictionary)
{
    const auto working = std::filesystem::current_path();
    dialogs.folderOfDialog = folder.path();
    click(form.Option2);
    form.browseUserDictionary();
    EXPECT_EQ(form.UsrDictName.Text, "UsrDict.txt");
    EXPECT_EQ(std::filesystem::current_path(), working);
    EXPECT_EQ(dialogs.openRequest.title, "Select User Dictionary file to open");
    EXPECT_EQ(dialogs.openRequest.filter, "Text Files (*.txt;*.dat;*.dic)\0*.txt;*.dat;*.dic\0"s);
    EXPECT_EQ(dialogs.openRequest.initialFolder, folder.path());

    dialogs.chosenFile = "/words/nature.dic";
    form.browseUserDictionary();
    EXPECT_EQ(form.UsrDictName.Text, "/words/nature.dic");
    EXPECT_EQ(form.UsrDictName.ToolTipText, "/words/nature.dic");
    EXPECT_EQ(dictionary.fileTable[0], "/words/nature.dic");
}

// Guards against a preset board of other than 100 letters, and against texts and turns of its questions.
TEST_F(OptionsFormTest, PresetBoardAsksUntilAllLettersStand)
{
    const std::string letters(99, 'q');
    form.settings.boardTileCount = 60;
    dialogs.answers = {"AB CD", letters, letters + "\xE4", letters + "7xyz", letters + "z" + "999"};
    form.presetBoard();
    EXPECT_EQ(form.settings.boardTileCount, 64);
    EXPECT_EQ(form.settings.presetLetters, std::string(99, 'Q') + "Z");
    EXPECT_THAT(dialogs.messages,
                ElementsAre("enter 1 more letters", "Only A-Z allowed, please re-enter",
                            "last 3 too many, will be discarded", "Only A-Z allowed, please re-enter",
                            "last 3 too many, will be discarded", "Tiles preset, press Start to commence game"));
    ASSERT_EQ(dialogs.questions.size(), 5U);
    EXPECT_EQ(dialogs.questions[0].title, "Preset Letters");
    EXPECT_EQ(dialogs.questions[0].prompt, "Enter 100 letters A to Z in any sequence");
    EXPECT_EQ(dialogs.questions[1].defaultAnswer, "");
    EXPECT_EQ(dialogs.questions[2].defaultAnswer, letters);

    dialogs.answers = {""}; // cancelled: the letters set before stay
    form.presetBoard();
    EXPECT_EQ(form.settings.presetLetters, std::string(99, 'Q') + "Z");
}

// Guards against a busy pointer that stays, and a box and frame in colours other than the scheme's.
TEST_F(OptionsFormTest, ChoosingAScheme)
{
    std::string text;
    for (int i = 0; i < 13; ++i)
        text += std::to_string(i) + ";0;0\r\n";
    folder.write("Reds.sch", text);
    form.chooseScheme("Reds.sch");
    EXPECT_EQ(form.Combo1.Text, "Reds.sch");
    EXPECT_EQ(scheme.currentName, "Reds.sch");
    EXPECT_EQ(form.Combo1.backColor, 11U);
    EXPECT_EQ(form.SchemeFrame.backColor, 0U);
    form.chooseScheme("Gone.sch");
    EXPECT_EQ(scheme.currentName, "Default.sch");
    EXPECT_THAT(screen.pointers, ElementsAre(true, false, true, false));

    scheme.currentName = "Reds.sch";
    form.loadSchemes();
    EXPECT_THAT(form.Combo1.list, ElementsAre("Reds.sch"));
    EXPECT_EQ(form.Combo1.Text, "Reds.sch");
}

// Guards against sounds while sound is off, a flag that a forced sound leaves behind, and a button at odds with the
// dialog.
TEST_F(OptionsFormTest, SoundCuesAndTheirButton)
{
    sounds.play(cue::tile);
    form.soundButton();
    EXPECT_EQ(sounds.SoundOnOff.Caption, "Sound is off");
    EXPECT_THAT(selectedIn(form.SoundFrame), ElementsAre("Option16"));
    sounds.play(cue::error);
    sounds.playForced("Night.sch");
    EXPECT_FALSE(sounds.isOn());
    form.soundButton();
    EXPECT_EQ(sounds.SoundOnOff.Caption, "Sound is on");
    EXPECT_THAT(selectedIn(form.SoundFrame), ElementsAre("Option15"));
    EXPECT_THAT(device.commands,
                ElementsAre("play " + folder.path() + "beep3.wav", "play " + folder.path() + "Night.sch",
                            "play " + folder.path() + "cnqendgm.wav"));
}

} // namespace lexigrove
