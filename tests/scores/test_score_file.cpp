#include "dictionary/field_cipher.hpp"
#include "platform/text_file.hpp"
#include "scores/score_file.hpp"
#include "tests/settings/world.hpp"

#include <algorithm>
#include <gmock/gmock.h>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

namespace lexigrove
{

namespace
{

constexpr const char* fileName = "LexigroveScores.txt";

std::string enciphered(const std::vector<std::string>& lines)
{
    std::string bytes;
    for (const std::string& line : lines)
        bytes += encipher(line, scoreFileKey) + "\r\n";
    return bytes;
}

class ScoreFileTest : public testing::Test
{
protected:
    void writeLines(const std::vector<std::string>& lines) { folder.write(fileName, enciphered(lines)); }

    std::vector<std::string> linesInFile()
    {
        std::vector<std::string> lines;
        for (const std::string& cipher : readLines(scores.path()))
            lines.push_back(decipher(cipher, scoreFileKey));
        return lines;
    }

    TemporaryFolder folder;
    ScriptedDialogs dialogs;
    ScoreFile scores{folder.path(), dialogs};
};

} // namespace

// Guards against a default file in another order or form, and a list that is not in ascending byte order.
TEST_F(ScoreFileTest, DefaultFileAndList)
{
    folder.write(fileName, ""); // empty counts as missing
    const auto list = scores.load();
    std::vector<std::string> written;
    for (int i = 19; i >= 10; --i)
        written.push_back("000" + std::to_string(i) + "\tYelka");
    EXPECT_EQ(folder.read(fileName), enciphered(written));
    std::reverse(written.begin(), written.end());
    EXPECT_EQ(list, written);
    EXPECT_EQ(scores.lowest(), 10);
    EXPECT_EQ(dialogs.messages.size(), 1U);
}

// Guards against a rewritten file in another order, a wrong line leaving, and scores that break the five digits.
TEST_F(ScoreFileTest, RecordReplacesTheLowest)
{
    scores.ensure();
    EXPECT_THAT(scores.record(10, "Equal"), testing::Each(testing::Not(testing::HasSubstr("Equal"))));
    EXPECT_THAT(scores.record(-5, "Below"), testing::Each(testing::Not(testing::HasSubstr("Below"))));
    EXPECT_THAT(scores.record(12, "Zoe"), testing::Contains(scoreLine(12, "Zoe")));
    EXPECT_THAT(scores.record(2000000, "Giant"),
                testing::Contains(scoreLine(2000000, "Giant"))); // the 00011 line leaves
    EXPECT_THAT(scores.record(13, "Bob"),
                testing::Contains(scoreLine(13, "Bob"))); // of the 00012 lines the one whose name sorts first leaves
    EXPECT_THAT(linesInFile(),
                testing::ElementsAre("00012\tZoe", "00013\tBob", "00013\tYelka", "00014\tYelka", "00015\tYelka",
                                     "00016\tYelka", "00017\tYelka", "00018\tYelka", "00019\tYelka", "99999\tGiant"));
    EXPECT_TRUE(folder.read(fileName).ends_with("\r\n"));
}

// Guards against a name that breaks the file: line ends, tabs, the zero character, every other code.
TEST_F(ScoreFileTest, AnyNameComesBackAsTyped)
{
    scores.ensure();
    std::string name;
    for (int code = 0; code < 256; ++code)
        name += static_cast<char>(code);
    ASSERT_THAT(scores.record(50, name), testing::Contains(scoreLine(50, name)));
    ASSERT_THAT(scores.record(60, "\r\n\t "), testing::Contains(scoreLine(60, "\r\n\t ")));
    const auto list = scores.load();
    EXPECT_EQ(list[8], "00050\t" + name);
    EXPECT_EQ(list[9], "00060\t\r\n\t ");
    EXPECT_EQ(linesInFile().size(), 10U);
}

// Guards against a truncated default file that is filled up with lines it still has.
TEST_F(ScoreFileTest, ShortFileIsFilledUp)
{
    writeLines({"00019\tYelka", "00018\tYelka", "12345\tAnn"});
    const auto list = scores.load();
    ASSERT_EQ(list.size(), 10U);
    EXPECT_EQ(std::adjacent_find(list.begin(), list.end()), list.end());
    EXPECT_EQ(list.front(), "00011\tYelka");
    EXPECT_EQ(list.back(), "12345\tAnn");
    EXPECT_TRUE(dialogs.messages.empty());
}

// Guards against a damaged file that crashes the game or takes valid lines with it: bad lines strewn in, lines cut off,
// other line ends, and many more lines than ten.
TEST_F(ScoreFileTest, DamageLosesNoValidLineOfTheBestTen)
{
    const std::vector<std::string> bad{"",
                                       "hello",
                                       encipher("0019\tShort", scoreFileKey),
                                       encipher("00019 NoTab", scoreFileKey),
                                       encipher("00019\t", scoreFileKey),
                                       std::string("\0\x1A\xFF", 3),
                                       encipher("-0019\tX", scoreFileKey)};
    for (unsigned seed = 1; seed <= 200; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        std::mt19937 random(seed);
        const auto below = [&](unsigned count) { return static_cast<unsigned>(random() % count); };
        std::vector<std::string> valid;
        std::string bytes = "1"; // never empty
        const std::string ends[] = {"\r\n", "\n", "\r"};
        for (unsigned i = below(25); i > 0; --i) {
            if (below(3) == 0)
                bytes += ends[below(3)] + bad[below(static_cast<unsigned>(bad.size()))];
            valid.push_back(scoreLine(static_cast<int>(20 + below(50000)), "P" + std::to_string(below(100))));
            bytes += ends[below(3)] + encipher(valid.back(), scoreFileKey);
        }
        folder.write(fileName, bytes);
        std::sort(valid.begin(), valid.end());
        if (valid.size() > 10)
            valid.erase(valid.begin(), valid.end() - 10);

        const auto list = scores.load();
        ASSERT_EQ(list.size(), 10U);
        EXPECT_TRUE(std::is_sorted(list.begin(), list.end()));
        EXPECT_TRUE(std::includes(list.begin(), list.end(), valid.begin(), valid.end()));

        if (!valid.empty() && valid.size() < 10) {
            ASSERT_THAT(scores.record(99999, "New"),
                        testing::Contains(scoreLine(99999, "New"))); // takes a default line's place
            const auto after = linesInFile();
            EXPECT_TRUE(std::includes(after.begin(), after.end(), valid.begin(), valid.end()));
        }
    }
    EXPECT_TRUE(dialogs.messages.empty());
}

// Guards against scores that are written over although they could not be read, and a game that dies on a file error.
TEST_F(ScoreFileTest, UnreadableFileIsLeftAlone)
{
    std::filesystem::create_directories(folder.file(fileName) + "/inside");
    EXPECT_EQ(scores.load().size(), 10U);
    EXPECT_THAT(scores.record(500, "Ann"), testing::Contains(scoreLine(500, "Ann"))) << "shown, if not kept";
    EXPECT_TRUE(std::filesystem::exists(folder.file(fileName) + "/inside"));

    ScoreFile nowhere(folder.file("no such folder/"), dialogs);
    EXPECT_EQ(nowhere.lowest(), 10);
    EXPECT_EQ(nowhere.record(500, "Ann").size(), 10U);
}

// Guards against running games that undo each other's scores, and readers who see a file half written.
TEST_F(ScoreFileTest, TwoGamesRecordAtTheSameMoment)
{
    scores.ensure();
    constexpr int perGame = 40;
    const auto recordAll = [&](int first) { // a slow game's scores may fall behind the other one's bar
        for (int i = 0; i < perGame; ++i)
            scores.record(first + 2 * i, "Game " + std::to_string(first));
    };
    // Even scores from one process, odd ones from the other.
    std::vector<pid_t> games;
    for (const int first : {1000, 1001}) {
        const pid_t game = fork();
        ASSERT_GE(game, 0);
        if (game == 0) {
            recordAll(first);
            _exit(0);
        }
        games.push_back(game);
    }
    bool running = true;
    int lowest = 0;
    while (running) {
        int status = 0;
        running = waitpid(games[0], &status, WNOHANG) == 0;
        const auto lines = linesInFile();
        ASSERT_EQ(lines.size(), 10U);
        const int now = scores.lowest();
        EXPECT_GE(now, lowest);
        lowest = now;
    }
    int status = 0;
    waitpid(games[1], &status, 0);

    std::vector<std::string> best;
    for (int score = 1000 + 2 * perGame - 10; score < 1000 + 2 * perGame; ++score)
        best.push_back(scoreLine(score, "Game " + std::to_string(1000 + score % 2)));
    EXPECT_EQ(scores.load(), best);
}

} // namespace lexigrove
