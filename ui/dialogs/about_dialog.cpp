#include "ui/dialogs/about_dialog.hpp"

#include "ui/dialogs/form_dialog.hpp"
#include "ui/look/game_icon.hpp"
#include "ui/look/text.hpp"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include <functional>

namespace lexigrove
{

namespace
{

class Picture : public QWidget
{
public:
    Picture() { setFixedSize(16 * Theme::grid, 16 * Theme::grid); }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        paintGameIcon(painter, rect());
    }
};

/// A label that tells of a click on it.
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

/// The lines of the text, the first one, the game's name, large.
QString aboutText(const std::string& text)
{
    QStringList lines = linesOf(text).toHtmlEscaped().split('\n');
    lines.front() = QString("<p style=\"font-size: 18px; font-weight: bold\">%1</p>").arg(lines.front());
    return lines.front() + "<p style=\"line-height: 150%\">" + lines.mid(1).join("<br>") + "</p>";
}

class AboutView : public FormDialog
{
public:
    AboutView(Host& gameHost, const AboutForm& form) : FormDialog(gameHost, "AboutForm", "About LexiGrove")
    {
        auto* const picture = new Picture;
        picture->setObjectName("Picture");
        auto* const AboutText = new ClickedLabel(aboutText(form.AboutText.Caption));
        AboutText->setObjectName("AboutText");
        AboutText->clicked = [this] { accept(); };
        QPushButton* const AboutOk = newButton("AboutOk", form.AboutOk.Caption);
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

    void keyPressEvent(QKeyEvent* event) override
    {
        if (!event->text().isEmpty() && AboutForm::closesOnKey(event->text().front().unicode()))
            accept();
        else
            FormDialog::keyPressEvent(event);
    }
};

} // namespace

void AboutDialog::show(const AboutForm& form)
{
    AboutView view(host_, form);
    host_.gate.exec(view);
}

} // namespace lexigrove
