#include "scores/score_form.hpp"
#include "tests/settings/world.hpp"

#include <gmock/gmock.h>

namespace lexigrove
{

namespace
{

class ScoreFormTest : public testing::Test
{
protected:
    /// A window whose player presses one button.
    struct Window : ScoreWindow {
        void (ScoreForm::*press)() = &ScoreForm::pressCloseForm;
        void show(ScoreForm& shown) override
        {
            shown.activate();
            (shown.*press)();
        }
    };

    TemporaryFolder folder;
    ScriptedDialogs dialogs;
    ScoreFile scores{folder.path(), dialogs};
    ScoreForm form{scores, dialogs};
    Window window;
};

} // namespace

// Guards against a first start that shows no list, tells of the missing file twice, or asks for a name.
TEST_F(ScoreFormTest, ShowOnlyListsAndCanOnlyBeClosed)
{
    window.press = &ScoreForm::pressExitProg; // disabled: it must neither answer nor hide the window
    EXPECT_EQ(showTopTen(form, window, "-1"), "");
    EXPECT_TRUE(form.isVisible());
    window.press = &ScoreForm::pressAnotherGame;
    EXPECT_EQ(showTopTen(form, window, "-1"), "");
    EXPECT_TRUE(form.isVisible());
    window.press = &ScoreForm::pressCloseForm;
    EXPECT_EQ(showTopTen(form, window, "-1"), "");
    EXPECT_FALSE(form.isVisible());

    EXPECT_THAT(dialogs.messages, testing::ElementsAre("Scores File not found - will create a new one"));
    EXPECT_TRUE(dialogs.questions.empty());
    ASSERT_EQ(form.List2.size(), 10U);
    EXPECT_EQ(form.List2.front(), "00019\tYelka");
    EXPECT_EQ(form.List2.back(), "00010\tYelka");
}

// Guards against a score equal to the lowest that enters, and one above it that does not.
TEST_F(ScoreFormTest, OnlyAScoreAboveTheLowestIsRecorded)
{
    window.press = &ScoreForm::pressAnotherGame;
    EXPECT_EQ(showTopTen(form, window, "10"), "NOGAME");
    EXPECT_TRUE(dialogs.questions.empty());

    dialogs.answers = {"", "", "Ann"};
    window.press = &ScoreForm::pressExitProg;
    EXPECT_EQ(showTopTen(form, window, "11"), "NOMORE");
    ASSERT_EQ(dialogs.questions.size(), 3U);
    EXPECT_EQ(dialogs.questions[2].title, "LexiGrove Top 10 List");
    EXPECT_EQ(dialogs.questions[2].prompt, "You have made TOP 10 list, Enter your name");
    EXPECT_EQ(form.List2[8], "00011\tYelka");
    EXPECT_EQ(form.List2[9], "00011\tAnn");
}

// Guards against a list that is harmed when the player leaves the program in the middle of the name box.
TEST_F(ScoreFormTest, LeavingInTheNameBoxChangesNothing)
{
    scores.ensure();
    const std::string before = folder.read("LexigroveScores.txt");
    EXPECT_THROW(showTopTen(form, window, "500"), Leaving);
    EXPECT_EQ(folder.read("LexigroveScores.txt"), before);
}

} // namespace lexigrove
