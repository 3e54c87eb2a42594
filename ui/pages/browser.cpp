#include "ui/pages/browser.hpp"

#include <cstdio>
#include <utility>

namespace lexigrove
{

namespace
{

/// Suppresses known harmless start-up messages.
class QuietEngineStart
{
public:
    QuietEngineStart() : before_(qInstallMessageHandler(passOn)) {}
    ~QuietEngineStart() { qInstallMessageHandler(before_); }
    QuietEngineStart(const QuietEngineStart&) = delete;
    QuietEngineStart& operator=(const QuietEngineStart&) = delete;

private:
    static void passOn(QtMsgType type, const QMessageLogContext& context, const QString& text)
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

    QtMessageHandler before_;
};

} // namespace

BrowserLoader::BrowserLoader(QStringList folders) : folders_(std::move(folders)) {}

std::unique_ptr<BrowserPage> BrowserLoader::newPage(const BrowserPageSetup& setup)
{
    const QuietEngineStart start;
    BrowserModule* const engine = module();
    return engine != nullptr ? engine->newPage(setup) : nullptr;
}

BrowserModule* BrowserLoader::module()
{
    if (module_ == nullptr)
        module_ = qobject_cast<BrowserModule*>(loadModule("lexigrove-browser", folders_, failure_));
    return module_;
}

} // namespace lexigrove
