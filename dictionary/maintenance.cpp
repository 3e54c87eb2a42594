#include "dictionary/maintenance.hpp"

#include "dictionary/sorting_list.hpp"
#include "dictionary/word_text.hpp"
#include "platform/ascii.hpp"
#include "platform/text_file.hpp"

#include <stdexcept>
#include <utility>

namespace lexigrove
{

namespace
{

constexpr const char* userDictionaryRefused = "Cannot add words to user dictionary through this option";

} // namespace

DictionaryMaintenance::DictionaryMaintenance(Dictionary& dictionary, Dialogs& dialogs, Screen& screen,
                                             const Clock& clock)
    : dictionary_(dictionary), dialogs_(dialogs), screen_(screen), clock_(clock)
{
}

bool DictionaryMaintenance::open(const std::string& selectedWord, StatusLine& status)
{
    if (selectedWord.empty()) {
        status.show("Select a word first");
        return false;
    }
    if (dictionary_.level() == 0) {
        status.show(userDictionaryRefused);
        return false;
    }
    word = selectedWord;
    return true;
}

void DictionaryMaintenance::reset()
{
    List1.Clear();
    changed_ = false;
}

void DictionaryMaintenance::activate()
{
    int level = 0;
    for (Option* const option : options()) {
        ++level;
        option->Value = level == dictionary_.level();
        option->Enabled = level == dictionary_.loadedLevel();
    }
    Text1 = word;
    List1.setSearch({}); // the search box starts empty
}

void DictionaryMaintenance::chooseOption(int level)
{
    if (level < 1 || level > 3 || !options()[static_cast<std::size_t>(level) - 1]->Enabled)
        return;
    int optionLevel = 0;
    for (Option* const option : options())
        option->Value = ++optionLevel == level;
}

void DictionaryMaintenance::clickRow(int row)
{
    if (row >= 0 && row < List1.rowCount())
        Text1 = List1.row(row);
}

void DictionaryMaintenance::showDictionary()
{
    const BusyPointer busy(screen_);
    List1.fill(dictionary_.words, dictionary_.words.count());
}

void DictionaryMaintenance::spellCheck()
{
    if (List1.ListCount() == 0) {
        dialogs_.message("Load Dictionary first");
        return;
    }
    const std::string sought = upperCase(ascii::trimmed(Text1));
    const bool found = dictionary_.words.findWord(sought) != -1;
    dialogs_.message(sought + (found ? " found" : " NOT found"));
}

void DictionaryMaintenance::addWord()
{
    std::optional<LevelFiles> files = filesToChange();
    if (!files)
        return;
    const std::string sought = upperCase(ascii::trimmed(Text1));
    const std::string added = upperCase(Text1); // blanks included
    const WordList before = dictionary_.words;
    if (before.findWord(sought) != -1) {
        dialogs_.message(sought + " already exists");
        return;
    }
    if (before.count() == fullCount) {
        dialogs_.message("Dictionary is full");
        return;
    }
    dialogs_.message("Add new word and sort");

    Rewrite rewrite{.coding = Coding::Maintained,
                    .toWrite = "compress file " + files->name,
                    .written = "File compressed,",
                    .done = "Word " + added + " added to " + files->name,
                    .restored = "File restored "};
    SortingList ListBoy1(before.count() + 1);
    {
        const BusyPointer busy(screen_);
        for (int i = 1; i <= before.count(); ++i)
            ListBoy1.Additem(before.entry(i));
        ListBoy1.Additem(added);
        ListBoy1.SortAscending();
    }
    if (!changeWords(ListBoy1.items(), before.count() + 1, rewrite, *files))
        return;
    dialogs_.message("Word " + added + " added and dictionary sorted, now backup old dictionary");
    rewriteFile(*files, rewrite);
}

void DictionaryMaintenance::removeWord()
{
    std::optional<LevelFiles> files = filesToChange();
    if (!files)
        return;
    const std::string removed = upperCase(ascii::trimmed(Text1));
    const WordList before = dictionary_.words;
    if (removed.empty() || before.findWord(removed) == -1) {
        dialogs_.message(removed + " does not exist in dictionary");
        return;
    }
    dialogs_.message("Remove word and sort");

    Rewrite rewrite{.coding = Coding::Maintained,
                    .toWrite = "compress file" + files->name, // no blank here
                    .written = "File compressed,",
                    .done = "Word " + removed + " removed from " + files->name,
                    .restored = "file restored ", // lower case here
                    .words = {},
                    .lines = {}};
    SortingList ListBoy1(before.count());
    {
        const BusyPointer busy(screen_);
        for (int i = 1; i <= before.count(); ++i)
            if (before.entry(i) != removed)
                ListBoy1.Additem(before.entry(i));
        ListBoy1.SortAscending();
    }
    // One less, however many entries were equal: if a word was listed twice, old entries follow the sorted ones.
    if (!changeWords(ListBoy1.items(), before.count() - 1, rewrite, *files))
        return;
    dialogs_.message("Word " + removed + " removed and dictionary sorted, now backup old dictionary");
    rewriteFile(*files, rewrite);
}

void DictionaryMaintenance::writePlainList()
{
    makePlain(Stages::Told);
}

bool DictionaryMaintenance::restorePlainList()
{
    activate(); // chooses the level
    return makePlain(Stages::Silent);
}

bool DictionaryMaintenance::makePlain(Stages stages)
{
    std::optional<LevelFiles> files = chosenFiles();
    if (!files || !takeTurn(*files))
        return false;
    Rewrite rewrite{.coding = Coding::Plain,
                    .stages = stages,
                    .toWrite = "write plain word list " + files->name,
                    .written = "Plain word list written,",
                    .done = "Level " + std::to_string(files->level) + " is a plain word list: " + files->name,
                    .restored = "File restored "};
    if (!readAsPlainList(*files, rewrite) || !rewriteFile(*files, rewrite))
        return false;
    if (dictionary_.holdsCodedLines())
        dictionary_.replaceCodedLines(rewrite.words);
    return true;
}

void DictionaryMaintenance::exit()
{
    if (!std::exchange(changed_, false))
        return;
    const std::optional<LevelFiles> files = chosenFiles();
    if (!files)
        return;
    if (codingOf(files->path) == Coding::Maintained &&
        dialogs_.confirm(std::string(maintenance_text::plainListQuestion)))
        writePlainList();
}

/// The files of the selected level; none, after a message, unless it is the loaded one.
std::optional<DictionaryMaintenance::LevelFiles> DictionaryMaintenance::chosenFiles()
{
    int level = 0;
    for (const Option* const option : options()) {
        ++level;
        if (!option->Value)
            continue;
        if (level != dictionary_.loadedLevel()) {
            dialogs_.message("Level " + std::to_string(level) + " is not loaded, start a game with it first");
            return {};
        }
        return LevelFiles{level, dictionary_.fileTable[static_cast<std::size_t>(level)], dictionary_.path(level),
                          dictionary_.prefix() + "SysDik" + std::to_string(level) + "Backup.txt"};
    }
    dialogs_.message(userDictionaryRefused);
    return {};
}

/// The same for an operation on words. Coded lines are refused: it would sort and write garbage.
std::optional<DictionaryMaintenance::LevelFiles> DictionaryMaintenance::filesToChange()
{
    std::optional<LevelFiles> files = chosenFiles();
    if (files && dictionary_.holdsCodedLines()) {
        dialogs_.message(dictionary_.codedLinesNotice());
        return {};
    }
    if (files && !takeTurn(*files))
        return {};
    return files;
}

/// Waits for the turn with the file. If another game has rewritten it, its words are read again.
bool DictionaryMaintenance::takeTurn(LevelFiles& files)
{
    try {
        const BusyPointer busy(screen_);
        files.turn.emplace(files.path, LockFile::Goes);
        const FileVersion version = versionOf(files.path);
        if (version == dictionary_.wordsRead || dictionary_.holdsCodedLines())
            return true;
        dictionary_.words = wordsIn(readFile(files.path));
        dictionary_.wordsRead = version;
        return true;
    } catch (const FileError& error) {
        dialogs_.message(error.what());
    } catch (const std::exception& error) {
        dialogs_.message(FileError(error.what(), files.path, 0).what());
    }
    return false;
}

void DictionaryMaintenance::endTurn(LevelFiles& files)
{
    dictionary_.wordsRead = versionOf(files.path);
    files.turn.reset();
}

/// Copies the sorted items into the word array, unless the file could not hold the resulting words; this is checked
/// before anything changes.
bool DictionaryMaintenance::changeWords(std::span<const std::string_view> items, int count, Rewrite& rewrite,
                                        const LevelFiles& files)
{
    try {
        const BusyPointer busy(screen_);
        rewrite.words = dictionary_.words;
        rewrite.words.overwrite(items);
        rewrite.words.setCount(count);
        rewrite.lines = codedLines(rewrite.words);
    } catch (const std::exception& error) {
        dialogs_.message(FileError(error.what(), files.path, 0).what());
        return false;
    }
    dictionary_.words = rewrite.words;
    changed_ = true;
    return true;
}

/// Decodes the level's file and sorts its words: removing a word that was listed twice leaves them unsorted, and
/// FindWord would miss some.
bool DictionaryMaintenance::readAsPlainList(const LevelFiles& files, Rewrite& rewrite)
{
    try {
        const BusyPointer busy(screen_);
        if (codingOf(files.path) == Coding::Plain)
            throw FormatError("The file already is a plain word list");
        const MaintainedWords decoded = decodeMaintained(readFile(files.path));
        SortingList ListBoy1;
        for (const std::string& item : decoded.words)
            ListBoy1.Additem(item);
        ListBoy1.SortAscending();
        rewrite.words = WordList::of(ListBoy1.items());
        for (const std::string_view item : ListBoy1.items())
            rewrite.lines.append(item).append("\r\n");
        return true;
    } catch (const FileError& error) {
        dialogs_.message(error.what());
    } catch (const FormatError& error) {
        dialogs_.message(FileError(error.what(), files.path, 0).what());
    }
    return false;
}

} // namespace lexigrove
