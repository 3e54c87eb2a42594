// A game by an assistive tool: the real program, of which the test knows only what its accessibility tree tells.

#include "tests/support/temporary_folder.hpp"

#include <algorithm>
#include <atspi/atspi.h>
#include <chrono>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace lexigrove
{
namespace
{

using namespace std::chrono_literals;
using Node = AtspiAccessible*; // the process ends before they matter

std::string nameOf(Node node)
{
    gchar* const name = atspi_accessible_get_name(node, nullptr);
    std::string copy = name != nullptr ? name : "";
    g_free(name);
    return copy;
}

/// The first node below `root` that is wanted, in the order of the tree; null for none.
Node find(Node root, const std::function<bool(Node)>& wanted)
{
    const int count = root != nullptr ? atspi_accessible_get_child_count(root, nullptr) : 0;
    for (int index = 0; index < count; ++index) {
        const Node child = atspi_accessible_get_child_at_index(root, index, nullptr);
        if (child == nullptr)
            continue;
        if (wanted(child))
            return child;
        if (const Node found = find(child, wanted))
            return found;
    }
    return nullptr;
}

/// Of the assistive tools' own bus, which this session's bus starts.
std::string busAddress()
{
    FILE* const answer = popen("dbus-send --session --print-reply=literal --dest=org.a11y.Bus /org/a11y/bus "
                               "org.a11y.Bus.GetAddress",
                               "r");
    std::string address(1000, '\0');
    address.resize(answer != nullptr ? fread(address.data(), 1, address.size(), answer) : 0);
    pclose(answer);
    std::erase_if(address, [](char c) { return c == ' ' || c == '\n'; });
    return address;
}

class Assistive : public testing::Test
{
protected:
    void SetUp() override
    {
        setenv("AT_SPI_BUS_ADDRESS", busAddress().c_str(), 1); // the display may remember that of another session
        ASSERT_EQ(atspi_init(), 0);
        for (const char* name : {"L1Ascii.txt", "L2Ascii.txt", "L3Ascii.txt", "Default.sch"})
            std::filesystem::copy_file(LEXIGROVE_DATA + std::string(name), folder_.file(name));
        folder_.write("LexigroveSettings.ini", "[play]\npause-when-left=false\n"); // the window may have no focus
        child_ = fork();
        if (child_ == 0) {
            unsetenv("AT_SPI_BUS_ADDRESS"); // the toolkit finds it alone
            setenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1", 1);
            setenv("QT_QPA_PLATFORM", "xcb", 1);
            execl(LEXIGROVE_PROGRAM, "lexigrove", "--folder", folder_.path().c_str(), "--position",
                  "square 2 CATSDOGS/LAKEFISH/BIRDTREE/SHIPBOAT/ROSELEAF/XXXXXXXX/XXXXXXXX/XXXXXXXX XXXXXXXX XXXX",
                  nullptr);
            _exit(127);
        }
    }
    void TearDown() override
    {
        kill(child_, SIGKILL);
        waitpid(child_, nullptr, 0);
    }

    /// Waits for a node of the program.
    Node await(const std::function<bool(Node)>& wanted, std::chrono::seconds patience = 20s)
    {
        for (const auto end = std::chrono::steady_clock::now() + patience; std::chrono::steady_clock::now() < end;) {
            const Node desktop = atspi_get_desktop(0);
            atspi_accessible_set_cache_mask(desktop, ATSPI_CACHE_NONE); // the game changes all the time
            if (const Node found = find(desktop, wanted))
                return found;
            while (g_main_context_iteration(nullptr, FALSE)) {
            }
            std::this_thread::sleep_for(50ms);
        }
        return nullptr;
    }
    Node named(const std::string& beginning, std::chrono::seconds patience = 20s)
    {
        return await([&](Node node) { return nameOf(node).starts_with(beginning); }, patience);
    }
    void press(Node node)
    {
        ASSERT_NE(node, nullptr);
        AtspiAction* const action = atspi_accessible_get_action_iface(node);
        ASSERT_NE(action, nullptr) << nameOf(node);
        EXPECT_TRUE(atspi_action_do_action(action, 0, nullptr)) << nameOf(node);
    }

    TemporaryFolder folder_;
    pid_t child_ = 0;
};

// Guards players who see nothing: ten words are found in the cells' names, pressed, entered and scored, and the game is
// left, all without a coordinate.
TEST_F(Assistive, PlaysTenWordsFromTheTreeAlone)
{
    press(named("OK")); // the configuration is new
    ASSERT_NE(named("C, row 1, column 1"), nullptr);
    const Node board = named("Board");
    for (const std::string word : {"CATS", "FISH", "BIRD", "DOGS", "LAKE", "TREE", "SHIP", "LEAF", "BOAT", "ROSE"}) {
        std::map<std::pair<int, int>, Node> cells; // by column and row
        std::map<std::pair<int, int>, char> letters;
        find(board, [&](Node cell) {
            const std::string name = nameOf(cell);
            int row = 0;
            int column = 0;
            if (std::sscanf(name.c_str(), "%*[^,], row %d, column %d", &row, &column) == 2) {
                cells[{column, row}] = cell;
                letters[{column, row}] = name[1] == ',' ? name[0] : '.';
            }
            return false;
        });
        ASSERT_EQ(cells.size(), 64U);
        std::string columns;
        for (const auto& [place, letter] : letters)
            columns += letter;
        const std::size_t start = columns.find(word);
        ASSERT_NE(start, std::string::npos) << word << " in " << columns;
        for (std::size_t i = start; i < start + word.size(); ++i)
            press(std::next(cells.begin(), static_cast<std::ptrdiff_t>(i))->second);
        Node spoken = nullptr;
        for (int tries = 0; tries < 5 && spoken == nullptr; ++tries) { // one may meet a tick, which has its turn
            press(named("Enter Word"));
            spoken = named(word + " made for", 3s);
        }
        ASSERT_NE(spoken, nullptr) << word;
        EXPECT_EQ(atspi_accessible_get_role(spoken, nullptr), ATSPI_ROLE_NOTIFICATION); // labels are not read aloud
    }
    int score = 0;
    await([&](Node node) { return std::sscanf(nameOf(node).c_str(), "Your score, %d", &score) == 1; });
    EXPECT_EQ(score, 67);
    press(await([](Node node) { return nameOf(node) == "Exit"; }));
    int status = 0;
    EXPECT_EQ(waitpid(child_, &status, 0), child_);
    EXPECT_EQ(WEXITSTATUS(status), 0);
}

} // namespace
} // namespace lexigrove
