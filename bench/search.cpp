// The sweep of the board word search over random full boards, against
//   (a) the plain reading of its rules, which the tests compare it with,
//   (b) touching every byte of the dictionary once,
//   (c) a plain trie with a depth-first walk over the board and a sort of what it found, in the manner of the fastest
//       public solvers.
// All but (b) find the same words with the same paths, which is checked. Every board comes once per pass, because a
// board that is repeated at once has trained the branch predictor. Ratios are taken board by board; medians over all
// boards and passes are shown.

#include "dictionary/letter_tables.hpp"
#include "opponent/board_search.hpp"
#include "platform/text_file.hpp"
#include "tests/opponent/plain_search.hpp"
#include "tests/support/quiet_ports.hpp"

#include <algorithm>
#include <bit>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <malloc.h>
#include <memory>
#include <new>
#include <random>
#include <string>
#include <vector>

namespace
{

std::size_t allocations = 0;
std::size_t liveBytes = 0;

} // namespace

// Counts what the program allocates. Not inlined: the compiler would take new and free for a mismatch.
[[gnu::noinline]] void* operator new(std::size_t size)
{
    void* const memory = std::malloc(size);
    if (memory == nullptr)
        throw std::bad_alloc();
    ++allocations;
    liveBytes += malloc_usable_size(memory);
    return memory;
}

[[gnu::noinline]] void operator delete(void* memory) noexcept
{
    liveBytes -= malloc_usable_size(memory);
    std::free(memory);
}

[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept
{
    liveBytes -= malloc_usable_size(memory);
    std::free(memory);
}

namespace lexigrove
{

namespace
{

constexpr int boardCount = 200;
constexpr int passes = 7;

/// The trie of a sorted list: a node's children are stored together, and a bit for each letter says which there are.
class DepthFirstSolver
{
public:
    struct Found {
        int word = 0;
        std::uint8_t length = 0;
        std::array<std::uint8_t, 64> tiles{};
    };

    explicit DepthFirstSolver(const WordList& words)
    {
        struct Range {
            int first, last;
            std::size_t depth;
        };
        std::vector<Range> ranges{{1, words.count(), 0}};
        nodes_.emplace_back();
        for (std::size_t node = 0; node < nodes_.size(); ++node) {
            auto [i, last, depth] = ranges[node];
            if (i <= last && words.entry(i).size() == depth)
                nodes_[node].word = i++;
            nodes_[node].firstChild = static_cast<std::uint32_t>(nodes_.size());
            while (i <= last) {
                const char letter = words.entry(i)[depth];
                const int begin = i;
                while (i <= last && words.entry(i)[depth] == letter)
                    ++i;
                nodes_[node].letters |= letterBit(letter);
                nodes_.emplace_back();
                ranges.push_back({begin, i - 1, depth + 1});
            }
        }
    }

    const std::vector<Found>& sweep(const SearchBoard& board)
    {
        board_ = &board;
        ++run_;
        found_.clear();
        for (std::uint8_t tile = 1; tile <= SearchBoard::tileCount; ++tile) {
            if (board.letters[tile] != 0)
                visit(0, tile, 0);
        }
        std::sort(found_.begin(), found_.end(), [](const Found& a, const Found& b) { return a.word < b.word; });
        return found_;
    }

private:
    struct Node {
        std::uint32_t letters = 0;
        std::uint32_t firstChild = 0;
        int word = 0;
        int foundInRun = 0;
    };

    static std::uint32_t letterBit(char letter) { return 1U << (letter - 'A'); }
    static std::uint64_t tileBit(int tile) { return tile >= 1 && tile <= 64 ? std::uint64_t{1} << (tile - 1) : 0; }

    void visit(std::uint32_t parent, std::uint8_t tile, std::uint64_t used)
    {
        const std::uint32_t bit = letterBit(board_->letters[tile]);
        if ((nodes_[parent].letters & bit) == 0)
            return;
        const auto before = static_cast<std::uint32_t>(std::popcount(nodes_[parent].letters & (bit - 1)));
        const std::uint32_t child = nodes_[parent].firstChild + before;
        Node& node = nodes_[child];
        if (path_.length > 0)
            used |= tileBit(path_.tiles[path_.length - 1U] % 10 * 10 + tile / 10);
        used |= tileBit(tile);
        path_.tiles[path_.length++] = tile;
        if (node.word != 0 && node.foundInRun != run_) {
            node.foundInRun = run_;
            path_.word = node.word;
            found_.push_back(path_);
        }
        if (node.letters != 0) {
            for (const std::uint8_t neighbour : board_->neighbours[tile]) {
                if ((used >> (neighbour - 1) & 1) == 0)
                    visit(child, neighbour, used);
            }
        }
        --path_.length;
    }

    std::vector<Node> nodes_;
    const SearchBoard* board_ = nullptr;
    int run_ = 0;
    Found path_;
    std::vector<Found> found_;
};

/// Full boards, dealt from the pool of 100 letters of a game with this dictionary.
std::vector<SearchBoard> dealBoards(const std::string& dictionary, bool square)
{
    LetterTables letters;
    Random poolRandom;
    letters.derive(countLetters(dictionary), poolRandom, StillClock());
    std::string pool(letters.pool.begin() + 1, letters.pool.end());
    std::mt19937 random(2026);
    std::vector<SearchBoard> boards;
    for (int i = 0; i < boardCount; ++i) {
        SearchBoard board = test::randomBoard(random, square, pool, 0);
        std::shuffle(pool.begin(), pool.end(), random);
        for (std::size_t tile = 1; tile <= 64; ++tile)
            board.letters[tile] = board.letters[tile] == 0 ? '\0' : pool[tile - 1];
        boards.push_back(board);
    }
    return boards;
}

double milliseconds(const std::function<void()>& action)
{
    const auto start = std::chrono::steady_clock::now();
    action();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

std::vector<double> ratios(const std::vector<double>& a, const std::vector<double>& b)
{
    std::vector<double> result;
    for (std::size_t i = 0; i < a.size(); ++i)
        result.push_back(a[i] / b[i]);
    return result;
}

/// Touches every byte once.
unsigned touch(const std::string& text)
{
    unsigned sum = 0;
    for (const char c : text)
        sum += static_cast<unsigned char>(c);
    return sum;
}

bool sameWords(const CandidateList& candidates, const std::vector<DepthFirstSolver::Found>& found)
{
    if (candidates.count() != static_cast<int>(found.size()))
        return false;
    for (int position = 1; position <= candidates.count(); ++position) {
        const auto path = candidates.path(position);
        const DepthFirstSolver::Found& other = found[static_cast<std::size_t>(position) - 1];
        if (!std::equal(path.begin(), path.end(), other.tiles.begin(), other.tiles.begin() + other.length))
            return false;
    }
    return true;
}

bool sameItems(const CandidateList& candidates, const std::vector<std::string>& items)
{
    if (candidates.count() != static_cast<int>(items.size()))
        return false;
    for (int position = 1; position <= candidates.count(); ++position) {
        if (candidates.item(position) != items[static_cast<std::size_t>(position) - 1])
            return false;
    }
    return true;
}

void require(bool condition, const char* message)
{
    if (condition)
        return;
    std::fprintf(stderr, "%s\n", message);
    std::exit(1);
}

struct Times {
    std::vector<double> sweep, plain, touch, depthFirst;
};

Times timeSearches(BoardSearch& search, const WordList& words, const std::string& dictionary,
                   const std::vector<SearchBoard>& boards)
{
    DepthFirstSolver solver(words);
    Times times;
    for (const SearchBoard& board : boards) {
        test::PlainSearch plain(board);
        times.plain.push_back(milliseconds([&] { plain.sweep(words); }));
        require(sameItems(search.sweep(board, words), plain.found), "The plain reading found other words");
        require(sameWords(search.candidates(), solver.sweep(board)), "The plain trie found other words");
    }
    unsigned sum = 0;
    for (int pass = 0; pass < passes; ++pass) {
        for (const SearchBoard& board : boards)
            times.sweep.push_back(milliseconds([&] { search.sweep(board, words); }));
        for (const SearchBoard& board : boards)
            times.depthFirst.push_back(milliseconds([&] { solver.sweep(board); }));
        for (std::size_t i = 0; i < boards.size(); ++i)
            times.touch.push_back(milliseconds([&] { sum += touch(dictionary); }));
    }
    require(sum != 0, "The dictionary is empty");
    return times;
}

void measureArrangement(BoardSearch& search, const WordList& words, const std::string& dictionary, bool square)
{
    const std::vector<SearchBoard> boards = dealBoards(dictionary, square);
    const std::size_t allocationsBefore = allocations;
    std::vector<double> found;
    found.reserve(boards.size());
    const std::size_t own = allocations - allocationsBefore;
    for (const SearchBoard& board : boards)
        found.push_back(search.sweep(board, words).count());
    const std::size_t allocated = allocations - allocationsBefore - own;

    const Times times = timeSearches(search, words, dictionary, boards);
    const std::vector<double> firstPass(times.sweep.begin(), times.sweep.begin() + boardCount);
    std::printf("  %-9s %6.0f %9.3f | %8.2f %7.4f | %8.3f %7.2f | %8.3f %7.2f | %zu\n", square ? "Square" : "Staggered",
                median(found), median(times.sweep), median(times.plain), median(ratios(firstPass, times.plain)),
                median(times.touch), median(ratios(times.sweep, times.touch)), median(times.depthFirst),
                median(ratios(times.sweep, times.depthFirst)), allocated);
    if (words.count() < 100'000)
        return;
    const auto promise = [&](const char* baseline, double ratio, double goal) {
        std::printf("A sweep of level 3, %s; %s; ratio %.3f (goal: at most %.2f)\n", square ? "square" : "staggered",
                    baseline, ratio, goal);
    };
    promise("the plain reading of the rule", median(ratios(firstPass, times.plain)), 0.03);
    promise("a depth-first walk of a trie", median(ratios(times.sweep, times.depthFirst)), square ? 0.48 : 0.60);
}

void measureDictionary(const std::string& name, const std::string& dictionary)
{
    const WordList words = WordList::ofLines(dictionary);
    std::vector<double> builds(9);
    for (double& time : builds)
        time = milliseconds([&] { WordTrie().build(words); });
    const std::size_t before = liveBytes;
    const auto search = std::make_unique<BoardSearch>();
    search->sweep(SearchBoard{}, words);
    const std::size_t bytes = liveBytes - before;
    std::printf("%s: %d words; prepared in %.1f ms (goal at level 3: 10), %.2f times its bytes in memory (goal: 3)\n",
                name.c_str(), words.count(), median(builds),
                static_cast<double>(bytes) / static_cast<double>(dictionary.size()));
    measureArrangement(*search, words, dictionary, true);
    measureArrangement(*search, words, dictionary, false);
}

} // namespace

} // namespace lexigrove

/// Measures the word lists named on the command line, or those of the build.
int main(int argumentCount, char** arguments)
{
    std::vector<std::string> paths(arguments + 1, arguments + argumentCount);
    if (paths.empty()) {
        const std::filesystem::path shipped = std::filesystem::path(arguments[0]).parent_path() / "../share/lexigrove";
        for (const char* const name : {"L1Ascii.txt", "L2Ascii.txt", "L3Ascii.txt"}) {
            if (std::filesystem::exists(shipped / name))
                paths.push_back((shipped / name).string());
        }
    }
    if (paths.empty()) {
        std::fprintf(stderr, "No word lists in ../share/lexigrove beside the program; name one\n");
        return 1;
    }
    std::printf("Medians over %d random full boards; times in ms. No sweep should allocate.\n"
                "             words    sweep |    plain   ratio |    bytes   ratio |     trie   ratio | allocations\n",
                lexigrove::boardCount);
    for (const std::string& path : paths)
        lexigrove::measureDictionary(std::filesystem::path(path).filename().string(), lexigrove::readFile(path));
    return 0;
}
