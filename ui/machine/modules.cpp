#include "ui/machine/modules.hpp"

#include <QCoreApplication>
#include <QFileInfo>
#include <QPluginLoader>

namespace lexigrove
{

QStringList moduleFolders()
{
    const QString here = QCoreApplication::applicationDirPath();
    return {here, here + "/" LEXIGROVE_MODULE_FROM_EXECUTABLE, LEXIGROVE_MODULE_FOLDER};
}

QObject* loadModule(const QString& name, const QStringList& folders, QString& failure)
{
    failure = QString("The module %1 is not installed.").arg(name);
    for (const QString& folder : folders) {
        const QString file = folder + '/' + name + ".so";
        if (!QFileInfo::exists(file))
            continue;
        QPluginLoader loader(file);
        if (QObject* const module = loader.instance())
            return module;
        failure = loader.errorString();
    }
    return nullptr;
}

} // namespace lexigrove
