#pragma once

#include "ui/machine/modules.hpp"
#include "ui/pages/browser_rules.hpp"

#include <QColor>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <QWidget>
#include <QtPlugin>

#include <functional>
#include <map>
#include <memory>

namespace lexigrove
{

/// Colours by their names in a page's style sheet, such as "--background".
using PageColours = std::map<QString, QColor>;

/// A page of the web engine. Destroying it closes the page and forgets everything that it stored.
class BrowserPage
{
public:
    virtual ~BrowserPage() = default;

    /// The widget that shows the page; this object owns it.
    [[nodiscard]] virtual QWidget* widget() = 0;

    virtual void navigate(const QUrl& address) = 0;
    [[nodiscard]] virtual QUrl address() const = 0;
    virtual void back() = 0;
    virtual void forward() = 0;

    /// Sets the colours that the style sheets of this page and later ones know by name.
    virtual void setColours(const PageColours& colours) = 0;
};

struct BrowserPageSetup {
    BrowserRules rules;
    QColor background;                          ///< behind a page that is not painted yet
    double zoom = 1;                            ///< the size of the game's text as a multiple of the usual one
    std::function<void(bool)> loaded;           ///< called with whether a page could be loaded
    std::function<void(const QString&)> failed; ///< called with the reason if nothing is shown, or nothing more
};

/// The web engine, in a separate module, so that a game that shows no page does not load it.
class BrowserModule
{
public:
    virtual ~BrowserModule() = default;

    [[nodiscard]] virtual std::unique_ptr<BrowserPage> newPage(const BrowserPageSetup& setup) = 0;
};

/// Loads the module when the first page is needed.
class BrowserLoader
{
public:
    /// Pages reach the `services` (addresses, "https://host") wherever they are. `folders` are searched for the module
    /// in order; by default these are beside the executables and where it is installed.
    explicit BrowserLoader(QStringList services, QStringList folders = moduleFolders());

    /// Whether strangers' pages may be shown here: the module, a package of its own, is there, and the kernel lets the
    /// engine have its sandbox. As root it goes without one.
    [[nodiscard]] bool isUsable() const;

    /// A page, or null if the module cannot be loaded; `failure` then says why.
    [[nodiscard]] std::unique_ptr<BrowserPage> newPage(const BrowserPageSetup& setup);
    [[nodiscard]] const QString& failure() const { return failure_; }

private:
    QStringList services_;
    QStringList folders_;
    QString failure_;
    BrowserModule* module_ = nullptr;
};

} // namespace lexigrove

#define LexiGroveBrowserModule_iid "lexigrove.BrowserModule/1"
Q_DECLARE_INTERFACE(lexigrove::BrowserModule, LexiGroveBrowserModule_iid)
