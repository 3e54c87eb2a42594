#include "console/console_windows.hpp"
#include "opponent/board_search.hpp"
#include "record/daily.hpp"
#include "record/past_games.hpp"
#include "tests/support/quiet_ports.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>
#include <sstream>

namespace lexigrove
{

namespace
{

using testing::ElementsAre;
using testing::HasSubstr;

/// Every way of clicking a word on a board, with what it earns. Begins with the tiles clicked so far.
void clickOn(const BoardPosition& board, const NeighbourTable& touching, std::string_view word, FoundWord clicked,
             std::vector<FoundWord>& all)
{
    if (clicked.path.size() == word.size()) {
        clicked.score = std::max(clicked.score, 1) * letterSum(word);
        all.push_back(clicked);
        return;
    }
    for (int tile = 1; tile <= BoardPosition::tileCount; ++tile) {
        const std::vector<int>& path = clicked.path;
        const BoardPosition::Cell& cell = board.cells[static_cast<std::size_t>(tile)];
        if (cell.letter != word[path.size()] || std::find(path.begin(), path.end(), tile) != path.end() ||
            (!path.empty() && !touching[static_cast<std::size_t>(path.back())].contains(tile)))
            continue;
        FoundWord further = clicked;
        further.path.push_back(tile);
        if (cell.multiplier != multiplier::red)
            further.score = std::max(further.score, static_cast<int>(cell.multiplier));
        clickOn(board, touching, word, further, all);
    }
}

BoardPosition randomBoard(std::mt19937& random, int day)
{
    BoardPosition board = boardOfTheDay(Day(std::chrono::days(day)), 1);
    for (BoardPosition::Cell& cell : board.cells) {
        if (cell.letter == BoardPosition::none || random() % 8 == 0)
            cell = {};
        else
            cell = {"AEIRST"[random() % 6], random() % 9 == 0 ? multiplier::all[random() % 5] : multiplier::plain};
    }
    return board;
}

// Guards against a best word that a bonus would have beaten, a path that earns less than another of its word, and a red
// or hidden tile that counts: on boards with holes, bonus tiles and red ones, in both arrangements.
TEST(Review, FindsTheBestAsPlainTracingDoes)
{
    const TemporaryFolder folder;
    std::mt19937 random(718);
    int lifted = 0;
    for (int game = 0; game < 60; ++game) {
        SCOPED_TRACE(game);
        const BoardPosition board = randomBoard(random, game);
        SearchBoard plain{.letters = {}, .neighbours = game % 2 == 0 ? squareNeighbours() : staggeredNeighbours()};
        std::transform(board.cells.begin(), board.cells.end(), plain.letters.begin(),
                       [](const BoardPosition::Cell& cell) { return cell.letter; });
        std::string list;
        for (int word = 0; word < 80; ++word) {
            for (std::size_t length = 2 + random() % 5; length > 0; --length)
                list += "AEIRST"[random() % 6];
            list += "\n";
        }
        folder.write("L1Ascii.txt", list);
        LevelLists lists(folder.path());
        GameRecord record{.start = board};
        record.turns = {{.before = board, .word = "X", .path = {}}};
        const Review review(record, lists);
        const WordsThere& there = review.there(ReviewList::Own, 1);

        int count = 0;
        int best = 0;
        std::size_t longest = 0;
        for (int i = 1; i <= lists.level(1).count(); ++i) {
            const std::string word(lists.level(1).entry(i));
            if (BoardSearch().traceWord(plain, word).matchedLength != static_cast<int>(word.size()))
                continue;
            std::vector<FoundWord> ways;
            clickOn(board, plain.neighbours, word, {word, {}, 0}, ways);
            const int most = std::ranges::max(ways, {}, &FoundWord::score).score;
            for (const FoundWord& found : {there.best, there.longest}) {
                const auto way = std::ranges::find(ways, found.path, &FoundWord::path);
                ASSERT_EQ(word == found.word, way != ways.end());
                ASSERT_TRUE(way == ways.end() || (way->score == found.score && found.score == most));
            }
            ++count;
            best = std::max(best, most);
            longest = std::max(longest, word.size());
        }
        ASSERT_EQ(there.count, count);
        ASSERT_EQ(there.best.score, best);
        ASSERT_EQ(there.longest.word.size(), longest);
        lifted += best > letterSum(there.best.word) ? 1 : 0;
    }
    EXPECT_GT(lifted, 40); // otherwise the bonus tiles say nothing
}

// Guards the sums and the order of what was left behind, the computer's words in them, a word of the player's that no
// search finds, and the switch of lists.
TEST(Review, AddsUpWhatWasThere)
{
    const TemporaryFolder folder;
    folder.write("L1Ascii.txt", "AT\r\nCAT\r\nDO\r\n");
    folder.write("L2Ascii.txt", "AT\nCAT\nCOG\nDO\n");
    folder.write("L3Ascii.txt", "AT\nCAT\nCOG\nDO\nDOC\nQI\n");
    LevelLists lists(folder.path());
    const BoardPosition board = boardPositionOf(
        "square 1 .....CDQ/.....AOI3/......T*G/......../......../......../......../........ ........ -");
    GameRecord record{.start = board};
    record.turns = {{board, "AT", {14, 23}, 2},
                    {board, "COG", {6, 15, 24}, 6},
                    {board, "CAT", {6, 14, 23}, 5, Maker::Computer},
                    {board, "DOC", {7, 15, 6}, 50},
                    {board, "DO", {7, 15}, 3}};
    record.turns[1].before.cells[16] = {};
    const Review review(record, lists);
    EXPECT_EQ(review.there(ReviewList::Own, 1).count, 3);
    EXPECT_EQ(review.there(ReviewList::Own, 1).longest.word, "CAT");
    EXPECT_EQ(review.there(ReviewList::LevelThree, 1).best.score, 33);
    EXPECT_THAT(review.there(ReviewList::LevelThree, 1).best.path, ElementsAre(8, 16));
    EXPECT_EQ(review.there(ReviewList::LevelThree, 2).best.word, "COG"); // the I is gone
    EXPECT_EQ(review.there(ReviewList::Own, 4).best.score, 50);

    EXPECT_EQ(summaryText(review, ReviewList::Own),
              "You took 61 of the 66 points that the best word of each turn would have given");
    EXPECT_EQ(review.possible(ReviewList::LevelThree), 33 + 6 + 50 + 33);
    EXPECT_THAT(review.mostLeftBehind(ReviewList::Own), ElementsAre(1, 5));
    EXPECT_EQ(leftBehindText(rowOf(review, ReviewList::Own, 1)), "Turn 1: you made AT for 2, CAT would have given 5");
    EXPECT_EQ(rarestText(review), "Your rarest word was DOC"); // in one list, COG in two
    EXPECT_THROW((void)review.there(ReviewList::Own, 6), std::out_of_range);

    record.start.level = 0;
    record.userDictionary = "gone.txt";
    const Review gone(record, lists);
    EXPECT_EQ(noticeText(gone, ReviewList::Own), "User dictionary cannot be read: nobody knows what else was there");
    EXPECT_EQ(gone.possible(ReviewList::Own), gone.taken());
    EXPECT_EQ(noticeText(gone, ReviewList::LevelThree), "");
}

/// Past games whose form tells the meanings that it shows as the console does.
class PastGames : public testing::Test
{
protected:
    void play(const std::string& begun, int level, int score, GameKind kind = GameKind::Normal)
    {
        GameRecord record{.begun = begun, .kind = kind, .yourScore = score, .secondsPlayed = 10 * score};
        record.start.level = level;
        record.turns = {{.before = record.start, .word = "CAT", .path = {1, 2, 3}},
                        {.before = record.start, .word = "COMPUTER", .path = {}, .maker = Maker::Computer},
                        {.before = record.start, .word = "AT", .path = {4, 5}}};
        RecordFolder(folder_.path()).add(record);
    }
    std::string scores()
    {
        std::string scores;
        for (const PastGame& game : form_.rows())
            scores += std::to_string(game.score) + " ";
        return scores;
    }

    TemporaryFolder folder_;
    std::istringstream in_;
    std::ostringstream out_;
    LineChannel channel_{in_, out_};
    ConsoleWindows windows_{channel_};
    GameState state_;
    StatusLine status_;
    RecordedSounds device_;
    SoundCues sounds_{device_, folder_.path()};
    MeaningServices services_{folder_.path()};
    Meanings meanings_{state_, status_, sounds_, services_, windows_};
    LevelLists lists_{folder_.path()};
    PastGamesForm form_{folder_.path(), lists_, meanings_};
};

// Guards the order of the rows at the first and second click, the filter and what goes with it, and bests that a game
// of another kind takes.
TEST_F(PastGames, SortsFiltersAndChartsGames)
{
    play("2026-11-20 10:00", 2, 50);
    play("2026-11-21 10:00", 1, 70);
    play("2026-11-22 10:00", 2, 50);
    play("2026-11-22 11:00", 2, 90, GameKind::Preset);
    folder_.write("Games/2026-11-22-1200-001.txt", "damaged");
    form_.activate(*dayOf("2026-11-23"));
    EXPECT_EQ(scores(), "90 50 70 50 ");
    EXPECT_EQ(form_.damagedText(), "1 game cannot be read");

    form_.headingClicked(PastGamesForm::Column::Score);
    EXPECT_EQ(scores(), "90 70 50 50 ");
    EXPECT_EQ(form_.rows()[2].begun, "2026-11-22 10:00"); // the newer of two equal ones
    form_.headingClicked(PastGamesForm::Column::Score);
    EXPECT_EQ(scores(), "50 50 70 90 ");
    form_.headingClicked(PastGamesForm::Column::Kind);
    EXPECT_EQ(scores(), "90 50 70 50 ");

    EXPECT_EQ(PastGamesForm::text(form_.rows()[0], PastGamesForm::Column::LongestWord), "CAT");
    EXPECT_EQ(form_.rows()[0].words, 2);
    EXPECT_EQ(form_.rows()[0].minutes, 15);

    form_.filter(2);
    EXPECT_EQ(scores(), "90 50 50 ");
    EXPECT_EQ(form_.chart().front().begun, "2026-11-20 10:00");
    EXPECT_EQ(form_.chart().back().score, 90);
    ASSERT_EQ(form_.bests().size(), 2U); // of all levels
    EXPECT_EQ(form_.bests()[1].begun, "2026-11-20 10:00");
}

// Guards the first and last day of the calendar, the best of two games of a day, and a streak that waits for today's
// game, crosses a month and ends at a gap.
TEST_F(PastGames, CountsDailyBoards)
{
    for (const char* day : {"2026-10-03", "2026-10-30", "2026-10-31", "2026-11-01"})
        play(std::string(day) + " 12:00", 2, 40, GameKind::Daily);
    play("2026-11-01 13:00", 2, 60, GameKind::Daily);
    play("2026-11-01 14:00", 3, 80, GameKind::Daily);
    play("2026-11-02 14:00", 3, 99);
    form_.activate(*dayOf("2026-11-02"));
    EXPECT_EQ(form_.streak(), 3);
    form_.filter(2);
    const auto days = form_.calendar();
    ASSERT_EQ(days.size(), 30U);
    EXPECT_EQ(textOf(days.front().day), "2026-10-04");
    EXPECT_EQ(days[0].best, std::nullopt);
    EXPECT_EQ(days[28].best, 60);
    EXPECT_EQ(form_.bestOfCalendar(), 60);
    form_.activate(*dayOf("2026-11-01"));
    EXPECT_EQ(form_.streak(), 3);
    EXPECT_EQ(form_.calendar().front().best, 40);
    EXPECT_EQ(form_.bestOfCalendar(), 80);
    form_.activate(*dayOf("2026-11-03"));
    EXPECT_EQ(form_.streak(), 0);
}

// Guards the review's steps at both ends of a game, the word whose path is lit, and its meaning.
TEST_F(PastGames, OpensAReview)
{
    folder_.write("L2Ascii.txt", "AT\nCAT\n");
    play("2026-11-20 10:00", 2, 50);
    form_.activate(*dayOf("2026-11-23"));
    const auto review = form_.openRow(0);
    review->previous();
    EXPECT_EQ(review->turn(), 1);
    EXPECT_THAT(review->litPath(), ElementsAre(1, 2, 3));
    review->last();
    review->next();
    EXPECT_EQ(review->turn(), 3);
    EXPECT_FALSE(review->hasNext());
    EXPECT_EQ(review->thereText(), "0 words were on the board");
    review->pressMeaning();
    EXPECT_THAT(out_.str(), HasSubstr("! meaning " + services_.addressOf("AT")));
    review->light(ReviewForm::Lit::Longest);
    EXPECT_TRUE(review->litPath().empty());

    folder_.write("Games/" + form_.rows()[0].name, "damaged");
    EXPECT_THROW((void)form_.openRow(0), PositionError);
}

} // namespace

} // namespace lexigrove
