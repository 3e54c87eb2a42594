#include "ui/pages/browser_view.hpp"

#include "ui/look/theme.hpp"
#include "ui/pages/text_page.hpp"

#include <QDesktopServices>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScopeGuard>
#include <QVBoxLayout>

#include <utility>

namespace lexigrove
{

BrowserView::BrowserView(BrowserLoader& loader, BrowserRules rules, QWidget* parent)
    : QWidget(parent),
      loader_(loader),
      rules_(std::move(rules)),
      failure_(new QWidget(this)),
      reason_(new QLabel(failure_))
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(failure_);

    auto* const browserButton = new QPushButton("Open in the system's browser", failure_);
    browserButton->setObjectName("SystemBrowser");
    connect(browserButton, &QPushButton::clicked, this, [this] { QDesktopServices::openUrl(wanted_); });
    reason_->setObjectName("Failure");
    reason_->setTextFormat(Qt::PlainText);
    reason_->setAlignment(Qt::AlignCenter);
    reason_->setWordWrap(true);
    auto* const rows = new QVBoxLayout(failure_);
    rows->setSpacing(16);
    rows->addStretch(2);
    rows->addWidget(reason_);
    rows->addWidget(browserButton, 0, Qt::AlignHCenter);
    rows->addStretch(3);
    failure_->hide();
}

BrowserView::~BrowserView()
{
    page_.reset(); // before the widgets around it
}

void BrowserView::navigate(const QUrl& address)
{
    // The busy pointer is an arrow with an hourglass: starting the engine takes a moment.
    QGuiApplication::setOverrideCursor(Qt::BusyCursor);
    const auto pointer = qScopeGuard([] { QGuiApplication::restoreOverrideCursor(); });
    wanted_ = address;
    if (!page_ && !openPage()) {
        showFailure("The page cannot be shown here:\n" + loader_.failure());
        return;
    }
    page_->widget()->show();
    page_->navigate(address);
}

bool BrowserView::openPage()
{
    const auto emitLoaded = [this](bool success) { emit loaded(success); };
    const auto giveUp = [this](const QString& reason) { // the page ends after its own signal
        QMetaObject::invokeMethod(
            this,
            [this, reason] {
                close();
                showFailure(reason);
            },
            Qt::QueuedConnection);
    };
    page_ = !loader_.isUsable() && wanted_.isLocalFile()
                ? newTextPage()
                : loader_.newPage({rules_, palette().color(QPalette::Window), Theme::textScale(), emitLoaded, giveUp});
    if (!page_)
        return false;
    failure_->hide();
    layout()->addWidget(page_->widget());
    setFocusProxy(page_->widget());
    if (!colours_.empty())
        page_->setColours(colours_);
    return true;
}

void BrowserView::showFailure(const QString& reason)
{
    reason_->setText(reason + "\n\n" + wanted_.toDisplayString(QUrl::PreferLocalFile));
    failure_->show();
}

QUrl BrowserView::address() const
{
    return page_ ? page_->address() : QUrl();
}

void BrowserView::back()
{
    if (page_)
        page_->back();
}

void BrowserView::forward()
{
    if (page_)
        page_->forward();
}

void BrowserView::setPageColours(const PageColours& colours)
{
    colours_ = colours;
    if (page_)
        page_->setColours(colours);
}

void BrowserView::close()
{
    setFocusProxy(nullptr);
    page_.reset();
    failure_->hide();
}

} // namespace lexigrove
