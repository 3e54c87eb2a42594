// Reading and searching a dictionary of level 3 against the standard library's own means over the same words.
//   bench_dictionary [LIST]

#include "dictionary/dictionary.hpp"

#include "bench/level_three.hpp"

#include <benchmark/benchmark.h>
#include <fstream>

using namespace lexigrove;

namespace
{

std::vector<std::string> linesByGetline(const std::string& path)
{
    std::vector<std::string> lines;
    std::ifstream file(path, std::ios::binary);
    for (std::string line; std::getline(file, line);) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        lines.push_back(line);
    }
    return lines;
}

void benchFindWord(const WordList& list, const std::vector<std::string>& words)
{
    std::vector<std::string> sought = words;
    for (std::size_t i = 0; i < sought.size(); i += 2)
        sought[i] += "X"; // mostly not words
    std::shuffle(sought.begin(), sought.end(), std::mt19937(718));
    std::size_t found = 0;
    std::size_t foundByStandard = 0;
    const bench::Medians medians = bench::measure(
        31,
        [&] {
            for (const std::string& word : sought)
                found += list.findWord(word) != -1 ? 1U : 0U;
        },
        [&] {
            for (const std::string& word : sought)
                foundByStandard += std::binary_search(words.begin(), words.end(), word) ? 1U : 0U;
        });
    bench::print("FindWord, every word once, half of them changed", "std::binary_search", medians, 1.2);
    if (found != foundByStandard)
        std::printf("The two do not find the same words: %zu and %zu\n", found, foundByStandard);
}

} // namespace

int main(int argumentCount, char** arguments)
{
    const std::string text = bench::levelThreeList(argumentCount, arguments);
    const bench::BenchFolder folder(arguments[0]);
    const std::string path = folder.prefix() + "L3Ascii.txt";
    replaceFile(path, text);

    bench::NoDialogs dialogs;
    StatusLine status;
    Random random;
    const StillClock clock;
    Dictionary dictionary(folder.prefix());
    dictionary.applyChoice(3, {});
    const bench::Medians reading = bench::measure(
        51, [&] { dictionary.read(dialogs, status, random, clock); },
        [&] { benchmark::DoNotOptimize(linesByGetline(path)); });
    bench::print("ReadDictionary with its letter tables", "std::getline into a vector", reading, 0.5);
    std::printf("Words: %d; memory kept: %zu bytes; file: %zu bytes; ratio %.2f (goal: at most 2.0)\n",
                dictionary.words.count(), dictionary.words.memory(), text.size(),
                static_cast<double>(dictionary.words.memory()) / static_cast<double>(text.size()));
    benchFindWord(dictionary.words, linesByGetline(path));
    return 0;
}
