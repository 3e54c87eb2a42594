#include "ui/machine/host.hpp"

#include <QApplication>
#include <QWidget>

namespace lexigrove
{

QWidget* Host::dialogParent() const
{
    if (QWidget* const onTop = QApplication::activeModalWidget())
        return onTop;
    QWidget* const window = mainWindow();
    if (window != nullptr)
        window->show();
    return window;
}

} // namespace lexigrove
