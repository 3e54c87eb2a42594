#include "ui/pages/browser.hpp"

#include <QFileInfo>
#include <QScopeGuard>

#include <algorithm>
#include <cstdio>
#include <utility>

namespace lexigrove
{

namespace
{

/// Prints a message unless it is one that is known from the engine's start and harmless.
void printUnlessHarmless(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    for (const char* known : {
             "Qt WebEngine seems to be initialized from a plugin.", // pages need no OpenGL here
             "No suitable graphics backend found",                  // nor a graphics card
             "Sandboxing disabled by user.",                        // the module itself says so, and why
         })
        if (text.startsWith(known))
            return;
    std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, text)));
}

} // namespace

BrowserLoader::BrowserLoader(QStringList folders) : folders_(std::move(folders)) {}

bool BrowserLoader::isInstalled() const
{
    return std::ranges::any_of(
        folders_, [](const QString& folder) { return QFileInfo::exists(folder + "/lexigrove-browser.so"); });
}

std::unique_ptr<BrowserPage> BrowserLoader::newPage(const BrowserPageSetup& setup)
{
    const auto handler =
        qScopeGuard([before = qInstallMessageHandler(printUnlessHarmless)] { qInstallMessageHandler(before); });
    if (module_ == nullptr)
        module_ = qobject_cast<BrowserModule*>(loadModule("lexigrove-browser", folders_, failure_));
    return module_ != nullptr ? module_->newPage(setup) : nullptr;
}

} // namespace lexigrove
