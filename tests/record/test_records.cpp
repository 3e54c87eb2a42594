#include "platform/text_file.hpp"
#include "record/daily.hpp"
#include "record/record_folder.hpp"
#include "tests/support/temporary_folder.hpp"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <rapidcheck.h>

namespace lexigrove
{

namespace
{

using Random = std::mt19937;

BoardPosition randomBoard(Random& random)
{
    BoardPosition board = boardOfTheDay(Day(std::chrono::days(random() % 50'000)), static_cast<int>(random() % 4));
    for (std::size_t tile = 1 + random() % 9; tile < board.cells.size(); tile += 2 + random() % 5) {
        if (board.cells[tile].letter != BoardPosition::none)
            board.cells[tile] = {BoardPosition::blank, multiplier::all[random() % 5]};
    }
    for (auto tile = 1 + random() % 8 * 8, last = tile + random() % 8; tile < last; ++tile)
        board.cells[tile] = {};
    board.waiting[1 + random() % 8] = BoardPosition::none;
    board.queue.resize(random() % board.queue.size());
    return board;
}

GameRecord randomRecord(Random& random)
{
    GameRecord record{.begun = "2026-02-28 23:59",
                      .userDictionary = random() % 2 == 0 ? "" : "/home/\xE9l\xE8ve/my words.txt",
                      .kind = static_cast<GameKind>(random() % 5),
                      .computerGame = random() % 2 == 0,
                      .strategy = static_cast<Strategy>(random() % 3),
                      .end = static_cast<GameEnd>(random() % 4),
                      .start = randomBoard(random)};
    for (int GameRecord::*field : {&GameRecord::yourScore, &GameRecord::compScore, &GameRecord::secondsPlayed,
                                   &GameRecord::hintsUsed, &GameRecord::redTilesMade, &GameRecord::pushes})
        record.*field = static_cast<int>(random() % 30'000);
    for (auto turns = random() % 8; turns > 0; --turns) {
        record.turns.push_back({.before = randomBoard(random), .word = "WORD", .path = {}, .score = -7});
        record.turns.back().maker = static_cast<Maker>(random() % 2);
        for (auto tiles = random() % 9; tiles > 0; --tiles)
            record.turns.back().path.push_back(1 + static_cast<int>(random() % 64));
    }
    return record;
}

/// Cut off, with a part missing or doubled, with a character changed (a number one higher is a record, but another), or
/// with another line end.
std::string damaged(const std::string& text, Random& random)
{
    const std::size_t place = random() % text.size();
    const std::size_t length = 1 + random() % 300;
    const std::string rest = text.substr(place);
    const std::string_view cut = std::string_view(rest).substr(std::min(length, rest.size()));
    const std::string other[] = {"", std::string(cut), rest.substr(0, length) + rest,
                                 static_cast<char>(rest[0] + 1) + rest.substr(1), "\r\n" + rest.substr(1)};
    return text.substr(0, place) + other[random() % std::size(other)];
}

// Guards against a field that the text loses or changes, and against any damage that is taken for a record, whole or in
// half: 1,000 damaged texts.
TEST(GameRecord, ReadsItsTextAndNothingElse)
{
    EXPECT_TRUE(rc::check([] {
        Random random(*rc::gen::arbitrary<unsigned>());
        const GameRecord record = randomRecord(random);
        const std::string text = textOf(record);
        RC_ASSERT(gameRecordOf(text) == record);
        for (int i = 0; i < 10; ++i) {
            const std::string other = damaged(text, random);
            if (other == text)
                continue;
            try {
                gameRecordOf(other);
                RC_FAIL("a damaged text was read: " + other);
            } catch (const PositionError& error) {
                RC_ASSERT(std::string(error.what()).starts_with("line "));
            }
        }
    }));
}

// Guards against a description that no longer is that of the files.
TEST(GameRecord, IsDescribed)
{
    const std::string page = readFile(DOCS_FOLDER "record.md");
    const std::size_t start = page.find("LexiGrove record 1");
    std::string example = page.substr(start, page.find("```", start) - start);
    EXPECT_EQ(gameRecordOf(example).turns.front().word, "FAVORITE");
    EXPECT_THROW(gameRecordOf(textOf(GameRecord{.begun = "2026-02-30 04:15"})), PositionError);
    EXPECT_THROW(gameRecordOf(example.replace(17, 1, "2")), PositionError);
    EXPECT_THROW(gameRecordOf(std::string(largestRecord + 1, 'x')), PositionError);
}

// Guards against a game that overwrites another of its minute, more than 200 games, a foreign file that is read or
// removed, and a damaged game that hides the others.
TEST(RecordFolder, KeepsTheNewestGames)
{
    const TemporaryFolder folder;
    const RecordFolder records(folder.path());
    EXPECT_TRUE(records.list().records.empty());
    GameRecord record{.begun = "2026-11-23 23:58"};
    records.add(record);
    for (int number = 100; number < 336; ++number)
        folder.write("Games/2026-11-22-0415-" + std::to_string(number) + ".txt", textOf(record));
    folder.write("Games/notes.txt", "mine");
    EXPECT_EQ(records.add(record), "2026-11-23-2358-002.txt");
    RecordFolder::Contents contents = records.list();
    ASSERT_EQ(contents.records.size(), RecordFolder::most);
    EXPECT_EQ(contents.records.front().name, "2026-11-23-2358-002.txt");
    EXPECT_EQ(contents.records.back().name, "2026-11-22-0415-138.txt");
    EXPECT_EQ(folder.read("Games/notes.txt"), "mine");

    folder.write("Games/2026-11-23-2358-002.txt", "LexiGrove record 1\nbegun 20");
    folder.write("Games/2026-11-23-2358-001.txt", std::string(largestRecord + 1, '\n'));
    contents = records.list();
    EXPECT_EQ(contents.damaged, 2);
    EXPECT_EQ(contents.records.size(), RecordFolder::most - 2);
}

// Guards the promise to other programs: the boards of ten days, at every level, with every compiler; and the deal that
// takes each of the hundred letters once.
TEST(Daily, DrawsTheBoardsThatAreDescribed)
{
    const std::string page = readFile(DOCS_FOLDER "daily.md");
    int days = 0;
    for (const std::string_view line : splitLines(page)) {
        const auto day = line.starts_with("    ") ? dayOf(line.substr(4, 10)) : std::nullopt;
        if (!day)
            continue;
        ++days;
        EXPECT_EQ(textOf(*day) + " " + textOf(boardOfTheDay(*day, 2)), line.substr(4));
        BoardPosition other = boardOfTheDay(*day, 3);
        other.level = 2;
        EXPECT_EQ(other, boardOfTheDay(*day, 2));
    }
    EXPECT_EQ(days, 10);
    for (const char* bad : {"2026-02-29", "2026-13-01", "2026-11-2", "2026-11-233", "2026-+1-01", "2026/11/23", ""})
        EXPECT_FALSE(dayOf(bad)) << bad;
}

// Guards against a summary that gives a word away, counts the computer's, or grows with the game.
TEST(Daily, SumsUpWithoutWords)
{
    GameRecord record{.begun = "2026-11-23 04:15", .yourScore = 187, .start = boardOfTheDay(Day{}, 3)};
    for (const char* word : {"AT", "CAT", "BIRD", "EAGLE", "FALCON", "BUZZARD"})
        record.turns.push_back({.before = {}, .word = word, .path = {}});
    record.turns.push_back({.before = {}, .word = "COMPUTER", .path = {}, .maker = Maker::Computer});
    EXPECT_EQ(dailySummary(record), "LexiGrove 2026-11-23, level 3\n187 points in 6 words\nLongest word: 7 letters\n"
                                    "\u2B1C\u2B1C\U0001F7E8\U0001F7E9\U0001F7E6\U0001F7EA");
    record.turns.assign(34, {.before = {}, .word = "AT", .path = {}});
    EXPECT_TRUE(dailySummary(record).ends_with("\u2B1C +4"));
}

} // namespace

} // namespace lexigrove
