#include "ui/pages/browser.hpp"

#include <QChildEvent>
#include <QDialog>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QOpenGLContext>
#include <QWebEngineHistory>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>
#include <QWebEngineSettings>
#include <QWebEngineUrlRequestInfo>
#include <QWebEngineUrlRequestInterceptor>
#include <QWebEngineView>

#include <algorithm>
#include <cstdio>
#include <unistd.h>

namespace lexigrove
{

namespace
{

/// The engine does not start with its sandbox as root.
void decideOnSandbox()
{
    if (geteuid() != 0) {
        qunsetenv("QTWEBENGINE_DISABLE_SANDBOX");
        return;
    }
    qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    std::fputs("LexiGrove: pages are shown without the web engine's sandbox: the game runs as root.\n", stderr);
}

/// OpenGL contexts would slow every start of the game, page or no page. Without them the engine shows nothing unless
/// the processor paints its pages.
void decideOnPainting()
{
    const QOpenGLContext* const shared = QOpenGLContext::globalShareContext();
    if (shared == nullptr || !shared->isValid())
        qputenv("QT_QUICK_BACKEND", "software");
}

/// Refuses what the rules do not allow, before the network or the disk is accessed.
class RequestGuard : public QWebEngineUrlRequestInterceptor
{
public:
    explicit RequestGuard(const BrowserRules& rules) : rules_(rules) {}

    void interceptRequest(QWebEngineUrlRequestInfo& info) override
    {
        const auto type = info.resourceType();
        BrowserRequest request;
        request.url = info.requestUrl();
        request.page = info.firstPartyUrl();
        request.isPage = type == QWebEngineUrlRequestInfo::ResourceTypeMainFrame;
        request.isImage = type == QWebEngineUrlRequestInfo::ResourceTypeImage;
        info.block(!rules_.allows(request));
    }

private:
    BrowserRules rules_;
};

/// A view in which no dialog of the engine opens, such as the one for colours.
class GuardedView : public QWebEngineView
{
protected:
    /// A dialog is about to be shown.
    void childEvent(QChildEvent* event) override
    {
        auto* const dialog = qobject_cast<QDialog*>(event->child());
        if (event->type() != QEvent::ChildPolished || dialog == nullptr)
            return;
        dialog->setAttribute(Qt::WA_DontShowOnScreen);
        QMetaObject::invokeMethod(dialog, &QDialog::reject, Qt::QueuedConnection);
    }
};

/// A page that asks the player nothing and opens no other windows.
class GuardedPage : public QWebEnginePage
{
public:
    GuardedPage(QWebEngineProfile* profile, const BrowserRules& rules) : QWebEnginePage(profile), rules_(rules)
    {
        QObject::connect(this, &QWebEnginePage::featurePermissionRequested, this,
                         [this](const QUrl& origin, Feature feature) {
                             setFeaturePermission(origin, feature, PermissionDeniedByUser);
                         });
    }

protected:
    bool acceptNavigationRequest(const QUrl& url, NavigationType, bool isMainFrame) override
    {
        return rules_.allows({url, isMainFrame ? url : this->url(), isMainFrame, false});
    }
    QStringList chooseFiles(FileSelectionMode, const QStringList&, const QStringList&) override { return {}; }
    void javaScriptAlert(const QUrl&, const QString&) override {}
    bool javaScriptConfirm(const QUrl&, const QString&) override { return false; }
    bool javaScriptPrompt(const QUrl&, const QString&, const QString&, QString*) override { return false; }
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString&, int, const QString&) override {}

private:
    BrowserRules rules_;
};

/// In addition to what the engine refuses by itself, such as downloads, full screen, unknown certificates and windows
/// that nobody makes.
void setLimits(QWebEngineSettings& settings)
{
    for (const auto refused : {
             QWebEngineSettings::JavascriptCanOpenWindows,
             QWebEngineSettings::LocalContentCanAccessFileUrls,
             QWebEngineSettings::PdfViewerEnabled,
             QWebEngineSettings::WebGLEnabled,
             QWebEngineSettings::AutoLoadIconsForPage,
             QWebEngineSettings::NavigateOnDropEnabled,
         })
        settings.setAttribute(refused, false);
    settings.setAttribute(QWebEngineSettings::PlaybackRequiresUserGesture, true);
    settings.setAttribute(QWebEngineSettings::WebRTCPublicInterfacesOnly, true);
    settings.setUnknownUrlSchemePolicy(QWebEngineSettings::DisallowUnknownUrlSchemes);
}

/// The script that sets a page's colours. It is separate from the page's own scripts, and runs even if those do not.
QWebEngineScript colouring(const PageColours& colours)
{
    QString source;
    for (const auto& [name, colour] : colours)
        source += QString("document.documentElement.style.setProperty('%1', '%2');").arg(name, colour.name());
    QWebEngineScript script;
    script.setInjectionPoint(QWebEngineScript::DocumentReady);
    script.setWorldId(QWebEngineScript::ApplicationWorld);
    script.setSourceCode(source);
    return script;
}

/// The script that takes the clipboard from a page's own scripts, which the engine lets write to it after any click.
/// The player still copies what is selected.
QWebEngineScript withoutClipboard()
{
    QWebEngineScript script;
    script.setInjectionPoint(QWebEngineScript::DocumentCreation);
    script.setWorldId(QWebEngineScript::MainWorld);
    script.setRunsOnSubFrames(true);
    script.setSourceCode("Object.defineProperty(Document.prototype, 'execCommand', {value: () => false});"
                         "Object.defineProperty(Navigator.prototype, 'clipboard', {value: undefined});");
    return script;
}

/// One view with its own profile, which lives only in memory and ends with it.
class EnginePage : public BrowserPage
{
public:
    explicit EnginePage(const BrowserPageSetup& setup)
        : guard_(setup.rules), page_(&profile_, setup.rules), scripts_(setup.rules.scripts())
    {
        profile_.setUrlRequestInterceptor(&guard_);
        setLimits(*page_.settings());
        profile_.scripts()->insert(withoutClipboard());
        page_.setBackgroundColor(setup.background);
        QObject::connect(&page_, &QWebEnginePage::loadFinished, &page_, setup.loaded);
        view_.setContextMenuPolicy(Qt::NoContextMenu);
        view_.setAcceptDrops(false);
        view_.setPage(&page_);
        view_.setZoomFactor(std::min(setup.zoom, 5.0)); // the engine's greatest
        QObject::connect(&page_, &QWebEnginePage::loadFinished, &page_, [this, failed = setup.failed](bool success) {
            if (!success && page_.history()->count() == 0) // the engine has not even a page about its failure
                failed("The service sends no page that could be shown here.");
        });
        QObject::connect(&page_, &QWebEnginePage::renderProcessTerminated, &page_,
                         [failed = setup.failed](auto status) {
                             if (status != QWebEnginePage::NormalTerminationStatus)
                                 failed("The page has stopped working.");
                         });
    }

    [[nodiscard]] QWidget* widget() override { return &view_; }

    void navigate(const QUrl& address) override
    {
        // The engine's own page about a missing file needs scripts.
        const bool missing = address.isLocalFile() && !QFileInfo::exists(address.toLocalFile());
        page_.settings()->setAttribute(QWebEngineSettings::JavascriptEnabled, scripts_ || missing);
        page_.setUrl(address);
    }

    [[nodiscard]] QUrl address() const override { return page_.url(); }
    void back() override { page_.history()->back(); }
    void forward() override { page_.history()->forward(); }

    void setColours(const PageColours& colours) override
    {
        const QWebEngineScript script = colouring(colours);
        page_.scripts().clear();
        page_.scripts().insert(script);
        page_.runJavaScript(script.sourceCode(), script.worldId());
    }

private:
    RequestGuard guard_;
    QWebEngineProfile profile_;
    GuardedPage page_;
    bool scripts_;
    GuardedView view_;
};

} // namespace

/// Qt WebEngine as a module of the game.
class BrowserEngine : public QObject, public BrowserModule
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID LexiGroveBrowserModule_iid)
    Q_INTERFACES(lexigrove::BrowserModule)

public:
    BrowserEngine()
    {
        // Otherwise there is a page of technical data in the terminal.
        QLoggingCategory::setFilterRules("qt.webenginecontext=false");
        decideOnSandbox();
        decideOnPainting();
    }

    [[nodiscard]] std::unique_ptr<BrowserPage> newPage(const BrowserPageSetup& setup) override
    {
        return std::make_unique<EnginePage>(setup);
    }
};

} // namespace lexigrove

#include "browser_module.moc"
