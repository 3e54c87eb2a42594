#include "dictionary/dictionary.hpp"

#include "dictionary/maintained_format.hpp"
#include "dictionary/sorting_list.hpp"
#include "dictionary/word_text.hpp"
#include "platform/hash.hpp"
#include "platform/leaving.hpp"
#include "platform/text_file.hpp"

#include <filesystem>
#include <stdexcept>

namespace lexigrove
{

namespace
{

void showReadFailure(Dialogs& dialogs, const std::string& name)
{
    dialogs.message("Error while reading dictionary:\r\n" + name + "\r\nProgram cannot continue");
}

} // namespace

Dictionary::Dictionary(std::string programFolder) : prefix_(std::move(programFolder))
{
    if (prefix_.empty() || prefix_.back() != '/')
        prefix_ += '/';
    fileTable = {prefix_ + "UsrDict.txt", prefix_ + "SysDict1.txt", prefix_ + "SysDict2.txt", prefix_ + "L3Ascii.txt"};
}

std::string Dictionary::path(int entry) const
{
    const std::string& name = fileTable.at(static_cast<std::size_t>(entry));
    return std::filesystem::path(name).is_absolute() ? name : prefix_ + name;
}

void Dictionary::applyChoice(int choice, const std::string& userDictionaryName)
{
    if (choice < 0 || choice > 3)
        throw std::out_of_range("The dictionary choice must be 0 to 3");
    choice_ = choice;
    if (choice == 0) {
        fileTable[0] = userDictionaryName;
        caption_ = "Lexigrove - User Dictionary (" + fileTable[0] + ")";
        redThreshold_ = redThresholdTable[2];
    } else {
        caption_ = "Lexigrove - Level " + std::to_string(choice);
        redThreshold_ = redThresholdTable[static_cast<std::size_t>(choice)];
    }
}

void Dictionary::nameLevelFiles()
{
    for (std::size_t level = 1; level <= 3; ++level)
        fileTable[level] = prefix_ + "L" + std::to_string(level) + "Ascii.txt";
}

void Dictionary::read(Dialogs& dialogs, StatusLine& status, Random& random, const Clock& clock)
{
    status.write("Reading Dictionary...");
    nameLevelFiles();
    try {
        const FileVersion version = versionOf(path(choice_)); // of before: a change meanwhile is one from then on
        std::string text = readFile(path(choice_));
        const LetterFrequencies frequencies = countLetters(text);
        WordList lines = WordList::ofLines(std::move(text));
        letters.derive(frequencies, random, clock);
        words = std::move(lines);
        wordsRead = version;
    } catch (const std::exception&) {
        showReadFailure(dialogs, fileTable[static_cast<std::size_t>(choice_)]);
        throw ProgramEnd{};
    }
    loadedLevel_ = choice_;
    holdsCodedLines_ = choice_ > 0 && isMaintainedHeader(words.entry(1));
    if (holdsCodedLines_)
        status.show(codedLinesNotice());
    else
        status.write("");
}

std::string Dictionary::codedLinesNotice() const
{
    return "Level " + std::to_string(loadedLevel_) +
           " holds the maintained format; convert it in Dictionary Maintenance";
}

void Dictionary::replaceCodedLines(WordList decoded)
{
    words = std::move(decoded);
    holdsCodedLines_ = false;
}

/// 64-bit FNV-1a over the words, a line feed behind each. Of 200,000 words it takes a few milliseconds, so it is kept
/// until they change.
std::uint64_t Dictionary::fingerprint() const
{
    if (fingerprint_ != 0 && fingerprinted_.isCopyOf(words))
        return fingerprint_;
    std::uint64_t hash = hashOf({});
    for (int i = 1; i <= words.count(); ++i)
        hash = hashOf("\n", hashOf(words.entry(i), hash));
    fingerprinted_ = words;
    return fingerprint_ = hash;
}

bool Dictionary::exportWords(Dialogs& dialogs, Random& random, const Clock& clock)
{
    try {
        if (choice_ == 0)
            exportUserDictionary(random, clock);
        else
            exportLevel();
    } catch (const std::exception&) {
        showReadFailure(dialogs, fileTable[static_cast<std::size_t>(choice_)]);
        return false;
    }
    loadedLevel_ = choice_;
    holdsCodedLines_ = false;
    return true;
}

void Dictionary::exportLevel()
{
    const MaintainedWords decoded = decodeMaintained(readFile(path(choice_)), Coding::OldMaintained);
    const std::vector<std::string_view> all(decoded.words.begin(), decoded.words.end());
    WordList exported = WordList::of(all);
    std::vector<std::string> longer;
    for (const std::string& word : decoded.words)
        if (word.size() > 2)
            longer.push_back(word);
    replaceLines(prefix_ + "L3Ascii-1.txt", longer);
    codingBase = decoded.codingBase;
    words = std::move(exported);
}

void Dictionary::exportUserDictionary(Random& random, const Clock& clock)
{
    const std::string text = upperCase(readFile(path(0)));
    SortingList ListBoy1;
    for (const std::string_view line : splitLines(text))
        ListBoy1.Additem(line);
    ListBoy1.SortAscending();
    WordList sorted = WordList::of(ListBoy1.items());
    letters.derive(countLetters(text), random, clock);
    words = std::move(sorted);
}

} // namespace lexigrove
