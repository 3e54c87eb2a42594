#pragma once

#include "platform/text_file.hpp"
#include "tests/support/quiet_ports.hpp"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <random>
#include <set>
#include <string>
#include <vector>

/// What the benchmarks of the dictionary share: a list of the size of level 3, and the medians of two actions.
namespace lexigrove::bench
{

/// 194,000 made-up words in ascending order, with the lengths of English words.
inline std::string madeUpList()
{
    std::mt19937 random(718);
    std::normal_distribution<double> length(8.5, 2.2);
    std::set<std::string> words;
    while (words.size() < 194'000) {
        std::string word;
        const auto letters = static_cast<std::size_t>(std::clamp(length(random), 2.0, 20.0));
        while (word.size() < letters)
            word += "ETAOINSHRDLUCMFWYPVBGKJQXZ"[std::min(random() % 26, random() % 26)];
        words.insert(word);
    }
    std::string text;
    for (const std::string& word : words)
        text += word + "\r\n";
    return text;
}

/// The text of the list named on the command line, else of the one in the build, else of a made-up one.
inline std::string levelThreeList(int argumentCount, char** arguments)
{
    const std::filesystem::path built =
        std::filesystem::path(arguments[0]).parent_path() / "../share/lexigrove/L3Ascii.txt";
    const std::string path = argumentCount > 1 ? arguments[1] : built.string();
    if (argumentCount > 1 || std::filesystem::exists(path)) {
        std::printf("List: %s\n", path.c_str());
        return readFile(path);
    }
    std::printf("List: 194,000 made-up words\n");
    return madeUpList();
}

/// A folder for files, removed at the end of the scope. It is beside the program, because on many machines the
/// temporary folder is not on a disk.
class BenchFolder
{
public:
    explicit BenchFolder(const char* program) : path_(std::filesystem::absolute(program).parent_path() / "bench_files")
    {
        std::filesystem::create_directories(path_);
    }
    ~BenchFolder() { std::filesystem::remove_all(path_); }
    BenchFolder(const BenchFolder&) = delete;
    BenchFolder& operator=(const BenchFolder&) = delete;

    [[nodiscard]] std::string prefix() const { return path_.string() + "/"; }

private:
    std::filesystem::path path_;
};

/// Asks no questions. A message, which would report a failure, is printed.
class NoDialogs : public Dialogs
{
public:
    void message(const std::string& text) override { std::printf("%s\n", text.c_str()); }
    bool confirm(const std::string&) override { return false; }
    std::string input(const std::string&, const std::string&, const std::string&) override { return {}; }
    std::string openFile(const OpenFileRequest&) override { return {}; }
};

/// The median of a time in milliseconds over some rounds.
struct Medians {
    double subject;
    double baseline;
};

/// Runs both in turn, so that whatever disturbs the machine disturbs both. The round's preparation is not timed.
inline Medians measure(
    int rounds, const std::function<void()>& subject, const std::function<void()>& baseline,
    const std::function<void()>& prepare = [] {})
{
    const auto time = [](const std::function<void()>& action) {
        const auto start = std::chrono::steady_clock::now();
        action();
        return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
    };
    std::vector<double> subjects;
    std::vector<double> baselines;
    for (int round = 0; round < rounds; ++round) {
        prepare();
        baselines.push_back(time(baseline));
        subjects.push_back(time(subject));
    }
    std::sort(subjects.begin(), subjects.end());
    std::sort(baselines.begin(), baselines.end());
    return {subjects[subjects.size() / 2], baselines[baselines.size() / 2]};
}

inline void print(const char* what, const char* baseline, const Medians& medians, double goal)
{
    std::printf("%s: %.2f ms; %s: %.2f ms; ratio %.2f (goal: at most %.1f)\n", what, medians.subject, baseline,
                medians.baseline, medians.subject / medians.baseline, goal);
}

} // namespace lexigrove::bench
