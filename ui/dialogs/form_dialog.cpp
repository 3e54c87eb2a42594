#include "ui/dialogs/form_dialog.hpp"

#include "ui/look/text.hpp"

#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QVBoxLayout>

namespace lexigrove
{

FormDialog::FormDialog(Host& gameHost, const char* objectName, std::string_view caption)
    : QDialog(gameHost.dialogParent()), host(gameHost)
{
    setObjectName(objectName);
    setWindowTitle(toQString(caption));
}

void resizeOnScreen(QWidget& window, int width, int height)
{
    const QSize frame(2 * Theme::grid, 5 * Theme::grid); // what a window manager adds
    window.resize(
        QSize(Theme::scaled(width), Theme::scaled(height)).boundedTo(window.screen()->availableSize() - frame));
}

QVBoxLayout* FormDialog::newColumn()
{
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(Theme::margin, Theme::margin, Theme::margin, Theme::margin);
    column->setSpacing(Theme::gap);
    return column;
}

ScrollPart::ScrollPart(QWidget* content)
{
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setWidget(content);
    content->installEventFilter(this);
    content->setMinimumHeight(content->sizeHint().height());
    for (QWidget* const background : {static_cast<QWidget*>(this), viewport(), content})
        background->setAutoFillBackground(false);
}

QSize ScrollPart::sizeHint() const
{
    return widget()->sizeHint();
}

QSize ScrollPart::minimumSizeHint() const
{
    const int width = widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width();
    return {std::min(width, 100 * Theme::grid), Theme::scaled(14 * Theme::grid)};
}

/// The content may have grown.
bool ScrollPart::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::LayoutRequest) {
        widget()->setMinimumHeight(widget()->sizeHint().height()); // it scrolls rather than shrinks
        updateGeometry();
    }
    return QScrollArea::eventFilter(watched, event);
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
