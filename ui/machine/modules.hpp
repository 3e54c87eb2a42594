#pragma once

#include <QStringList>

class QObject;

namespace lexigrove
{

/// The folders in which the program's modules are looked for, in order: beside the executable, and where they are
/// installed.
QStringList moduleFolders();

/// The module of this name in the first of the folders where it can be loaded; null if it is in none, and then
/// `failure` says why.
QObject* loadModule(const QString& name, const QStringList& folders, QString& failure);

} // namespace lexigrove
