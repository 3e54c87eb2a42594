#pragma once

#include <QUrl>
#include <QWidget>

#include <string>

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
    void hideEvent(QHideEvent* event) override;

private:
    void navigateBy(void (BrowserView::*direction)());

    const QUrl address_;
    BrowserView* WebBrowser1_;
    bool awaitsActivation_ = false; ///< the page for this showing is already loading
};

} // namespace lexigrove
