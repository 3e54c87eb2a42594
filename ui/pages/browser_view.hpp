#pragma once

#include "ui/pages/browser.hpp"

#include <QLabel>
#include <QPushButton>
#include <QWidget>

#include <memory>

namespace lexigrove
{

/// Shows pages of the web engine. The engine is loaded with the first page; where that fails, the view says so in place
/// of the page and offers the system's browser.
class BrowserView : public QWidget
{
    Q_OBJECT

public:
    BrowserView(BrowserLoader& loader, BrowserRules rules, QWidget* parent = nullptr);
    ~BrowserView() override;

    /// The pointer is busy meanwhile.
    void navigate(const QUrl& address);

    /// Of the page shown, empty when none is.
    [[nodiscard]] QUrl address() const;
    void back();
    void forward();

    /// For a page whose style sheet knows colours by these names.
    void setPageColours(const PageColours& colours);

    /// Tears the page down; the next `navigate` begins anew.
    void close();

signals:
    /// A page was loaded, or the engine's own page about a failure stands in its place.
    void loaded(bool success);

private:
    [[nodiscard]] bool openPage();
    void showFailure(const QUrl& address);

    BrowserLoader& loader_;
    BrowserRules rules_;
    std::unique_ptr<BrowserPage> page_;
    QWidget* failure_;
    QLabel* reason_;
    QUrl wanted_;
    PageColours colours_;
};

} // namespace lexigrove
