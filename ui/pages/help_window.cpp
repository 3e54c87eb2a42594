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

/// The help page's own names for the colours of the windows.
PageColours pageColours(const WindowColours& colours)
{
    return {
        {"--ground", toQColor(colours.ground)},   {"--text", toQColor(colours.text)},
        {"--quiet", toQColor(colours.quietText)}, {"--line", toQColor(colours.line)},
        {"--card", toQColor(colours.card)},       {"--accent", toQColor(colours.accent)},
    };
}

} // namespace

/// The window `Form5` itself.
class HelpView : public QWidget
{
public:
    HelpView(const Theme& theme, BrowserLoader& loader, const HelpForm& form);

    /// Shows the window and the help page from its beginning.
    void bringToFront();

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void leaf(void (BrowserView::*direction)());

    const QUrl address_;
    BrowserView* WebBrowser1_;
    QPushButton* Command1_;
    QPushButton* Command2_;
    QPushButton* Command3_;
    bool awaitsActivation_ = false; ///< the page of this showing is already on its way
};

HelpView::HelpView(const Theme& theme, BrowserLoader& loader, const HelpForm& form)
    : address_(QUrl::fromLocalFile(pathToQString(form.Tag))),
      WebBrowser1_(new BrowserView(loader, BrowserRules::forLocalPage(pathToQString(form.Tag)), this)),
      Command1_(newButton("Command1", form.Command1.Caption)),
      Command2_(newButton("Command2", form.Command2.Caption)),
      Command3_(newButton("Command3", form.Command3.Caption))
{
    const auto colourPage = [this, &theme] { WebBrowser1_->setPageColours(pageColours(theme.colours())); };
    connect(&theme, &Theme::changed, this, colourPage);
    colourPage();
    setObjectName("Form5");
    setWindowTitle(toQString(form.Caption));
    setAttribute(Qt::WA_QuitOnClose, false);
    WebBrowser1_->setObjectName("WebBrowser1");
    for (QPushButton* const button : {Command1_, Command2_, Command3_}) {
        button->setParent(this);
        button->setStyleSheet("padding: 2px 14px; min-height: 18px");
    }
    connect(Command1_, &QPushButton::clicked, this, [this] { leaf(&BrowserView::back); });
    connect(Command2_, &QPushButton::clicked, this, [this] { leaf(&BrowserView::forward); });
    connect(Command3_, &QPushButton::clicked, this, &QWidget::hide);
    Command3_->setShortcut(Qt::Key_Escape);
    WebBrowser1_->move(Theme::grid / 2, Theme::grid / 2);
    resize(104 * Theme::grid, 84 * Theme::grid);
}

void HelpView::bringToFront()
{
    awaitsActivation_ = !isActiveWindow();
    WebBrowser1_->navigate(address_); // first: the engine's first view makes the toolkit build a shown window anew
    show();
    raise();
    activateWindow();
}

bool HelpView::event(QEvent* event)
{
    if (event->type() == QEvent::WindowActivate && isVisible()) {
        if (!awaitsActivation_)
            WebBrowser1_->navigate(address_);
        awaitsActivation_ = false;
    }
    return QWidget::event(event);
}

void HelpView::resizeEvent(QResizeEvent*)
{
    const auto size =
        helpViewSize(width() * unitsPerPixel, height() * unitsPerPixel, WebBrowser1_->y() * unitsPerPixel);
    if (!size)
        return;
    WebBrowser1_->resize(size->width / unitsPerPixel, size->height / unitsPerPixel);

    const int strip = WebBrowser1_->geometry().bottom() + 1;
    int left = WebBrowser1_->x();
    for (QPushButton* const button : {Command1_, Command2_, Command3_}) {
        const QSize buttonSize(11 * Theme::grid, button->sizeHint().height());
        if (button == Command3_) // stands apart, at the right
            left = width() - WebBrowser1_->x() - buttonSize.width();
        button->setGeometry({QPoint(left, strip + (height() - strip - buttonSize.height()) / 2), buttonSize});
        left += buttonSize.width() + Theme::spacing;
    }
}

void HelpView::hideEvent(QHideEvent* event)
{
    if (!event->spontaneous())
        WebBrowser1_->close();
}

/// Back and Forward only move between places of the page.
void HelpView::leaf(void (BrowserView::*direction)())
{
    if (mayLeaf(WebBrowser1_->address().toEncoded().toStdString()))
        (WebBrowser1_->*direction)();
}

QtHelpWindow::QtHelpWindow(const Theme& theme, BrowserLoader& loader) : theme_(theme), loader_(loader) {}

QtHelpWindow::~QtHelpWindow() = default;

void QtHelpWindow::show(const HelpForm& form)
{
    if (!window_)
        window_ = std::make_unique<HelpView>(theme_, loader_, form);
    window_->bringToFront();
}

} // namespace lexigrove
