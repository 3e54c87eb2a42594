#include "tests/support/played_game.hpp"

namespace lexigrove
{
namespace
{

/// Guards against a path that stays lit on the board, rows that lose their paths when sorted, a path that is forgotten
/// or taken although none was picked, and words that are cut in the wrong place at a letter that is none of A to Z.
TEST(Hints, ShowAndTakeTheirPaths)
{
    PlayedGame played("AT\r\nCAT\r\nI'M\r\n");
    played.start(Arrangement::Square, presetOf("CATEEEEEI'M"));
    const auto lit = [&] {
        std::vector<int> tiles;
        for (int tile = 1; tile <= Board::tileCount; ++tile) {
            if (played.board.tile(tile).BorderStyle() == 1)
                tiles.push_back(tile);
        }
        return tiles;
    };
    const auto hint = [&](const std::function<void(HintsForm&)>& inTheWindow) {
        played.study.set(&GameState::yourScore, 15);
        played.windows.onHints = inTheWindow;
        played.flow.perform(Command::GetHint);
        EXPECT_EQ(lit(), std::vector<int>{});
        EXPECT_FALSE(played.state.redTileHold);
        return played.state.yourScore;
    };
    const auto take = [&](int row) {
        return hint([=](HintsForm& form) {
            if (row > 0)
                form.pickRow(row);
            form.pressSelect();
        });
    };
    played.click({20});
    hint([&](HintsForm& form) {
        EXPECT_EQ(lit(), std::vector<int>{});
        EXPECT_TRUE(played.state.redTileHold);
        form.WordsMade.setCurrent(0);
        form.pressMeaning();      // the heading has none
        form.headingClicked(500); // by score, the lowest first
        form.pickRow(3);
        EXPECT_EQ(lit(), (std::vector<int>{1, 2, 3}));
        form.pressMeaning();
        EXPECT_EQ(lit(), std::vector<int>{});
        form.pickRow(1);
        EXPECT_EQ(lit(), (std::vector<int>{2, 3}));
        form.pressClose();
    });
    EXPECT_EQ(take(0), 0) << "none was picked";
    EXPECT_EQ(take(2), 5);
    EXPECT_EQ(take(1), 4);
    EXPECT_FALSE(played.board.isVisible(9) || played.board.isVisible(10) || played.board.isVisible(11));
    EXPECT_EQ(played.state.WordsMade.text(1, WordsGrid::wordColumn), "I'M");
    const std::string meaning = "meaning https://www.thefreedictionary.com/CAT";
    EXPECT_EQ(played.windows.shown, (std::vector<std::string>{"3 hints", meaning, "3 hints", "3 hints", "1 hints"}));
    EXPECT_EQ(played.state.hintsUsed, 4);
}

} // namespace
} // namespace lexigrove
