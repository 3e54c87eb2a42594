#include "ui/pages/text_page.hpp"

#include <QPointer>
#include <QTextBrowser>

namespace lexigrove
{

namespace
{

class TextPage : public BrowserPage
{
public:
    TextPage()
    {
        view_->setFrameShape(QFrame::NoFrame);
        view_->setOpenExternalLinks(true);
        constexpr double margin = 24;
        view_->document()->setDocumentMargin(margin);
    }
    TextPage(const TextPage&) = delete;
    TextPage& operator=(const TextPage&) = delete;
    ~TextPage() override { delete view_; }

    [[nodiscard]] QWidget* widget() override { return view_; }
    void navigate(const QUrl& address) override { view_->setSource(address); }
    [[nodiscard]] QUrl address() const override { return view_->source(); }
    void back() override { view_->backward(); }
    void forward() override { view_->forward(); }
    void setColours(const PageColours& /*colours*/) override {} // the view has those of the window

private:
    QPointer<QTextBrowser> view_ = new QTextBrowser; // the layout may have taken it along
};

} // namespace

std::unique_ptr<BrowserPage> newTextPage()
{
    return std::make_unique<TextPage>();
}

} // namespace lexigrove
