#include "ui/machine/qt_dialogs.hpp"

#include "ui/look/text.hpp"

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QHeaderView>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QShortcut>
#include <QTreeView>

#include <algorithm>

namespace lexigrove
{

namespace
{

/// The toolkit's form of a filter: "description (patterns)", the patterns separated by blanks.
QStringList nameFilters(const std::string& filter)
{
    const QStringList parts = toQString(filter).split(QChar(u'\0'), Qt::SkipEmptyParts);
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QString patterns = parts[i + 1];
        filters.append(QStringLiteral("%1 (%2)").arg(parts[i], patterns.replace(u';', u' ')));
    }
    return filters;
}

} // namespace

void QtDialogs::message(const std::string& text)
{
    QMessageBox box(QMessageBox::NoIcon, QStringLiteral("LexiGrove"), withNewlines(text), QMessageBox::Ok,
                    host_.dialogParent());
    box.setTextFormat(Qt::PlainText);
    host_.gate.exec(box);
}

bool QtDialogs::confirm(const std::string& text)
{
    return ask(text, {}).value_or(false);
}

std::optional<bool> QtDialogs::confirmOrLookBack(const std::string& text)
{
    return ask(text, QMessageBox::tr("Look back"));
}

/// Yes or No, or nothing for the third button, which there is if it has a caption.
std::optional<bool> QtDialogs::ask(const std::string& text, const QString& third)
{
    QMessageBox box(QMessageBox::NoIcon, QStringLiteral("LexiGrove"), withNewlines(text),
                    QMessageBox::Yes | QMessageBox::No, host_.dialogParent());
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::Yes);
    box.setEscapeButton(QMessageBox::No);
    const QAbstractButton* const other = third.isEmpty() ? nullptr : box.addButton(third, QMessageBox::ActionRole);
    if (host_.gate.inTick()) { // whoever types a word is not offered letters
        for (QAbstractButton* const button : box.buttons())
            button->setText(button->text().remove(u'&'));
    }
    const int answer = host_.gate.exec(box);
    if (other != nullptr && box.clickedButton() == other)
        return std::nullopt;
    return answer == QMessageBox::Yes;
}

bool QtDialogs::offer(const std::string& text)
{
    emit host_.modelsChanged(); // the status line below says what it is about
    return confirm(text);
}

std::string QtDialogs::input(const std::string& title, const std::string& prompt, const std::string& defaultAnswer)
{
    emit host_.modelsChanged(); // the window below shows what the question is about
    QInputDialog box(host_.dialogParent());
    box.setWindowTitle(toQString(title));
    box.setLabelText(withNewlines(prompt));
    box.setTextValue(toQString(defaultAnswer));
    box.resize(std::max(box.sizeHint().width(), 56 * Theme::grid), box.sizeHint().height());
    return host_.gate.exec(box) == QDialog::Accepted ? fromQString(box.textValue()) : std::string();
}

std::optional<std::string> QtDialogs::inputOrHelp(const std::string& title, const std::string& prompt)
{
    constexpr int helpWanted = 2; // neither accepted nor rejected
    QInputDialog box(host_.dialogParent());
    box.setWindowTitle(toQString(title));
    box.setLabelText(withNewlines(prompt) + "\n\n" + QInputDialog::tr("Looking for help? Press F1 again"));
    box.resize(box.sizeHint()); // makes the buttons
    const auto help = [&box] { box.done(helpWanted); };
    if (auto* const buttons = box.findChild<QDialogButtonBox*>()) {
        buttons->addButton(QDialogButtonBox::Help);
        QObject::connect(buttons, &QDialogButtonBox::helpRequested, &box, help);
    }
    QObject::connect(new QShortcut(Qt::Key_F1, &box), &QShortcut::activated, &box, help);
    const int answer = host_.gate.exec(box);
    if (answer == helpWanted)
        return std::nullopt;
    return answer == QDialog::Accepted ? fromQString(box.textValue()) : std::string();
}

std::string QtDialogs::openFile(const OpenFileRequest& request)
{
    QFileDialog box(host_.dialogParent(), toQString(request.title), pathToQString(request.initialFolder));
    box.setFileMode(QFileDialog::ExistingFile);
    box.setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::HideNameFilterDetails | QFileDialog::ReadOnly);
    box.setNameFilters(nameFilters(request.filter));
    if (auto* const files = box.findChild<QTreeView*>()) { // the columns are as wide as what they show
        files->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
        files->header()->setSectionResizeMode(0, QHeaderView::Stretch);
        files->header()->setStretchLastSection(false);
        files->setColumnHidden(2, true); // the kind of file, which the filter says
    }
    const bool chosen = host_.gate.exec(box) == QDialog::Accepted && !box.selectedFiles().isEmpty();
    return chosen ? pathFromQString(box.selectedFiles().constFirst()) : std::string();
}

} // namespace lexigrove
