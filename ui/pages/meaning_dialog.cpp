#include "ui/pages/meaning_dialog.hpp"

#include "ui/dialogs/form_dialog.hpp"
#include "ui/look/text.hpp"
#include "ui/pages/browser_view.hpp"

#include <QShortcut>
#include <QVBoxLayout>

namespace lexigrove
{

namespace
{

class MeaningView : public FormDialog
{
public:
    MeaningView(Host& gameHost, BrowserLoader& loader, const MeaningForm& form)
        : FormDialog(gameHost, "Form3", form.Caption)
    {
        auto* const WbDictionary = new BrowserView(loader, BrowserRules::forServices(toQString(form.address)));
        WbDictionary->setObjectName("WbDictionary");
        auto* const column = new QVBoxLayout(this);
        column->setContentsMargins({});
        column->addWidget(WbDictionary);
        new QShortcut(Qt::Key_Escape, this, [this] { accept(); }); // also where the page has the focus
        resize(120 * Theme::grid, 84 * Theme::grid);
        // Before the window is shown: the engine's first view makes the toolkit build a window anew, which would close
        // a dialog that is open.
        WbDictionary->navigate(QUrl(toQString(form.address)));
    }

protected:
    void showForm() override {}
    void closePressed() override { accept(); }
};

} // namespace

void MeaningDialog::show(const MeaningForm& form)
{
    MeaningView view(host_, loader_, form);
    host_.gate.exec(view);
}

} // namespace lexigrove
