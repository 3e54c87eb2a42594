#pragma once

#include "platform/dialogs.hpp"
#include "ui/machine/host.hpp"

namespace lexigrove
{

/// The questions as dialogs over the topmost window.
class QtDialogs : public Dialogs
{
public:
    explicit QtDialogs(Host& host) : host_(host) {}

    void message(const std::string& text) override;
    bool confirm(const std::string& text) override;
    bool offer(const std::string& text) override;
    std::optional<bool> confirmOrLookBack(const std::string& text) override;
    std::string input(const std::string& title, const std::string& prompt, const std::string& defaultAnswer) override;
    std::optional<std::string> inputOrHelp(const std::string& title, const std::string& prompt) override;
    std::string openFile(const OpenFileRequest& request) override;

private:
    [[nodiscard]] std::optional<bool> ask(const std::string& text, const QString& third);

    Host& host_;
};

} // namespace lexigrove
