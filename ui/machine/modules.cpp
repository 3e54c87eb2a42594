#include "ui/machine/modules.hpp"

#include <QCoreApplication>
#include <QDir>

namespace lexigrove
{

QStringList moduleFolders()
{
    const QString here = QCoreApplication::applicationDirPath();
    return {here, here + "/" LEXIGROVE_MODULE_FROM_EXECUTABLE, LEXIGROVE_MODULE_FOLDER};
}

} // namespace lexigrove
