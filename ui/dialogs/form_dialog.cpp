#include "ui/dialogs/form_dialog.hpp"

#include "ui/look/text.hpp"

#include <QHBoxLayout>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace lexigrove
{

FormDialog::FormDialog(Host& gameHost, const char* objectName, std::string_view caption)
    : QDialog(gameHost.dialogParent()), host(gameHost)
{
    setObjectName(objectName);
    setWindowTitle(toQString(caption));
}

void FormDialog::resizeOnScreen(int width, int height)
{
    const QSize frame(2 * Theme::grid, 5 * Theme::grid); // what a window manager adds
    resize(QSize(width, height).boundedTo(screen()->availableSize() - frame));
}

QVBoxLayout* FormDialog::newColumn()
{
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(Theme::margin, Theme::margin, Theme::margin, Theme::margin);
    column->setSpacing(Theme::gap);
    return column;
}

QPushButton* newButton(const char* objectName, std::string_view caption, std::string_view toolTip)
{
    auto* const button = new QPushButton(toQString(caption));
    button->setObjectName(objectName);
    button->setToolTip(toQString(toolTip));
    return button;
}

QHBoxLayout* newButtonRow(std::initializer_list<QWidget*> buttons)
{
    auto* const row = new QHBoxLayout;
    row->setSpacing(Theme::gap);
    int stretch = 2;
    for (QWidget* const button : buttons) {
        row->addWidget(button, stretch);
        stretch = 1;
    }
    return row;
}

} // namespace lexigrove
