#pragma once

#include "ui/pages/browser.hpp"

#include <QObject>

namespace lexigrove
{

/// Qt WebEngine as a module of the game.
class BrowserEngine : public QObject, public BrowserModule
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID LexiGroveBrowserModule_iid)
    Q_INTERFACES(lexigrove::BrowserModule)

public:
    BrowserEngine();

    [[nodiscard]] std::unique_ptr<BrowserPage> newPage(const BrowserPageSetup& setup) override;
};

} // namespace lexigrove
