#include "ui/pages/help_window.hpp"

#include "controls/geometry.hpp"
#include "ui/dialogs/form_dialog.hpp"
#include "ui/look/text.hpp"
#include "ui/pages/browser_view.hpp"

#include <QHideEvent>
#include <QPushButton>

namespace lexigrove
{

namespace
{

/// The window colours under the help page's names for them.
PageColours pageColours(const WindowColours& colours)
{
    return {
        {"--background", toQColor(colours.background)},
        {"--text", toQColor(colours.text)},
        {"--quiet", toQColor(colours.quietText)},
        {"--line", toQColor(colours.line)},
        {"--card", toQColor(colours.card)},
        {"--accent", toQColor(colours.accent)},
    };
}

} // namespace

HelpWindow::HelpWindow(const Theme& theme, BrowserLoader& loader, const std::string& address)
    : address_(QUrl::fromLocalFile(pathToQString(address))),
      WebBrowser1_(new BrowserView(loader, BrowserRules::forLocalPage(pathToQString(address)), this)),
      Command1_(newButton("Command1", "Back")),
      Command2_(newButton("Command2", "Forward")),
      Command3_(newButton("Command3", "Exit"))
{
    const auto colourPage = [this, &theme] { WebBrowser1_->setPageColours(pageColours(theme.colours())); };
    connect(&theme, &Theme::changed, this, colourPage);
    colourPage();
    setObjectName("Form5");
    setWindowTitle(QStringLiteral("LexiGrove Help"));
    setAttribute(Qt::WA_QuitOnClose, false);
    WebBrowser1_->setObjectName("WebBrowser1");
    for (QPushButton* const button : {Command1_, Command2_, Command3_}) {
        button->setParent(this);
        button->setStyleSheet("padding: 2px 14px; min-height: 18px");
    }
    connect(Command1_, &QPushButton::clicked, this, [this] { navigateBy(&BrowserView::back); });
    connect(Command2_, &QPushButton::clicked, this, [this] { navigateBy(&BrowserView::forward); });
    connect(Command3_, &QPushButton::clicked, this, &QWidget::hide);
    Command3_->setShortcut(Qt::Key_Escape);
    WebBrowser1_->move(Theme::grid / 2, Theme::grid / 2);
    resize(104 * Theme::grid, 84 * Theme::grid);
}

void HelpWindow::bringToFront()
{
    awaitsActivation_ = !isActiveWindow();
    WebBrowser1_->navigate(address_); // first: the engine's first view makes the toolkit recreate a visible window
    show();
    raise();
    activateWindow();
}

bool HelpWindow::event(QEvent* event)
{
    if (event->type() == QEvent::WindowActivate && isVisible()) {
        if (!awaitsActivation_)
            WebBrowser1_->navigate(address_);
        awaitsActivation_ = false;
    }
    return QWidget::event(event);
}

void HelpWindow::resizeEvent(QResizeEvent*)
{
    const auto inUnits = helpViewSize(size() * unitsPerPixel, WebBrowser1_->y() * unitsPerPixel);
    if (!inUnits)
        return;
    WebBrowser1_->resize(*inUnits / unitsPerPixel);

    const int strip = WebBrowser1_->geometry().bottom() + 1;
    int left = WebBrowser1_->x();
    for (QPushButton* const button : {Command1_, Command2_, Command3_}) {
        const QSize buttonSize(11 * Theme::grid, button->sizeHint().height());
        if (button == Command3_) // set apart, at the right
            left = width() - WebBrowser1_->x() - buttonSize.width();
        button->setGeometry({QPoint(left, strip + (height() - strip - buttonSize.height()) / 2), buttonSize});
        left += buttonSize.width() + Theme::spacing;
    }
}

void HelpWindow::hideEvent(QHideEvent* event)
{
    if (!event->spontaneous())
        WebBrowser1_->close();
}

void HelpWindow::navigateBy(void (BrowserView::*direction)())
{
    if (mayNavigate(WebBrowser1_->address()))
        (WebBrowser1_->*direction)();
}

bool mayNavigate(const QUrl& currentAddress)
{
    return currentAddress.toEncoded().contains('#');
}

std::optional<QSize> helpViewSize(QSize inner, int viewTop)
{
    constexpr int sideMargin = 120;
    constexpr int buttonStrip = 480;
    const QSize size(inner.width() - sideMargin, inner.height() - buttonStrip - viewTop);
    if (size.width() < 0 || size.height() < 0)
        return std::nullopt;
    return size;
}

} // namespace lexigrove
