#pragma once

#include "ui/pages/browser.hpp"

#include <QLabel>
#include <QWidget>

#include <memory>

namespace lexigrove
{

/// Shows pages of the web engine. The engine is loaded with the first page; if that fails, or a page's process ends,
/// the view says so instead and offers the system's browser. Where the engine cannot be used, a local page is shown by
/// the toolkit.
class BrowserView : public QWidget
{
    Q_OBJECT

public:
    BrowserView(BrowserLoader& loader, BrowserRules rules, QWidget* parent = nullptr);
    ~BrowserView() override;

    /// Shows the busy pointer meanwhile.
    void navigate(const QUrl& address);

    /// The address of the page shown; empty if there is none.
    [[nodiscard]] QUrl address() const;
    void back();
    void forward();

    /// Sets the colours that the page's style sheet knows by these names.
    void setPageColours(const PageColours& colours);

    /// Closes the page; the next `navigate` opens a new one.
    void close();

signals:
    /// A page was loaded, or the engine's own page about a failure is shown instead.
    void loaded(bool success);

private:
    [[nodiscard]] bool openPage();
    void showFailure(const QString& reason);

    BrowserLoader& loader_;
    BrowserRules rules_;
    std::unique_ptr<BrowserPage> page_;
    QWidget* failure_;
    QLabel* reason_;
    QUrl wanted_;
    PageColours colours_;
};

} // namespace lexigrove
