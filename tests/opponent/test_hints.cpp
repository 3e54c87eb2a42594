#include "opponent/hints.hpp"
#include "tests/support/scripted_front_end.hpp"

#include <gtest/gtest.h>

namespace lexigrove
{

namespace
{

/// Guards each dictionary's price and the message's missing blank.
TEST(Hints, PriceFollowsTheDictionary)
{
    PlayedGame played("CAT\r\n");
    played.folder.write("UsrDict.txt", "CAT\r\n");
    OptionsForm& options = played.flow.options;
    options.UsrDictName.Text = "UsrDict.txt";
    const std::vector<std::pair<Choice*, int>> prices{
        {&options.Option3, 10}, {&options.Option4, 15}, {&options.Option5, 20}, {&options.Option2, 15}};
    for (const auto& [dictionary, price] : prices) {
        options.select(*dictionary);
        played.start(Arrangement::Square, presetOf("CAT"));
        played.state().YourScore.Caption = std::to_string(price - 1);
        played.flow.getHint();
        EXPECT_EQ(played.frontEnd.Label1, "your score must be at least" + std::to_string(price) + " to get a hint");
        EXPECT_EQ(played.yourScore(), price - 1);
        EXPECT_FALSE(played.state().redTileHold);
        played.state().YourScore.Caption = std::to_string(price + 3);
        played.flow.getHint();
        EXPECT_EQ(played.yourScore(), 3);
    }
}

class HintsWindowTest : public testing::Test
{
protected:
    HintsWindowTest()
    {
        played.start(Arrangement::Square, presetOf("CATEEEEEI'M"));
        played.state().YourScore.Caption = "100";
    }

    bool isHighlighted(int tile) { return played.board().tile(tile).backcolor() == played.flow.scheme.selectedFace(); }

    PlayedGame played{"AT\r\nCAT\r\nI'M\r\n"};
};

/// Guards against a path that stays lit on the board, and one that is forgotten or taken although none was picked.
TEST_F(HintsWindowTest, ShowsOnePathAtATime)
{
    played.click({20});
    played.frontEnd.onHints = [&](HintsForm& form) {
        EXPECT_EQ(played.flow.game.selection.length(), 0);
        form.WordsMade.setCurrent(0);
        form.pressMeaning(); // the heading has none
        form.pickRow(2);
        EXPECT_TRUE(isHighlighted(1) && isHighlighted(2) && isHighlighted(3));
        form.pickRow(1);
        EXPECT_TRUE(!isHighlighted(1) && isHighlighted(2) && isHighlighted(3));
        form.pressMeaning();
        EXPECT_FALSE(isHighlighted(2) || isHighlighted(3));
        form.pressSelect();
        EXPECT_EQ(form.result(), "AT");
    };
    played.flow.getHint();
    EXPECT_EQ(played.frontEnd.count("window meaning " + played.flow.services.addressOf("AT")), 1);
    EXPECT_EQ(played.frontEnd.count("window meaning " + played.flow.services.addressOf("Word...")), 0);
    EXPECT_EQ(played.state().WordsMade.text(1, WordsGrid::wordColumn), "AT");
    EXPECT_EQ(played.yourScore(), 100 - 15 + 2);

    played.frontEnd.onHints = [](HintsForm& form) { form.pressSelect(); };
    played.flow.getHint();
    EXPECT_EQ(played.state().WordsMade.Rows(), 2);
    EXPECT_EQ(played.state().hintsUsed, 2);
}

/// Guards against an item that is cut in the wrong place when a letter is none of A to Z.
TEST_F(HintsWindowTest, TakesAnyCharacterForALetter)
{
    played.frontEnd.onHints = [&](HintsForm& form) {
        EXPECT_EQ(form.WordsMade.text(3, WordsGrid::wordColumn), "I'M");
        EXPECT_EQ(form.WordsMade.text(3, WordsGrid::lengthColumn), "3");
        form.pickRow(3);
        EXPECT_EQ(form.shownPath(), (std::vector<int>{9, 10, 11}));
        form.pressSelect();
    };
    played.flow.getHint();
    EXPECT_EQ(played.state().WordsMade.text(1, WordsGrid::wordColumn), "I'M");
}

/// Guards the answers of the two word services on the main window, and a lookup during the computer's turn.
TEST(WordServices, AnswerOnTheStatusLine)
{
    PlayedGame played("AT\r\nCAT\r\n");
    played.start(Arrangement::Square, presetOf("CAT"));
    const auto status = [&](void (GameFlow::*service)()) {
        played.frontEnd.Label1.clear();
        (played.flow.*service)();
        return played.frontEnd.Label1;
    };
    EXPECT_EQ(status(&GameFlow::checkSpelling), "Select a word first");
    EXPECT_EQ(status(&GameFlow::showMeaning), "Select a word first");
    played.click({1, 2});
    EXPECT_EQ(status(&GameFlow::checkSpelling), "CA\r\nNot found");
    played.click({3});
    EXPECT_EQ(status(&GameFlow::checkSpelling), "CAT\r\nFound");
    EXPECT_EQ(played.flow.game.selection.length(), 3);
    for (const char* const caption : {"Computer move...", "Your move"}) {
        played.state().WordTried.Caption = caption;
        EXPECT_EQ(status(&GameFlow::checkSpelling), "Select a word first");
    }

    played.flow.enterWord();
    played.state().WordsMade.setCurrent(1);
    const std::string window = "window meaning " + played.flow.services.addressOf("CAT");
    played.state().computerTurnInProgress = true;
    EXPECT_EQ(status(&GameFlow::showMeaning), "");
    EXPECT_EQ(played.frontEnd.count(window), 0);
    played.state().computerTurnInProgress = false;
    EXPECT_EQ(status(&GameFlow::showMeaning), "");
    EXPECT_EQ(played.frontEnd.count(window), 1);
}

} // namespace

} // namespace lexigrove
