#pragma once

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

/// Colours by the names that a page's style sheet knows them by, such as "--ground".
using PageColours = std::map<QString, QColor>;

/// A page of the web engine. Destroying it tears the page down and forgets everything that it left.
class BrowserPage
{
public:
    virtual ~BrowserPage() = default;

    /// What shows the page; it belongs to this object.
    [[nodiscard]] virtual QWidget* widget() = 0;

    virtual void navigate(const QUrl& address) = 0;
    [[nodiscard]] virtual QUrl address() const = 0;
    virtual void back() = 0;
    virtual void forward() = 0;

    /// Gives the page, and those that come, the colours of the names that their style sheets use.
    virtual void setColours(const PageColours& colours) = 0;
};

struct BrowserPageSetup {
    BrowserRules rules;
    QColor ground;                    ///< under a page that is not painted yet
    std::function<void(bool)> loaded; ///< a page was loaded, or could not be
};

/// The web engine. It comes from a module of its own, so that a game that shows no page loads none of it.
class BrowserModule
{
public:
    virtual ~BrowserModule() = default;

    [[nodiscard]] virtual std::unique_ptr<BrowserPage> newPage(const BrowserPageSetup& setup) = 0;
};

/// Loads the module when the first page is asked for.
class BrowserLoader
{
public:
    /// The places where the module is looked for, the first one first; by default beside the executables and where it
    /// is installed.
    explicit BrowserLoader(QStringList folders = moduleFolders());

    /// A page, or null when the module cannot be loaded; `failure` then says why.
    [[nodiscard]] std::unique_ptr<BrowserPage> newPage(const BrowserPageSetup& setup);
    [[nodiscard]] const QString& failure() const { return failure_; }

    static QStringList moduleFolders();

private:
    [[nodiscard]] BrowserModule* module();

    QStringList folders_;
    QString failure_;
    BrowserModule* module_ = nullptr;
};

} // namespace lexigrove

#define LexiGroveBrowserModule_iid "lexigrove.BrowserModule/1"
Q_DECLARE_INTERFACE(lexigrove::BrowserModule, LexiGroveBrowserModule_iid)
