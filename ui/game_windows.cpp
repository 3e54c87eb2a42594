#include "ui/game_windows.hpp"

#include "ui/look/text.hpp"
#include "ui/machine/host.hpp"
#include "ui/pages/browser.hpp"
#include "ui/pages/help_window.hpp"
#include "word_services/meaning_services.hpp"

namespace lexigrove
{

namespace
{

QStringList addressesOf(const MeaningServices& services)
{
    QStringList addresses;
    for (const auto service :
         {MeaningServices::Online, MeaningServices::Free, MeaningServices::MerriamWebster, MeaningServices::Computing})
        addresses += toQString(services.host(service));
    return addresses;
}

} // namespace

GameWindows::GameWindows(Host& host, const MeaningServices& services)
    : host_(host), browser_(std::make_unique<BrowserLoader>(addressesOf(services)))
{
}

GameWindows::~GameWindows() = default;

void GameWindows::showHelp(const std::string& address)
{
    if (!help_)
        help_ = std::make_unique<HelpWindow>(host_.theme, *browser_, address);
    help_->bringToFront();
}

} // namespace lexigrove
