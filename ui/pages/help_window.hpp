#pragma once

#include <QSize>
#include <QUrl>
#include <QWidget>

#include <optional>
#include <string>

class QPushButton;

namespace lexigrove
{

class BrowserLoader;
class BrowserView;
class Theme;

/// The help window `Form5`: a local page in a browser view, with its buttons below. It does not block the game; "Exit"
/// hides it.
class HelpWindow : public QWidget
{
public:
    /// `address` is the path of the page.
    HelpWindow(const Theme& theme, BrowserLoader& loader, const std::string& address);

    /// Shows the window and the help page from its beginning.
    void bringToFront();

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void navigateBy(void (BrowserView::*direction)());

    const QUrl address_;
    BrowserView* WebBrowser1_;
    QPushButton* Command1_;
    QPushButton* Command2_;
    QPushButton* Command3_;
    bool awaitsActivation_ = false; ///< the page for this showing is already loading
};

/// Whether "Back" and "Forward" do anything at the browser's current address: they only move between the "#" anchors of
/// the help page.
[[nodiscard]] bool mayNavigate(const QUrl& currentAddress);

/// Size of the browser view for a window's inner size and the view's top, all in 1/1440 inch. Nothing if it would be
/// negative: the view then keeps its size.
[[nodiscard]] std::optional<QSize> helpViewSize(QSize inner, int viewTop);

} // namespace lexigrove
