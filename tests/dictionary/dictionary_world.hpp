#pragma once

#include "dictionary/dictionary.hpp"
#include "dictionary/maintenance.hpp"
#include "platform/text_file.hpp"
#include "tests/support/temporary_folder.hpp"

#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <vector>

namespace lexigrove
{

/// A player who reads every message, and does something behind the game's back at those that a test names.
class ScriptedDialogs : public Dialogs
{
public:
    std::vector<std::string> messages;
    std::vector<std::string> questions;
    bool answer = false;
    std::map<std::string, std::function<void()>> at; ///< by the message's beginning

    void message(const std::string& text) override
    {
        messages.push_back(text);
        for (const auto& [beginning, action] : at)
            if (text.starts_with(beginning))
                action();
    }
    bool confirm(const std::string& text) override
    {
        questions.push_back(text);
        return answer;
    }
    std::string input(const std::string&, const std::string&, const std::string&) override { return {}; }
    std::string openFile(const OpenFileRequest&) override { return {}; }
};

class PointerScreen : public Screen
{
public:
    bool busy = false;
    int timesBusy = 0;

    void yield() override {}
    void animationStep(int) override {}
    void setBusyPointer(bool nowBusy) override
    {
        busy = nowBusy;
        timesBusy += nowBusy ? 1 : 0;
    }
    void lockBoardUpdates(bool) override {}
    void waitForAnyInput() override {}
};

class StandingClock : public Clock
{
public:
    [[nodiscard]] double secondsSinceMidnight() const override { return 43'200; }
    [[nodiscard]] std::string shortDate() const override { return "12/24/2023"; }
    [[nodiscard]] std::string shortTime() const override { return "12:00"; }
};

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

/// A dictionary in a folder, and the window that maintains it.
struct DictionaryWorld {
    explicit DictionaryWorld(const std::string& programFolder) : folder(programFolder), dictionary(programFolder) {}

    /// Loads a level whose file holds the text.
    void loadText(int level, const std::string& text)
    {
        replaceFile(levelFile(level), text);
        dictionary.applyChoice(level, {});
        dictionary.read(dialogs, status, random, clock);
        maintenance.activate();
    }
    void load(int level, const std::vector<std::string>& words) { loadText(level, asLines(words)); }

    void add(const std::string& text)
    {
        dialogs.messages.clear();
        maintenance.Text1 = text;
        maintenance.addWord();
    }
    void remove(const std::string& text)
    {
        dialogs.messages.clear();
        maintenance.Text1 = text;
        maintenance.removeWord();
    }

    [[nodiscard]] std::string levelFile(int level) const { return folder + "L" + std::to_string(level) + "Ascii.txt"; }
    [[nodiscard]] std::string backup(int level) const
    {
        return folder + "SysDik" + std::to_string(level) + "Backup.txt";
    }

    std::string folder;
    ScriptedDialogs dialogs;
    PointerScreen screen;
    StatusLine status;
    Random random{718};
    StandingClock clock;
    Dictionary dictionary;
    DictionaryMaintenance maintenance{dictionary, dialogs, screen, clock};
};

} // namespace lexigrove
