// Adding a word to a dictionary of level 3 against copying its file, and showing and searching its words against the
// time of one frame.
//   bench_maintenance [LIST]

#include "dictionary/maintenance.hpp"

#include "bench/level_three.hpp"

using namespace lexigrove;

namespace
{

constexpr double frame = 1000.0 / 60; // milliseconds

/// Silently accepts the messages of a rewrite, and prints any other.
class QuietDialogs : public bench::NoDialogs
{
public:
    void message(const std::string& text) override
    {
        if (text.starts_with("Cannot") || text.starts_with("Error"))
            NoDialogs::message(text);
    }
};

std::string letterCode(int number)
{
    std::string letters;
    for (int digit = 0; digit < 4; ++digit, number /= 26)
        letters += static_cast<char>('A' + number % 26);
    return letters;
}

} // namespace

int main(int argumentCount, char** arguments)
{
    const std::string text = bench::levelThreeList(argumentCount, arguments);
    const bench::BenchFolder folder(arguments[0]);
    const std::string path = folder.prefix() + "L3Ascii.txt";
    replaceFile(path, text);

    QuietDialogs dialogs;
    QuietScreen screen;
    StatusLine status;
    Random random;
    const StillClock clock;
    Dictionary dictionary(folder.prefix());
    dictionary.applyChoice(3, {});
    dictionary.read(dialogs, status, random, clock);
    DictionaryMaintenance maintenance(dictionary, dialogs, screen, clock);
    maintenance.activate();

    // The list as shipped is backed up completely, and written in about half its size.
    maintenance.Text1 = "ADDEDWORD";
    const auto copy = [&] { copyFile(path, folder.prefix() + "Copy.txt"); };
    const bench::Medians first = bench::measure(
        31, [&] { maintenance.addWord(); }, copy,
        [&] {
            replaceFile(path, text);
            dictionary.read(dialogs, status, random, clock);
        });
    bench::print("AddWord to the plain list", "copying the list", first, 8);

    const int before = dictionary.words.count();
    int number = 0;
    const bench::Medians further = bench::measure(
        31, [&] { maintenance.addWord(); }, copy, [&] { maintenance.Text1 = "ADDEDWORD" + letterCode(number++); });
    bench::print("AddWord to the maintained file", "copying that file", further, 8);
    std::printf("Words: %d and then %d\n", before, dictionary.words.count());

    const bench::Medians showing = bench::measure(
        101, [&] { maintenance.showDictionary(); },
        [&] {
            std::vector<std::string> items;
            for (int i = 1; i <= dictionary.words.count(); ++i)
                items.emplace_back(dictionary.words.entry(i));
        });
    std::printf("Show Dictionary: %.4f ms of a frame of %.1f ms; one item for each word: %.2f ms\n", showing.subject,
                frame, showing.baseline);
    for (const char* search : {"e", "ING", "quiz", "ZZZZ"}) {
        const bench::Medians searching = bench::measure(
            51, [&] { maintenance.List1.setSearch(search); }, [&] { maintenance.List1.setSearch(""); });
        maintenance.List1.setSearch(search);
        std::printf("Searching the list for \"%s\": %.2f ms of a frame of %.1f ms, %d rows\n", search,
                    searching.subject, frame, maintenance.List1.rowCount());
    }
    return 0;
}
