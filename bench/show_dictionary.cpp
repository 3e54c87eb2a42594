// Show Dictionary over a dictionary of level 3: from the click until the list has been painted, against a list widget
// that is given the same words as items.
//   bench_show_dictionary [LIST]

#include "bench/level_three.hpp"
#include "dictionary/maintenance.hpp"
#include "ui/game_windows.hpp"
#include "ui/look/text.hpp"
#include "ui/machine/host.hpp"
#include "word_services/meaning_services.hpp"

#include <QApplication>
#include <QDialog>
#include <QListView>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>

using namespace lexigrove;
using lexigrove::bench::NoDialogs;

namespace
{

constexpr double frame = 1000.0 / 60;

/// Runs in the open window: fills its list and a list widget of the same size in turn.
void measure(const WordList& words, const QWidget& window)
{
    auto* const show = window.findChild<QPushButton*>("Command1");
    auto* const List1 = window.findChild<QListView*>("List1");
    QListWidget items;
    items.setUniformItemSizes(true);
    items.resize(List1->size());
    items.show();
    const bench::Medians medians = bench::measure(
        15,
        [&] {
            show->click();
            (void)List1->grab();
        },
        [&] {
            items.clear();
            QStringList texts;
            for (int i = 1; i <= words.count(); ++i)
                texts.append(toQString(words.entry(i)));
            items.addItems(texts);
            (void)items.grab();
        });
    std::printf("Words: %d\n", words.count());
    bench::print("Show Dictionary until it is painted", "a list widget with items", medians, 0.2);
    std::printf("A frame lasts %.1f ms: %s\n", frame, medians.subject < frame ? "under it" : "OVER it");
}

} // namespace

int main(int argumentCount, char** arguments)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argumentCount, arguments);
    const bench::BenchFolder folder(arguments[0]);
    replaceFile(folder.prefix() + "L3Ascii.txt", bench::levelThreeList(argumentCount, arguments));

    NoDialogs dialogs;
    QuietScreen screen;
    const StillClock clock;
    StatusLine status;
    Random random;
    Dictionary dictionary(folder.prefix());
    dictionary.applyChoice(3, {});
    dictionary.read(dialogs, status, random, clock);
    DictionaryMaintenance form(dictionary, dialogs, screen, clock);
    Host host(folder.prefix());
    QTimer::singleShot(0, [&] {
        measure(dictionary.words, *host.gate.onTop());
        host.gate.onTop()->close();
    });
    GameWindows(host, MeaningServices(folder.prefix())).show(form);
    return 0;
}
