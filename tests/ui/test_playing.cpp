#include "settings/readable_colours.hpp"
#include "tests/ui/played_window.hpp"

#include <QHeaderView>
#include <QImage>

namespace lexigrove
{

namespace
{

/// Playing with mouse and keys in the real window.
class Playing : public testing::TestWithParam<Arrangement>
{
protected:
    /// Q over CATS in the second column, which is a long one in both arrangements: tiles 9 to 13.
    void SetUp() override { play_.start(GetParam(), Letters().put(9, "QCATS")); }

    [[nodiscard]] QColor face() { return toQColor(play_.flow().scheme.tileFace(1)); }
    [[nodiscard]] QColor selectedFace() { return toQColor(play_.flow().scheme.selectedFace()); }

    PlayedWindow play_;
};

INSTANTIATE_TEST_SUITE_P(Arrangements, Playing, testing::Values(Arrangement::Square, Arrangement::Staggered),
                         [](const auto& param) {
                             return param.param == Arrangement::Square ? std::string("Square") : "Staggered";
                         });

// Guards the road of a word through the window: a click on the wrong tile, a look that lags behind the model, an
// animation that nobody sees, a gap that is not refilled.
TEST_P(Playing, AWordIsClickedEnteredAndRefilled)
{
    play_.clickAll({10, 11, 12});
    EXPECT_EQ(play_.shown("WordTried"), "CAT");
    EXPECT_EQ(play_.shown("CurrScore"), "5");
    EXPECT_EQ(play_.paintedFace(11), selectedFace());
    EXPECT_EQ(play_.paintedFace(13), face());

    play_.animate(100);
    bool sawSliding = false;
    const SlidingPanel& panel = play_.theBoard().Picture2;
    const Meanwhile sliding(
        [&] { return panel.Visible && panel.Top > play_.theBoard().cellTop(1, 2) + layout::cellSize / 3; },
        [&] {
            const BoardGeometry& shape = play_.board().geometryOfBoard();
            const QRectF tile = shape.tilePlace(panel.DummyTile[0], panel.Left, panel.Top);
            sawSliding = play_.painted(facePoint(tile.toRect())) == face();
        });
    play_.press("EnterWord");
    EXPECT_TRUE(sawSliding) << "the letters above are seen on their way";

    EXPECT_EQ(play_.shown("YourScore"), "5");
    EXPECT_EQ(play_.shown("WordTried"), "");
    EXPECT_EQ(play_.flow().game.state.WordsMade.text(1, WordsGrid::wordColumn), "CAT");
    EXPECT_EQ(play_.letter(12), "Q");
    EXPECT_EQ(play_.letter(9) + play_.letter(10) + play_.letter(11), "...");
    EXPECT_EQ(play_.paintedFace(12), face());
    EXPECT_NE(play_.paintedFace(10), face());

    play_.drop(2);
    EXPECT_EQ(play_.letter(11) + play_.letter(10) + play_.letter(9), "FBH") << "its own letter lowest, then the left";
    EXPECT_EQ(play_.paintedFace(10), face());
    EXPECT_EQ(play_.waiting(), "MNPKMPTY") << "the drop row is refilled from the queue";
}

// Guards the right button: one click still acts on the path, the second enters the word instead of clicking.
TEST_P(Playing, TwoRightClicksEnterTheWord)
{
    play_.clickAll({10, 11});
    play_.click(12, Qt::RightButton);
    EXPECT_EQ(play_.shown("WordTried"), "CAT");
    play_.click(13, Qt::RightButton);
    EXPECT_EQ(play_.shown("YourScore"), "5");
    EXPECT_EQ(play_.word(), "");
    EXPECT_EQ(play_.letter(13), "S");
}

// Guards the player from losing what he built with a word that is none, or with a click over a full column.
TEST_P(Playing, RefusedActionsChangeNothing)
{
    play_.clickAll({12, 11, 10});
    play_.press("EnterWord");
    EXPECT_EQ(play_.shown("Label1"), "TAC not in dictionary");
    EXPECT_FALSE(play_.child("Warn").isHidden());
    EXPECT_EQ(play_.word(), "TAC");
    EXPECT_EQ(play_.shown("YourScore"), "0");

    play_.drop(2);
    EXPECT_EQ(play_.waiting(), "BFHKMPTY");
    EXPECT_EQ(play_.letter(9), "Q");
}

TEST_P(Playing, ThePathIsShortenedAndRestarted)
{
    play_.clickAll({10, 11, 12});
    play_.click(12);
    EXPECT_EQ(play_.shown("WordTried"), "CA");
    EXPECT_EQ(play_.paintedFace(12), face());
    play_.click(13);
    EXPECT_EQ(play_.shown("WordTried"), "S") << "not next to the last tile: a new path";
    EXPECT_EQ(play_.paintedFace(10), face());
    play_.clickAll({12, 11, 13});
    EXPECT_EQ(play_.shown("WordTried"), "S") << "a tile of the path that is not its last: a new path";
    QTest::keyClick(&play_.window(), Qt::Key_Escape);
    EXPECT_EQ(play_.shown("WordTried"), "");
    EXPECT_EQ(play_.paintedFace(13), face());
}

// Guards what the pointer tells, and developers' description from everybody else.
TEST_P(Playing, HoveringTellsTheLetter)
{
    QTest::mouseMove(&play_.board(), play_.board().tileRect(9).center());
    EXPECT_EQ(play_.shown("Label1"), "Letter Q - score =10");
    EXPECT_TRUE(play_.child("Label4").isHidden());
    EXPECT_NE(play_.paintedFace(9), face()) << "the tile under the pointer is lifted in tone";
    QTest::mouseMove(&play_.board(), play_.board().tileRect(10).center());
    EXPECT_EQ(play_.paintedFace(9), face());
}

// Guards playing without a mouse: a typed word must not end at the first of two equal letters that turns out wrong.
TEST_P(Playing, WordsAreTyped)
{
    play_.start(GetParam(), Letters().put(9, "QCATS").put(33, "C").put(36, "A"));
    play_.type("cat");
    EXPECT_EQ(play_.shown("WordTried"), "CAT");
    EXPECT_EQ(play_.flow().game.selection.tileAt(2), 11);
    QTest::keyClick(&play_.window(), Qt::Key_Backspace);
    EXPECT_EQ(play_.shown("WordTried"), "CA");
    QTest::keyClick(&play_.window(), Qt::Key_Escape);

    play_.click(33); // a C that no A touches
    play_.type("a");
    EXPECT_EQ(play_.shown("WordTried"), "CA") << "spelt anew along another path";
    play_.type("x");
    EXPECT_EQ(play_.shown("WordTried"), "CA");
    EXPECT_EQ(play_.shown("Label1"), "CAX cannot be spelled on the board");
    play_.type("t");
    QTest::keyClick(&play_.window(), Qt::Key_Return);
    EXPECT_EQ(play_.shown("YourScore"), "5");
    play_.type("2");
    EXPECT_EQ(play_.letter(11), "F") << "a digit drops into its column";
}

// Guards the grid's units: a click on a heading must find its column at every width of the window.
TEST_P(Playing, HeadingsSortTheWordsAndRowsArePicked)
{
    WordsGrid& grid = play_.flow().game.state.WordsMade;
    grid.insertOnTop({.score = 9, .word = "DOG", .maker = Maker::Computer});
    grid.insertOnTop({.score = 30, .word = "ACES"});
    grid.insertOnTop({.score = 4, .word = "BEE"});
    play_.window().showModels();
    auto& words = play_.child<WordsView>("WordsMade");
    for (const int width : {900, 1300}) {
        play_.window().resize(width, 640);
        const QHeaderView& headings = *words.horizontalHeader();
        const auto clickHeading = [&](int column) {
            const QPoint place(headings.sectionPosition(column) + headings.sectionSize(column) - 3, 5);
            QTest::mouseClick(headings.viewport(), Qt::LeftButton, {}, place);
        };
        grid.Tag.clear();
        clickHeading(WordsGrid::wordColumn);
        EXPECT_EQ(grid.text(1, 3) + grid.text(2, 3), "ACESBEE");
        clickHeading(WordsGrid::scoreColumn);
        EXPECT_EQ(grid.text(1, 3) + grid.text(2, 3), "ACESDOG");
    }
    QTest::mouseClick(words.viewport(), Qt::LeftButton, {}, words.visualRect(words.model()->index(1, 0)).center());
    EXPECT_EQ(grid.Row(), 2);
    QTest::keyClick(&words, Qt::Key_Down);
    EXPECT_EQ(grid.Row(), 3);
    const auto wordCell = [&](int row) {
        const QRect cell = words.visualRect(words.model()->index(row - 1, WordsGrid::wordColumn));
        return words.viewport()->grab(cell).toImage().pixelColor(cell.width() - 3, 3);
    };
    const WindowColours& colours = play_.host().theme.colours();
    EXPECT_EQ(wordCell(1), toQColor(colours.card));
    EXPECT_EQ(wordCell(2), toQColor(colours.computerBack));
    EXPECT_EQ(wordCell(3), toQColor(colours.cardSelection));
}

// Guards the letters' place at every size and scale: tiles within the window, square, none over another, found again
// by a click.
TEST_P(Playing, TheBoardFillsTheWindow)
{
    for (const QSize size : {play_.window().minimumSizeHint(), QSize(900, 640), QSize(1000, 1400), QSize(1900, 700)}) {
        play_.window().resize(size);
        const QRect room = play_.board().rect();
        for (int tile = 1; tile <= Board::tileCount; ++tile) {
            const QRect place = play_.board().tileRect(tile);
            if (!play_.theBoard().isVisible(tile))
                continue;
            EXPECT_TRUE(room.contains(place)) << "tile " << tile;
            EXPECT_EQ(place.width(), place.height());
            EXPECT_GE(place.width(), 36);
            EXPECT_EQ(play_.board().tileAt(place.center()), tile);
            EXPECT_EQ(play_.board().tileAt(place.topLeft() + QPoint(1, 1)), tile);
        }
        const double unused = play_.board().parentWidget()->height() - play_.board().height();
        const double wide = play_.board().parentWidget()->width() - play_.board().width();
        EXPECT_TRUE(unused < 80 || wide < 500) << "neither the height nor the width is used";
    }
}

} // namespace

} // namespace lexigrove
