#include "dictionary/field_cipher.hpp"
#include "platform/text_file.hpp"
#include "scores/score_file.hpp"
#include "tests/support/quiet_ports.hpp"
#include "tests/support/temporary_folder.hpp"

#include <algorithm>
#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <sys/wait.h>
#include <unistd.h>

namespace lexigrove
{
namespace
{

class ScoreFileTest : public testing::Test
{
protected:
    TemporaryFolder folder;
    ScriptedDialogs dialogs;
    ScoreFile scores{folder.path(), dialogs};
};

// Guards against a damaged file that crashes the game or takes valid lines with it: bad lines in between, other line
// ends, many more lines than ten; and against a recorded score that replaces a valid line instead of a default one.
TEST_F(ScoreFileTest, DamageLosesNoValidLineOfTheBestTen)
{
    const auto cipher = [](const std::string& line) { return encipher(line, scoreFileKey); };
    const auto bad = rc::gen::oneOf(rc::gen::element(cipher("0019\tShort"), cipher("00019 NoTab"), cipher("00019\t"),
                                                     cipher("-0019\tX"), std::string("hello")),
                                    rc::gen::arbitrary<std::string>());
    EXPECT_TRUE(rc::check([&] {
        std::vector<std::string> valid;
        std::string bytes = "1"; // never empty
        for (const int score : *rc::gen::container<std::vector<int>>(rc::gen::inRange(20, 50'000))) {
            valid.push_back(scoreLine(score, *rc::gen::nonEmpty<std::string>()));
            for (const std::string& line : {*bad, cipher(valid.back())})
                bytes += *rc::gen::element<std::string>("\r\n", "\n", "\r") + line;
        }
        folder.write("LexigroveScores.txt", bytes);
        std::sort(valid.begin(), valid.end());
        if (valid.size() > 10)
            valid.erase(valid.begin(), valid.end() - 10);
        const auto holdsAllValid = [&](const std::vector<std::string>& list) {
            return list.size() == 10 && std::is_sorted(list.begin(), list.end()) &&
                   std::includes(list.begin(), list.end(), valid.begin(), valid.end());
        };
        RC_ASSERT(holdsAllValid(scores.load()));
        if (valid.size() == 10)
            valid.erase(valid.begin());
        valid.push_back(scoreLine(99'999, "New"));
        RC_ASSERT(holdsAllValid(scores.record(99'999, "New")));
        RC_ASSERT(holdsAllValid(scores.load()));
    }));
    EXPECT_TRUE(dialogs.messages.empty());
    EXPECT_EQ(ScoreFile(folder.file("no such folder/"), dialogs).record(500, "Ann").size(), 10U);
}

// Guards against running games that undo each other's scores, and a score that another game has meanwhile reached.
TEST_F(ScoreFileTest, TwoGamesRecordAtTheSameMoment)
{
    scores.ensure();
    for (const int first : {1000, 1001}) { // even scores from one process, odd ones from the other
        if (fork() == 0) {
            for (int score = first; score < 1080; score += 2)
                scores.record(score, "Game " + std::to_string(first));
            _exit(0);
        }
    }
    while (wait(nullptr) > 0)
        EXPECT_EQ(scores.load().size(), 10U);
    std::vector<std::string> best;
    for (int score = 1070; score < 1080; ++score)
        best.push_back(scoreLine(score, "Game " + std::to_string(1000 + score % 2)));
    EXPECT_EQ(scores.load(), best);
    EXPECT_EQ(scores.record(1070, "Late"), best);
}

} // namespace
} // namespace lexigrove
