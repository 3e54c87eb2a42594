#pragma once

#include "dictionary/letter_tables.hpp"
#include "dictionary/word_list.hpp"
#include "platform/clock.hpp"
#include "platform/dialogs.hpp"
#include "platform/random.hpp"
#include "platform/status_line.hpp"
#include "platform/text_file.hpp"

#include <array>
#include <cstdint>
#include <string>

namespace lexigrove
{

/// The active dictionary: its file, its words, and the letter tables derived from them.
class Dictionary
{
public:
    /// Starts with the main window's defaults. `programFolder` may lack its trailing separator.
    explicit Dictionary(std::string programFolder);

    /// The program folder with its trailing separator.
    [[nodiscard]] const std::string& prefix() const { return prefix_; }

    /// The dictionary choice: 1 to 3 for a level, 0 for the user dictionary. Initially 2.
    [[nodiscard]] int level() const { return choice_; }

    /// The level whose words are loaded, 0 for the user dictionary, -1 before the first load.
    [[nodiscard]] int loadedLevel() const { return loadedLevel_; }

    /// The caption that the choice gives the main window; empty before the first ApplyDictionaryChoice.
    [[nodiscard]] const std::string& caption() const { return caption_; }

    /// The red-tile threshold of the choice; initially 500.
    [[nodiscard]] int redThreshold() const { return redThreshold_; }
    void setRedThreshold(int threshold) { redThreshold_ = threshold; }

    /// The path of table entry 0 to 3; a relative name is in the program folder.
    [[nodiscard]] std::string path(int entry) const;

    /// ApplyDictionaryChoice: `choice` is 0 to 3; the user dictionary's name is used only with 0. Throws
    /// std::out_of_range for any other choice.
    void applyChoice(int choice, const std::string& userDictionaryName);

    /// ReadDictionary: loads the chosen dictionary and derives the letter tables from it. Levels are always read from
    /// the three plain lists, whatever the table held. A failure (no file, more than 250,000 lines, no characters, no
    /// room in the pool) shows a message and throws ProgramEnd. A level file in the maintained format is loaded line by
    /// line, and the status line says so; otherwise the status line is empty afterwards.
    void read(Dialogs& dialogs, StatusLine& status, Random& random, const Clock& clock);

    /// The export: a level file in the older maintained coding is decoded into the word array, and its words of three
    /// or more letters are written to "L3Ascii-1.txt"; the user dictionary is read in upper case and sorted, and the
    /// letter tables are derived from it. A failure shows the same message as `read`, changes nothing and returns
    /// false; the program continues.
    bool exportWords(Dialogs& dialogs, Random& random, const Clock& clock);

    /// True while the entries are the coded lines of a maintained level file rather than words.
    [[nodiscard]] bool holdsCodedLines() const { return holdsCodedLines_; }

    /// "Level N holds the maintained format; convert it in Dictionary Maintenance", for the loaded level.
    [[nodiscard]] std::string codedLinesNotice() const;

    /// Replaces the coded lines of the loaded level's file with its words.
    void replaceCodedLines(WordList decoded);

    /// A number for the loaded words, the same for the same words on every machine.
    [[nodiscard]] std::uint64_t fingerprint() const;

    /// The dictionary file table: 0 the user dictionary, 1 to 3 the levels. Names without a folder are in the program
    /// folder.
    std::array<std::string, 4> fileTable;

    /// The red-tile thresholds of levels 1 to 3; entry 0 is unused.
    std::array<int, 4> redThresholdTable{0, 1000, 500, 300};

    /// The coding base of the maintained file last read or written; 0 before any.
    int codingBase = 0;

    LetterTables letters;
    WordList words;
    FileVersion wordsRead; ///< the version of the file that the words were read from, or written to

private:
    void nameLevelFiles();
    void exportLevel();
    void exportUserDictionary(Random& random, const Clock& clock);

    std::string prefix_;
    int choice_ = 2;
    int loadedLevel_ = -1;
    int redThreshold_ = 500;
    std::string caption_;
    bool holdsCodedLines_ = false;
    mutable WordList fingerprinted_; ///< the words that `fingerprint_` is of
    mutable std::uint64_t fingerprint_ = 0;
};

} // namespace lexigrove
