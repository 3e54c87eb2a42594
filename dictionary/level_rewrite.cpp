#include "dictionary/maintenance.hpp"
#include "platform/text_file.hpp"

#include <stdexcept>

/// How the maintenance rewrites a level's file: the backup, the file, the verification, and the way back.
namespace lexigrove
{

namespace
{

/// The lines of a file, split and limited like a word list even if they are coded.
WordList linesIn(std::string text, const std::string& path)
{
    try {
        return WordList::ofLines(std::move(text));
    } catch (const std::length_error& error) {
        throw FileError(error.what(), path, 0);
    }
}

/// Restores the file if it has changed. Returns the error, preceded by a line end, or an empty string.
std::string putBack(const std::string& path, const std::string& oldText)
{
    try {
        if (readFile(path) == oldText)
            return {};
    } catch (const FileError&) {
        // A file that cannot be read is rewritten.
    }
    try {
        replaceFile(path, oldText);
        return {};
    } catch (const FileError& error) {
        return std::string("\n") + error.what();
    }
}

} // namespace

void DictionaryMaintenance::tellStage(const Rewrite& rewrite, const std::string& text)
{
    if (rewrite.stages == Stages::Told)
        dialogs_.message(text);
}

/// Backs the file up, writes it and verifies it. Returns true if it reads back as written. A plain list is written from
/// coded lines, so that a backup which is plain may be the only list that is left from before: it stays.
bool DictionaryMaintenance::rewriteFile(LevelFiles& files, const Rewrite& rewrite)
{
    std::string oldText;
    std::string text;
    std::string backup = "File " + files.backup;
    try {
        const BusyPointer busy(screen_);
        oldText = readFile(files.path);
        if (rewrite.coding == Coding::Plain && codingOf(files.backup) == Coding::Plain) {
            backup += " is kept";
        } else {
            replaceFile(files.backup, oldText);
            backup += " backed up";
        }
    } catch (const FileError& error) {
        dialogs_.message(error.what());
        return false;
    }
    tellStage(rewrite, backup + ", now " + rewrite.toWrite);
    try {
        const BusyPointer busy(screen_);
        if (rewrite.coding == Coding::Maintained) {
            text = headerLine(rewrite.words.entry(1), clock_.shortDate(), clock_.shortTime()) + "\r\n";
            dictionary_.codingBase = writtenCodingBase;
        }
        replaceFile(files.path, text += rewrite.lines);
    } catch (const FileError& error) {
        const std::string failure = error.what() + putBack(files.path, oldText);
        endTurn(files);
        dialogs_.message(failure);
        return false;
    }
    tellStage(rewrite, rewrite.written + " now read and verify " + files.name);
    return readBack(files, rewrite, text, oldText);
}

bool DictionaryMaintenance::readBack(LevelFiles& files, const Rewrite& rewrite, const std::string& written,
                                     const std::string& oldText)
{
    std::optional<Difference> difference;
    try {
        const BusyPointer busy(screen_);
        difference = verify(files, rewrite, written);
    } catch (const FileError& error) {
        const std::string failure = error.what() + putBack(files.path, oldText);
        endTurn(files);
        dialogs_.message(failure);
        return false;
    }
    if (!difference) {
        endTurn(files);
        tellStage(rewrite, rewrite.done);
        return true;
    }
    std::string text = "Error "; // the blank is the number's sign
    text += std::to_string(difference->index);
    text += rewrite.words.entry(difference->index);
    try {
        dialogs_.message(text + difference->read);
    } catch (...) { // closed with the program
        (void)restore(files, rewrite, oldText);
        throw;
    }
    const std::string outcome = restore(files, rewrite, oldText);
    endTurn(files);
    dialogs_.message(outcome);
    return false;
}

/// Compares the file with the words up to the first difference; `List1` then holds the words that match, or the first
/// word of the file if that differs. A line that cannot be decoded and an early end are differences too.
/// A maintained file that holds the bytes written holds their words, too, but perhaps for its first: not every text
/// survives the header's cipher.
std::optional<DictionaryMaintenance::Difference>
DictionaryMaintenance::verify(const LevelFiles& files, const Rewrite& rewrite, const std::string& written)
{
    List1.Clear();
    std::string text = readFile(files.path);
    if (rewrite.coding == Coding::Maintained && rewrite.words.count() > 0 && text == written &&
        LineDecoder(rewrite.coding).read(text.substr(0, text.find_first_of("\r\n"))) == rewrite.words.entry(1)) {
        List1.fill(rewrite.words, rewrite.words.count());
        return {};
    }
    const WordList lines = linesIn(std::move(text), files.path);
    LineDecoder decoder(rewrite.coding);
    int same = 0;
    try {
        for (; same < lines.count(); ++same) {
            const std::string_view read = decoder.read(lines.entry(same + 1));
            if (same == 0)
                List1.fill(WordList::of(std::span(&read, 1)), 1);
            if (read != rewrite.words.entry(same + 1))
                break;
        }
    } catch (const FormatError&) {
        // The line at which decoding stopped is the difference.
    }
    if (same > 0)
        List1.fill(rewrite.words, same);
    if (rewrite.coding == Coding::Maintained)
        dictionary_.codingBase = decoder.codingBase();
    if (lines.count() > 0 && same == lines.count() && same >= rewrite.words.count())
        return {};
    return Difference{same + 1, decoder.word()};
}

/// Copies the backup over the file or, if that fails or the backup is an older one, writes the text read before the
/// rewrite. Returns the message about it.
std::string DictionaryMaintenance::restore(const LevelFiles& files, const Rewrite& rewrite, const std::string& oldText)
{
    try {
        if (rewrite.coding == Coding::Plain)
            replaceFile(files.path, oldText);
        else
            copyFile(files.backup, files.path);
    } catch (const FileError& error) {
        const std::string failure = putBack(files.path, oldText);
        if (!failure.empty())
            return error.what() + failure;
    }
    return rewrite.restored + files.name;
}

} // namespace lexigrove
