#include "ui/machine/host.hpp"

#include <QDialog>

namespace lexigrove
{

QWidget* Host::dialogParent() const
{
    if (QDialog* const onTop = gate.onTop())
        return onTop;
    if (mainWindow != nullptr)
        mainWindow->show();
    return mainWindow;
}

} // namespace lexigrove
