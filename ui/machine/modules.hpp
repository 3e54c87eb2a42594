#pragma once

#include <QObject>
#include <QStringList>

namespace lexigrove
{

/// The folders in which the program's modules are looked for, in order: beside the executable, and where they are
/// installed.
QStringList moduleFolders();

/// Loads the first module of this name in the folders. Null if there is none or none can be loaded; `failure` then says
/// why.
QObject* loadModule(const QString& name, const QStringList& folders, QString& failure);

} // namespace lexigrove
