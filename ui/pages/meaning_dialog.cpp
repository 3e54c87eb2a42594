#include "ui/dialogs/form_dialog.hpp"
#include "ui/game_windows.hpp"
#include "ui/look/text.hpp"
#include "ui/pages/browser_view.hpp"
#include "word_services/meanings.hpp"

#include <QDesktopServices>
#include <QMessageBox>
#include <QShortcut>
#include <QVBoxLayout>

namespace lexigrove
{

namespace
{

class MeaningDialog : public FormDialog
{
public:
    MeaningDialog(Host& gameHost, BrowserLoader& loader, const MeaningForm& form)
        : FormDialog(gameHost, "Form3", form.Caption)
    {
        auto* const WbDictionary = new BrowserView(loader, BrowserRules::forServices(toQString(form.address)));
        WbDictionary->setObjectName("WbDictionary");
        auto* const column = new QVBoxLayout(this);
        column->setContentsMargins({});
        column->addWidget(WbDictionary);
        new QShortcut(Qt::Key_Escape, this, [this] { accept(); }); // even if the page has the focus
        resizeOnScreen(*this, 120 * Theme::grid, 84 * Theme::grid);
        // Before the window is shown: the engine's first view makes the toolkit recreate the window, which would close
        // an open dialog.
        WbDictionary->navigate(QUrl(toQString(form.address)));
    }
};

} // namespace

void GameWindows::show(const MeaningForm& form)
{
    if (!browser_->isUsable()) {
        if (QDesktopServices::openUrl(QUrl(toQString(form.address))))
            return;
        QMessageBox box(QMessageBox::NoIcon, "LexiGrove",
                        "There is no browser to show the page with:\n" + toQString(form.address), QMessageBox::Ok,
                        host_.dialogParent());
        host_.gate.exec(box);
        return;
    }
    MeaningDialog dialog(host_, *browser_, form);
    host_.gate.exec(dialog);
}

} // namespace lexigrove
