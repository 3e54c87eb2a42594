#pragma once

#include "flow/windows.hpp"
#include "ui/look/theme.hpp"
#include "ui/pages/browser.hpp"

#include <memory>

namespace lexigrove
{

class HelpView;

/// The help window `Form5`. It stands beside the game and blocks nothing; it is made when it is first asked for, and
/// "Exit" hides it.
class QtHelpWindow : public HelpWindow
{
public:
    QtHelpWindow(const Theme& theme, BrowserLoader& loader);
    ~QtHelpWindow() override;
    QtHelpWindow(const QtHelpWindow&) = delete;
    QtHelpWindow& operator=(const QtHelpWindow&) = delete;

    void show(const HelpForm& form) override;

private:
    const Theme& theme_;
    BrowserLoader& loader_;
    std::unique_ptr<HelpView> window_;
};

} // namespace lexigrove
