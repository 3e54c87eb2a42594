#pragma once

#include <string>

namespace lexigrove
{

/// Before the first game in a new folder the configuration that came with it follows the desktop: a dark one gets the
/// dark scheme, and one that shows no animations gets none. Does nothing to any other configuration. Requires a
/// QApplication.
void prepareFirstStart(const std::string& folder);

} // namespace lexigrove
