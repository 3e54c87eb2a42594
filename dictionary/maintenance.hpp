#pragma once

#include "dictionary/dictionary.hpp"
#include "dictionary/filtered_words.hpp"
#include "dictionary/maintained_format.hpp"
#include "platform/clock.hpp"
#include "platform/dialogs.hpp"
#include "platform/screen.hpp"
#include "platform/status_line.hpp"
#include "platform/text_file.hpp"

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace lexigrove
{

/// The window's title, and the captions and tool tips of its controls. `List1`, `Text1` and the hidden `ListBoy1` have
/// none.
namespace maintenance_text
{

struct ControlText {
    std::string_view name;
    std::string_view caption;
    std::string_view toolTip;
};

inline constexpr std::string_view title = "Dictionary Maintenance";
inline constexpr ControlText Frame2{"Frame2", "Dictionary Words", ""};
inline constexpr ControlText Frame1{"Frame1", "Edit Dictionary", ""};
inline constexpr ControlText Option1{"Option1", "Level1", ""};
inline constexpr ControlText Option2{"Option2", "Level2", ""};
inline constexpr ControlText Option3{"Option3", "Level3", ""};
inline constexpr ControlText Addwordx{"Addwordx", "AddWord", "Add a word to the dictionary"};
inline constexpr ControlText Removewordx{"Removewordx", "RemoveWord", "Remove a word from the dictionary"};
inline constexpr ControlText Command1{"Command1", "Show Dictionary", "Show a list of all words in the dictionary"};
inline constexpr ControlText Command2{"Command2", "SpellCheck", "Spell check a word"};
inline constexpr ControlText Command4{"Command4", "Exit", "Quit this program"};
inline constexpr ControlText plainList{"PlainList", "Plain List",
                                       "Write the level file as a plain word list, so that the next game can use it"};

/// What Exit asks after words have been added or removed.
inline constexpr std::string_view plainListQuestion =
    "Write the level file as a plain word list, so that the next game can use it?";

} // namespace maintenance_text

/// The window "Dictionary Maintenance": lists the words of the loaded level, checks, adds and removes words, and
/// rewrites the level's file. Each operation runs to its end and shows its messages on the way.
///
/// Several games may change the words of one folder: each has its turn from reading the file to verifying it, and
/// changes the words that it finds there.
///
/// A file is backed up before it is rewritten and is replaced whole. If reading or writing fails, the operation ends
/// with one message (the failure, the file, the system's reason); the level file is unchanged and the backup is left
/// alone.
class DictionaryMaintenance
{
public:
    /// An option button of a level.
    struct Option {
        bool Value = false;
        bool Enabled = false;
    };

    /// A dictionary with exactly this many words accepts no more; one with more than that does.
    static constexpr int fullCount = 200'000;

    DictionaryMaintenance(Dictionary& dictionary, Dialogs& dialogs, Screen& screen, const Clock& clock);

    /// The main window's add-word command, with the word selected on the board. Returns true if the window is to be
    /// shown, with that word; otherwise the status line says why not.
    bool open(const std::string& selectedWord, StatusLine& status);

    /// A new game starts: empties the list, and Exit has nothing to ask.
    void reset();

    /// The window becomes active.
    void activate();

    /// Chooses a level, 1 to 3. Does nothing while its option is disabled.
    void chooseOption(int level);

    /// A row of `List1` is clicked, counted from 0 among those that match the search. Does nothing outside them.
    void clickRow(int row);

    void showDictionary(); ///< `Command1`
    void spellCheck();     ///< `Command2`
    void addWord();        ///< `Addwordx`
    void removeWord();     ///< `Removewordx`

    /// Rewrites the level's file, which is in the maintained format, as a plain list of its words in ascending order.
    /// If the loaded entries are that file's coded lines, the words replace them. A backup that is a plain list stays.
    void writePlainList();

    /// The same for the loaded level, with a message only if it fails. Returns true if the file is now a plain list.
    bool restorePlainList();

    /// `Command4`: closes the window. If words have been added or removed, it first asks, once, whether to write the
    /// level file as a plain list.
    void exit();

    std::string word;  ///< the word property, set before the window is shown
    std::string Text1; ///< the word being edited
    FilteredWords List1;
    Option Option1, Option2, Option3;

private:
    /// The files of the selected level.
    struct LevelFiles {
        int level = 0;
        std::string name;   ///< as the file table gives it, for messages
        std::string path;   ///< its full path
        std::string backup; ///< its full path
        std::optional<FileLock> turn = {};
    };

    /// Whether each stage of a rewrite has its message.
    enum class Stages { Told, Silent };

    /// How to rewrite a level file, and the messages that differ between rewrites.
    struct Rewrite {
        Coding coding;
        Stages stages = Stages::Told;
        std::string toWrite;  ///< after what has become of the backup, and ", now "
        std::string written;  ///< before " now read and verify " and the file's name
        std::string done;     ///< when it reads back the same
        std::string restored; ///< when it does not, before the file's name
        WordList words = {};
        std::string lines = {}; ///< the file's text; in the maintained format, all after the first line
    };

    /// The first entry, counted from 1, at which a file read back differs, and the word read there.
    struct Difference {
        int index;
        std::string read;
    };

    [[nodiscard]] std::array<Option*, 3> options() { return {&Option1, &Option2, &Option3}; }
    [[nodiscard]] std::optional<LevelFiles> chosenFiles();
    [[nodiscard]] std::optional<LevelFiles> filesToChange();
    bool takeTurn(LevelFiles& files);
    void endTurn(LevelFiles& files);
    bool changeWords(std::span<const std::string_view> items, int count, Rewrite& rewrite, const LevelFiles& files);
    bool makePlain(Stages stages);
    bool readAsPlainList(const LevelFiles& files, Rewrite& rewrite);
    void tellStage(const Rewrite& rewrite, const std::string& text);
    bool rewriteFile(LevelFiles& files, const Rewrite& rewrite);
    bool readBack(LevelFiles& files, const Rewrite& rewrite, const std::string& written, const std::string& oldText);
    [[nodiscard]] std::optional<Difference> verify(const LevelFiles& files, const Rewrite& rewrite,
                                                   const std::string& written);
    [[nodiscard]] std::string restore(const LevelFiles& files, const Rewrite& rewrite, const std::string& oldText);

    Dictionary& dictionary_;
    Dialogs& dialogs_;
    Screen& screen_;
    const Clock& clock_;
    bool changed_ = false; ///< a word was added or removed since Exit last asked
};

} // namespace lexigrove
