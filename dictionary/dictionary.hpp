#pragma once

#include "dictionary/letter_tables.hpp"
#include "dictionary/word_list.hpp"
#include "platform/clock.hpp"
#include "platform/dialogs.hpp"
#include "platform/random.hpp"
#include "platform/status_line.hpp"

#include <array>
#include <cstdint>
#include <string>

namespace lexigrove
{

/// The active dictionary: which file it is, its words, and the letters that they give the game.
class Dictionary
{
public:
    /// Sets the defaults of the main window's start. `programFolder` may lack its closing separator.
    explicit Dictionary(std::string programFolder);

    /// The program folder with its closing separator.
    [[nodiscard]] const std::string& prefix() const { return prefix_; }

    /// The dictionary choice: 1 to 3 for a level, 0 for the user dictionary. 2 at start.
    [[nodiscard]] int level() const { return choice_; }

    /// The level whose words are loaded, 0 for the user dictionary, -1 before the first load.
    [[nodiscard]] int loadedLevel() const { return loadedLevel_; }

    /// The caption that the choice gives the main window; empty before the first ApplyDictionaryChoice.
    [[nodiscard]] const std::string& caption() const { return caption_; }

    /// The red-tile threshold of the choice; 500 at start.
    [[nodiscard]] int redThreshold() const { return redThreshold_; }
    void setRedThreshold(int threshold) { redThreshold_ = threshold; }

    /// The file of a table entry, 0 to 3: a relative name lies in the program folder.
    [[nodiscard]] std::string path(int entry) const;

    /// ApplyDictionaryChoice: `choice` is 0 to 3; the user dictionary's name is used with 0 only. Throws
    /// std::out_of_range on any other choice.
    void applyChoice(int choice, const std::string& userDictionaryName);

    /// ReadDictionary: loads the chosen dictionary and derives the letter tables from it. The level files read are
    /// always the three plain lists, whatever the table held. A failure (no file, above 250,000 lines, no characters,
    /// no room in the pool) shows its message and throws ProgramEnd. A level file in the maintained format loads line
    /// for line, and the status line then says so; otherwise the line is empty afterwards.
    void read(Dialogs& dialogs, StatusLine& status, Random& random, const Clock& clock);

    /// The export: a level file in the older maintained coding is decoded into the word array, its words of three
    /// letters and more written to "L3Ascii-1.txt"; the user dictionary is read in upper case, sorted, and gives the
    /// letter tables. A failure shows the message of `read`, changes nothing and returns false; the program goes on.
    bool exportWords(Dialogs& dialogs, Random& random, const Clock& clock);

    /// True while the entries are the coded lines of a maintained level file, and no words.
    [[nodiscard]] bool holdsCodedLines() const { return holdsCodedLines_; }

    /// "Level N holds the maintained format; convert it in Dictionary Maintenance", of the loaded level.
    [[nodiscard]] std::string codedLinesNotice() const;

    /// Takes the words of the loaded level's file in place of its coded lines.
    void replaceCodedLines(WordList decoded);

    /// A number for the loaded words, the same for the same words on every machine.
    [[nodiscard]] std::uint64_t fingerprint() const;

    /// The dictionary file table: 0 the user dictionary, 1 to 3 the levels. Names without a folder lie in the program
    /// folder.
    std::array<std::string, 4> fileTable;

    /// The red-tile thresholds of levels 1 to 3; entry 0 is unused.
    std::array<int, 4> redThresholdTable{0, 1000, 500, 300};

    /// The coding base of the maintained file that was last read or written; 0 before.
    int codingBase = 0;

    LetterTables letters;
    WordList words;

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
