#include "ui/dialogs/dialogs.hpp"
#include "ui/dialogs/form_dialog.hpp"
#include "ui/look/text.hpp"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QVBoxLayout>

#include <functional>

namespace lexigrove
{

namespace
{

/// A label that reports clicks on it.
class ClickedLabel : public QLabel
{
public:
    using QLabel::QLabel;

    std::function<void()> clicked;

protected:
    void mousePressEvent(QMouseEvent*) override {} // so that the release comes here too
    void mouseReleaseEvent(QMouseEvent* event) override
    {
        if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
            clicked();
    }
};

constexpr const char* aboutText = R"(<p style="font-size: 18px; font-weight: bold">LexiGrove - January 2005</p>
<p style="line-height: 150%">A game of words on a board of letters<br>
Made by the LexiGrove authors, with thanks to all who collect words<br>
Free software under the MIT License</p>)";

class AboutDialog : public FormDialog
{
public:
    explicit AboutDialog(Host& gameHost) : FormDialog(gameHost, "AboutForm", "About LexiGrove")
    {
        auto* const picture = new QLabel;
        picture->setPixmap(
            QApplication::windowIcon().pixmap({16 * Theme::grid, 16 * Theme::grid}, devicePixelRatioF()));
        picture->setObjectName("Picture");
        auto* const AboutText = new ClickedLabel(aboutText);
        AboutText->setObjectName("AboutText");
        AboutText->clicked = [this] { accept(); };
        QPushButton* const AboutOk = newButton("AboutOk", "OK");
        AboutOk->setProperty("primary", true);
        AboutOk->setDefault(true);
        AboutOk->setMinimumWidth(14 * Theme::grid);
        connect(AboutOk, &QPushButton::clicked, this, [this] { accept(); });

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
    void showForm() override {}
    void closePressed() override { accept(); }
};

} // namespace

void runAboutDialog(Host& host)
{
    AboutDialog dialog(host);
    host.gate.exec(dialog);
}

} // namespace lexigrove
