#include "ui/dialogs/form_dialog.hpp"
#include "ui/game_windows.hpp"
#include "ui/look/text.hpp"

#include <QApplication>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QVBoxLayout>

namespace lexigrove
{

namespace
{

constexpr const char* aboutText = R"(<p style="font-size: 18px; font-weight: bold">LexiGrove - January 2005</p>
<p style="line-height: 150%">A game of words on a board of letters<br>
Made by the LexiGrove authors, with thanks to all who collect words<br>
Free software under the MIT License</p>)";

class AboutDialog : public FormDialog
{
public:
    explicit AboutDialog(Host& gameHost)
        : FormDialog(gameHost, "AboutForm", "About LexiGrove"), AboutText(new QLabel(aboutText))
    {
        auto* const picture = new QLabel;
        picture->setObjectName("Picture");
        picture->setPixmap(QApplication::windowIcon().pixmap(16 * Theme::grid));
        AboutText->setObjectName("AboutText");
        AboutText->setTextInteractionFlags(Qt::NoTextInteraction);
        QPushButton* const AboutOk = newButton("AboutOk", "OK");
        AboutOk->setProperty("primary", true);
        AboutOk->setDefault(true);
        AboutOk->setMinimumWidth(Theme::scaled(14 * Theme::grid));
        connect(AboutOk, &QPushButton::clicked, this, &QDialog::accept);

        auto* const areas = new QHBoxLayout;
        areas->setSpacing(Theme::margin);
        areas->addWidget(picture);
        areas->addWidget(AboutText);
        QVBoxLayout* const column = newColumn();
        column->addLayout(areas);
        column->addWidget(AboutOk, 0, Qt::AlignRight);
        column->setSizeConstraint(QLayout::SetFixedSize);
    }

protected:
    /// A click on the text closes the window; the text itself has no use for clicks.
    void mouseReleaseEvent(QMouseEvent* event) override
    {
        if (event->button() == Qt::LeftButton && AboutText->geometry().contains(event->position().toPoint()))
            accept();
    }

private:
    QLabel* AboutText;
};

} // namespace

void GameWindows::showAbout()
{
    AboutDialog dialog(host_);
    host_.gate.exec(dialog);
}

} // namespace lexigrove
