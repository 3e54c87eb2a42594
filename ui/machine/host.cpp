#include "ui/machine/host.hpp"

#include <QApplication>

namespace lexigrove
{

QWidget* Host::dialogParent() const
{
    if (QWidget* const onTop = QApplication::activeModalWidget())
        return onTop;
    if (mainWindow != nullptr)
        mainWindow->show();
    return mainWindow;
}

} // namespace lexigrove
