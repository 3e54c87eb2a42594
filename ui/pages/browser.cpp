#include "ui/pages/browser.hpp"

#include <QFileInfo>
#include <QScopeGuard>

#include <algorithm>
#include <cstdio>
#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>
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

/// Whether the kernel lets this user's processes create namespaces, which the sandbox needs.
bool kernelAllowsSandbox()
{
    const pid_t child = fork();
    if (child == 0)
        _exit(unshare(CLONE_NEWUSER) == 0 && unshare(CLONE_NEWPID | CLONE_NEWNET) == 0 ? 0 : 1);
    int status = 0;
    return child > 0 && waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

} // namespace

BrowserLoader::BrowserLoader(QStringList services, QStringList folders)
    : services_(std::move(services)), folders_(std::move(folders))
{
}

bool BrowserLoader::isUsable() const
{
    static const bool sandboxed = geteuid() == 0 || kernelAllowsSandbox();
    return sandboxed && std::ranges::any_of(folders_, [](const QString& folder) {
               return QFileInfo::exists(folder + "/lexigrove-browser.so");
           });
}

std::unique_ptr<BrowserPage> BrowserLoader::newPage(const BrowserPageSetup& setup)
{
    const auto handler =
        qScopeGuard([before = qInstallMessageHandler(printUnlessHarmless)] { qInstallMessageHandler(before); });
    if (module_ == nullptr) {
        const char* const options = "QTWEBENGINE_CHROMIUM_FLAGS";
        qputenv(options, qgetenv(options) + ' ' + engineOptions(services_).toUtf8());
        module_ = qobject_cast<BrowserModule*>(loadModule("lexigrove-browser", folders_, failure_));
    }
    return module_ != nullptr ? module_->newPage(setup) : nullptr;
}

} // namespace lexigrove
