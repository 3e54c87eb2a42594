#pragma once

#include "platform/clock.hpp"
#include "platform/dialogs.hpp"
#include "platform/leaving.hpp"
#include "platform/screen.hpp"
#include "platform/sound_device.hpp"

#include <algorithm>
#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

/// The outside world of tests and benchmarks: nothing is shown or heard, and the time stands still.
namespace lexigrove
{

class QuietScreen : public Screen
{
public:
    int yields = 0;
    int timesBusy = 0;
    bool busy = false;
    int mostLocks = 0;
    std::string clipboard;
    std::string refusal; ///< the last one
    std::function<void()> onYield = [] {};
    std::function<void()> onStep = [] {};
    std::function<void()> onWait = [] {};

    void yield() override
    {
        ++yields;
        onYield();
    }
    void animationStep(int /*rounds*/) override { onStep(); }
    void setBusyPointer(bool nowBusy) override
    {
        busy = nowBusy;
        timesBusy += nowBusy ? 1 : 0;
    }
    void lockBoardUpdates(bool locked) override { mostLocks = std::max(mostLocks, locks_ += locked ? 1 : -1); }
    void waitForAnyInput() override { onWait(); }
    void copyText(const std::string& text) override { clipboard = text; }
    [[nodiscard]] std::string copiedText() const override { return clipboard; }
    void inputEnded() override {}
    void refuse(const std::string& why) override { refusal = why; }

private:
    int locks_ = 0;
};

class StillClock : public Clock
{
public:
    double seconds = 43'200;

    [[nodiscard]] double secondsSinceMidnight() const override { return seconds; }
    [[nodiscard]] std::string shortDate() const override { return "12/24/2023"; }
    [[nodiscard]] std::string shortTime() const override { return "12:00"; }
};

class RecordedSounds : public SoundDevice
{
public:
    std::vector<std::string> commands;

    void send(const std::string& command) override { commands.push_back(command); }
};

/// A player who reads every message, does something behind the game's back at those that a test names, and answers
/// questions from a script. At a question without an answer the player leaves the program.
class ScriptedDialogs : public Dialogs
{
public:
    std::vector<std::string> messages;
    std::vector<std::string> questions;
    std::vector<std::string> offers;
    bool acceptsOffers = false;
    std::deque<std::string> answers;                 ///< "yes" to a Yes/No question is Yes
    std::map<std::string, std::function<void()>> at; ///< by the beginning of the message or question
    std::vector<OpenFileRequest> requests;

    void message(const std::string& text) override
    {
        messages.push_back(text);
        act(text);
    }
    bool confirm(const std::string& text) override { return answerTo(text) == "yes"; }
    bool offer(const std::string& text) override
    {
        offers.push_back(text);
        return acceptsOffers;
    }
    std::string input(const std::string& title, const std::string& prompt, const std::string& shown) override
    {
        return answerTo(title + ": " + prompt + " [" + shown + "]");
    }
    std::string openFile(const OpenFileRequest& request) override
    {
        requests.push_back(request);
        return answerTo(request.title);
    }

private:
    void act(const std::string& text)
    {
        for (const auto& [beginning, action] : at)
            if (text.starts_with(beginning))
                action();
    }
    std::string answerTo(const std::string& question)
    {
        questions.push_back(question);
        act(question);
        if (answers.empty())
            throw Leaving{};
        std::string answer = answers.front();
        answers.pop_front();
        return answer;
    }
};

} // namespace lexigrove
