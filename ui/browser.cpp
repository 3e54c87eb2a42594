#include "ui/browser.hpp"

#include <QCoreApplication>
#include <QFileInfo>
#include <QPluginLoader>

#include <utility>

namespace lexigrove
{

BrowserLoader::BrowserLoader(QStringList folders) : folders_(std::move(folders)) {}

QStringList BrowserLoader::moduleFolders()
{
    const QString here = QCoreApplication::applicationDirPath();
    return {here, here + "/" LEXIGROVE_MODULE_FROM_EXECUTABLE, LEXIGROVE_MODULE_FOLDER};
}

BrowserModule* BrowserLoader::module()
{
    if (module_ != nullptr)
        return module_;
    failure_ = "The module lexigrove-browser is not installed.";
    for (const QString& folder : folders_) {
        const QString file = folder + "/lexigrove-browser.so";
        if (!QFileInfo::exists(file))
            continue;
        QPluginLoader loader(file);
        module_ = qobject_cast<BrowserModule*>(loader.instance());
        if (module_ != nullptr)
            return module_;
        failure_ = loader.errorString();
    }
    return nullptr;
}

} // namespace lexigrove
