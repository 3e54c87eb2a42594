#include "ui/host.hpp"

#include <QApplication>

namespace lexigrove
{

QWidget* Host::dialogParent() const
{
    QWidget* const onTop = QApplication::activeModalWidget();
    return onTop != nullptr ? onTop : mainWindow();
}

} // namespace lexigrove
