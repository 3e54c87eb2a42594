#pragma once

#include "console/line_channel.hpp"
#include "platform/dialogs.hpp"
#include "platform/screen.hpp"
#include "platform/sound_device.hpp"
#include "platform/status_line.hpp"

namespace lexigrove
{

/// Questions as events; the next input line is the reply.
class ConsoleDialogs : public Dialogs
{
public:
    explicit ConsoleDialogs(LineChannel& channel) : channel_(channel) {}

    void message(const std::string& text) override;
    /// Asks again after any reply but "yes" and "no".
    bool confirm(const std::string& text) override;
    std::string input(const std::string& title, const std::string& prompt, const std::string& defaultAnswer) override;
    std::string openFile(const OpenFileRequest& request) override;

private:
    LineChannel& channel_;
};

/// There is nothing to see, and nothing to wait for.
class ConsoleScreen : public Screen
{
public:
    void yield() override {}
    void animationStep(int /*rounds*/) override {}
    void setBusyPointer(bool /*busy*/) override {}
    void lockBoardUpdates(bool /*locked*/) override {}
    void waitForAnyInput() override {}
    void copyText(const std::string& /*text*/) override {}
    [[nodiscard]] std::string copiedText() const override { return {}; }
    void inputEnded() override {}
};

/// Sound cues as events: the file's name without the folder.
class ConsoleSound : public SoundDevice
{
public:
    ConsoleSound(LineChannel& channel, std::string folder) : channel_(channel), folder_(std::move(folder)) {}
    void send(const std::string& command) override;

private:
    LineChannel& channel_;
    std::string folder_;
};

/// Every text of the status line as an event, even those overwritten within one command.
class ConsoleStatus : public StatusLine
{
public:
    explicit ConsoleStatus(LineChannel& channel) : channel_(channel) {}

protected:
    void written(const std::string& caption) override { channel_.writeEvent("status", caption); }

private:
    LineChannel& channel_;
};

} // namespace lexigrove
