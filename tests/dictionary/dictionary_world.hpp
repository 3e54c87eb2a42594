#pragma once

#include "dictionary/maintenance.hpp"
#include "platform/text_file.hpp"
#include "tests/support/quiet_ports.hpp"
#include "tests/support/temporary_folder.hpp"

#include <string>
#include <vector>

namespace lexigrove
{

inline std::string asLines(const std::vector<std::string>& words)
{
    std::string text;
    for (const std::string& word : words)
        text += word + "\r\n";
    return text;
}

inline std::vector<std::string> entriesOf(const WordList& words)
{
    std::vector<std::string> entries;
    for (int i = 1; i <= words.count(); ++i)
        entries.emplace_back(words.entry(i));
    return entries;
}

/// `count` words in ascending order, in the letters A to Z.
inline std::vector<std::string> countedWords(int count)
{
    std::vector<std::string> words;
    for (int i = 0; i < count; ++i) {
        std::string word;
        for (int rest = i, digit = 0; digit < 5; ++digit, rest /= 26)
            word.insert(word.begin(), static_cast<char>('A' + rest % 26));
        words.push_back("W" + word);
    }
    return words;
}

/// A dictionary in its own folder, and the window that maintains it.
struct DictionaryWorld {
    /// Loads a level whose file holds the text.
    void loadText(int level, const std::string& text)
    {
        replaceFile(levelFile(level), text);
        dictionary.applyChoice(level, {});
        dictionary.read(dialogs, status, random, clock);
        maintenance.activate();
    }
    void load(int level, const std::vector<std::string>& words) { loadText(level, asLines(words)); }

    void add(const std::string& text) { change(&DictionaryMaintenance::addWord, text); }
    void remove(const std::string& text) { change(&DictionaryMaintenance::removeWord, text); }
    void change(void (DictionaryMaintenance::*operation)(), const std::string& text = {})
    {
        dialogs.messages.clear();
        maintenance.Text1 = text;
        (maintenance.*operation)();
    }

    [[nodiscard]] std::string levelFile(int level) const
    {
        return folder.file("L" + std::to_string(level) + "Ascii.txt");
    }
    [[nodiscard]] std::string backup(int level) const
    {
        return folder.file("SysDik" + std::to_string(level) + "Backup.txt");
    }

    TemporaryFolder folder;
    ScriptedDialogs dialogs;
    QuietScreen screen;
    StatusLine status;
    Random random{718};
    StillClock clock;
    Dictionary dictionary{folder.path()};
    DictionaryMaintenance maintenance{dictionary, dialogs, screen, clock};
};

} // namespace lexigrove
