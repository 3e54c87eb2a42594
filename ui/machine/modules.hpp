#pragma once

#include <QStringList>

namespace lexigrove
{

/// The folders in which the program's modules are looked for, in order: beside the executable, and where they are
/// installed.
QStringList moduleFolders();

} // namespace lexigrove
