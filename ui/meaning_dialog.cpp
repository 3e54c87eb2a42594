#include "ui/meaning_dialog.hpp"

#include "ui/browser_view.hpp"
#include "ui/form_dialog.hpp"
#include "ui/text.hpp"

#include <QShowEvent>
#include <QVBoxLayout>

namespace lexigrove
{

namespace
{

class MeaningView : public FormDialog
{
public:
    MeaningView(Host& gameHost, BrowserLoader& loader, const MeaningForm& form)
        : FormDialog(gameHost, "Form3", form.Caption),
          address_(QString::fromStdString(form.address)),
          WbDictionary_(new BrowserView(loader, BrowserRules::forServices()))
    {
        WbDictionary_->setObjectName("WbDictionary");
        auto* const column = new QVBoxLayout(this);
        column->setContentsMargins({});
        column->addWidget(WbDictionary_);
        resize(120 * Theme::grid, 84 * Theme::grid);
    }

protected:
    void showEvent(QShowEvent* event) override
    {
        FormDialog::showEvent(event);
        if (!event->spontaneous())
            QMetaObject::invokeMethod(
                this, [this] { WbDictionary_->navigate(address_); }, Qt::QueuedConnection);
    }

    void showForm() override {}
    void closePressed() override { accept(); }

private:
    QUrl address_;
    BrowserView* WbDictionary_;
};

} // namespace

void MeaningDialog::show(const MeaningForm& form)
{
    MeaningView view(host_, loader_, form);
    host_.gate.exec(view);
}

} // namespace lexigrove
