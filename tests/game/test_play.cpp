#include "tests/support/random_play.hpp"

#include <functional>
#include <rapidcheck.h>
#include <set>

namespace lexigrove
{
namespace
{

/// Guards against each wrong turn of a path: what a click appends, takes off, or starts afresh.
TEST(Play, AClickExtendsShortensOrRestartsThePath)
{
    PlayedGame played;
    played.start(Arrangement::Staggered);
    EXPECT_TRUE(rc::check([&] {
        played.flow.perform(Command::ClearWord);
        std::vector<int> path;
        for (const int turn : *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 9))) {
            const NeighbourList near = played.board.neighbours(path.empty() ? 28 : path.back());
            const int other = turn < 7 || path.empty() ? 7 * turn + 1 : path.back();
            const int tile = turn < near.count ? near.begin()[turn] : other;
            if (!path.empty() && tile == path.back()) {
                path.pop_back();
            } else {
                if (std::ranges::count(path, tile) > 0 || !near.contains(tile))
                    path.clear();
                path.push_back(tile);
            }
            played.click({tile});
            RC_ASSERT(played.path.tiles() == path);
            expectSoundBoard(played);
        }
    }));
}

/// Guards against a word that is on the board but cannot be typed, a path that does not hold together, and bonus tiles
/// that are passed by.
TEST(Play, AWordIsTypedAsFarAsTheBoardGoes)
{
    PlayedGame played;
    EXPECT_TRUE(rc::check([&] {
        const auto letters = [](std::size_t count) {
            return rc::gen::container<std::string>(count, rc::gen::elementOf(std::string("ACT")));
        };
        played.start(*rc::gen::element(Arrangement::Square, Arrangement::Staggered), *letters(100));
        const std::string word = *letters(12);
        played.flow.typeWord(word);
        const std::string typed = played.path.word();
        RC_ASSERT(word.starts_with(typed));
        RC_ASSERT(played.study.trace(word).matchedLength <= static_cast<int>(typed.size()));
        if (typed != word) {
            RC_ASSERT(played.status.Label1 == typed + word[typed.size()] + " cannot be spelled on the board");
        }
        expectSoundBoard(played);
    }));
    played.start(Arrangement::Square, presetOf("CAEEEEEEEA"));
    played.study.editTile(10, "A", multiplier::doubled);
    played.flow.typeLetter('C');
    played.flow.typeLetter('A');
    EXPECT_EQ(played.path.tiles(), (std::vector<int>{1, 10}));
}

/// Guards against animations that show other letters or are not wanted, and a waiting letter that does not come home.
TEST(Play, LettersAreSeenMoving)
{
    PlayedGame played("CE\r\n");
    for (const bool animated : {true, false}) {
        played.choose(animated ? &OptionsForm::Option10 : &OptionsForm::Option11);
        played.start(Arrangement::Square, presetOf("ABCEFGHI"));
        int slides = 0;
        played.screen.onStep = [&] {
            const SlidingPanel& panel = played.board.Picture2;
            slides += panel.Height == 2 * layout::cellSize && panel.DummyTile[1].Caption() == "B" ? 1 : 0;
        };
        played.click({3, 4});
        played.flow.perform(Command::EnterWord);
        EXPECT_EQ(slides, animated ? 2 * 21 : 0) << "two cells, two pixels a step over 40";
        std::vector<int> tops;
        std::vector<int> lefts; // of the letter beside, which slides over before it falls
        played.screen.onStep = [&] {
            EXPECT_EQ(played.flow.view().dropRow.guideColumn(), 1);
            tops.push_back(played.board.waiting(1).Top());
            lefts.push_back(played.board.waiting(2).Left());
        };
        played.flow.drop(1);
        EXPECT_TRUE(std::ranges::is_sorted(tops) && std::ranges::is_sorted(lefts, std::greater()));
        EXPECT_GT(std::set(tops.begin(), tops.end()).size(), 8U) << "every step of the fall is seen";
        EXPECT_EQ(tops.back(), played.board.cellTop(2, 1));
        EXPECT_EQ(lefts.back(), Board::columnLeft(1));
        EXPECT_EQ(played.board.waiting(1).Top(), layout::dropRowTop);
    }
}

/// Guards against a bonus tile that looks for a place forever.
TEST(Play, ABonusTileNeedsAPlainOne)
{
    QuietWorld world("");
    GameParts parts(world.ports(), world.folder.path());
    parts.game.board.layOut(Arrangement::Square);
    for (BoxControl& tile : parts.game.board.Tiles)
        tile.MaskColor(multiplier::red);
    parts.game.wordEntry.awardBonusTile(multiplier::doubled);
    EXPECT_EQ(parts.game.state.bonusTilesOnBoard, 0);
}

} // namespace
} // namespace lexigrove
