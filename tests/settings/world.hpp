#pragma once

#include "platform/dialogs.hpp"
#include "platform/leaving.hpp"
#include "platform/screen.hpp"
#include "platform/sound_device.hpp"
#include "tests/support/temporary_folder.hpp"

#include <deque>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace lexigrove
{

/// Answers from a script; a question that the script does not foresee fails the test and leaves the game.
class ScriptedDialogs : public Dialogs
{
public:
    struct Question {
        std::string title, prompt, defaultAnswer;
    };

    void message(const std::string& text) override { messages.push_back(text); }
    bool confirm(const std::string& /*text*/) override { throw Leaving{}; }
    std::string input(const std::string& title, const std::string& prompt, const std::string& defaultAnswer) override
    {
        questions.push_back({title, prompt, defaultAnswer});
        if (answers.empty())
            throw Leaving{};
        std::string answer = answers.front();
        answers.pop_front();
        return answer;
    }
    std::string openFile(const OpenFileRequest& request) override
    {
        openRequest = request;
        if (!folderOfDialog.empty())
            std::filesystem::current_path(folderOfDialog);
        return chosenFile;
    }

    std::deque<std::string> answers;
    std::vector<Question> questions;
    std::vector<std::string> messages;
    OpenFileRequest openRequest;
    std::string folderOfDialog; ///< where the file dialog leaves the working folder
    std::string chosenFile;
};

class RecordedSounds : public SoundDevice
{
public:
    void send(const std::string& command) override { commands.push_back(command); }
    std::vector<std::string> commands;
};

class QuietScreen : public Screen
{
public:
    void yield() override {}
    void animationStep(int /*rounds*/) override {}
    void setBusyPointer(bool busy) override { pointers.push_back(busy); }
    void lockBoardUpdates(bool /*locked*/) override {}
    void waitForAnyInput() override {}
    std::vector<bool> pointers;
};

} // namespace lexigrove
