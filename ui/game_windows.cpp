#include "ui/game_windows.hpp"

#include "ui/machine/host.hpp"
#include "ui/pages/browser.hpp"
#include "ui/pages/help_window.hpp"

namespace lexigrove
{

GameWindows::GameWindows(Host& host) : host_(host), browser_(std::make_unique<BrowserLoader>()) {}

GameWindows::~GameWindows() = default;

void GameWindows::showHelp(const std::string& address)
{
    if (!help_)
        help_ = std::make_unique<HelpWindow>(host_.theme, *browser_, address);
    help_->bringToFront();
}

} // namespace lexigrove
