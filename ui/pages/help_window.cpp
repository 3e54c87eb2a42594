#include "ui/pages/help_window.hpp"

#include "ui/dialogs/form_dialog.hpp"
#include "ui/look/text.hpp"
#include "ui/pages/browser_view.hpp"

#include <QHBoxLayout>
#include <QHideEvent>
#include <QPushButton>
#include <QVBoxLayout>

namespace lexigrove
{

namespace
{

/// The colours of windows and tiles under the help page's names for them.
PageColours pageColours(const Theme& theme)
{
    const WindowColours& colours = theme.colours();
    const ColourScheme& scheme = theme.scheme();
    PageColours named{
        {"--background", toQColor(colours.background)},
        {"--text", toQColor(colours.text)},
        {"--quiet", toQColor(colours.quietText)},
        {"--line", toQColor(colours.line)},
        {"--card", toQColor(colours.card)},
        {"--accent", toQColor(colours.accent)},
        {"--hi", toQColor(colours.tileTop)},
        {"--lo", toQColor(colours.tileBottom)},
        {"--link", toQColor(colours.link)},
        {"--face", toQColor(scheme.tileFace(multiplier::plain))},
        {"--letter", toQColor(scheme.tileLetter(multiplier::plain))},
    };
    const std::pair<const char*, Colour> tiles[] = {{"two", multiplier::doubled},
                                                    {"three", multiplier::tripled},
                                                    {"four", multiplier::quadrupled},
                                                    {"red", multiplier::red}};
    for (const auto& [name, multiplier] : tiles) {
        named[QString("--") + name] = toQColor(scheme.tileFace(multiplier));
        named[QString("--on-") + name] = toQColor(scheme.tileLetter(multiplier));
    }
    return named;
}

} // namespace

HelpWindow::HelpWindow(const Theme& theme, BrowserLoader& loader, const std::string& address)
    : address_(QUrl::fromLocalFile(pathToQString(address))),
      WebBrowser1_(new BrowserView(loader, BrowserRules::forLocalPage(pathToQString(address)), this))
{
    const auto colourPage = [this, &theme] { WebBrowser1_->setPageColours(pageColours(theme)); };
    connect(&theme, &Theme::changed, this, colourPage);
    colourPage();
    setObjectName("Form5");
    setWindowTitle(QStringLiteral("LexiGrove Help"));
    setAttribute(Qt::WA_QuitOnClose, false);
    WebBrowser1_->setObjectName("WebBrowser1");
    auto* const Command1 = newButton("Command1", "Back");
    auto* const Command2 = newButton("Command2", "Forward");
    auto* const Command3 = newButton("Command3", "Exit");
    connect(Command1, &QPushButton::clicked, this, [this] { navigateBy(&BrowserView::back); });
    connect(Command2, &QPushButton::clicked, this, [this] { navigateBy(&BrowserView::forward); });
    connect(Command3, &QPushButton::clicked, this, &QWidget::hide);
    Command3->setShortcut(Qt::Key_Escape);

    auto* const areas = new QVBoxLayout(this);
    areas->setContentsMargins(Theme::grid / 2, Theme::grid / 2, Theme::grid / 2, 0);
    areas->setSpacing(0);
    areas->addWidget(WebBrowser1_, 1);
    auto* const strip = new QHBoxLayout;
    strip->setSpacing(Theme::spacing);
    strip->addStrut(4 * Theme::grid);
    for (QPushButton* const button : {Command1, Command2, Command3}) {
        button->setStyleSheet("padding: 2px 14px; min-height: 18px");
        button->setFixedWidth(Theme::scaled(11 * Theme::grid));
        if (button == Command3) // set apart, at the right
            strip->addStretch();
        strip->addWidget(button);
    }
    areas->addLayout(strip);
    resizeOnScreen(*this, 104 * Theme::grid, 84 * Theme::grid);
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

void HelpWindow::hideEvent(QHideEvent* event)
{
    if (!event->spontaneous())
        WebBrowser1_->close();
}

/// "Back" and "Forward" only move between the "#" anchors of the help page.
void HelpWindow::navigateBy(void (BrowserView::*direction)())
{
    if (WebBrowser1_->address().toEncoded().contains('#'))
        (WebBrowser1_->*direction)();
}

} // namespace lexigrove
