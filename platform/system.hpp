#pragma once

#include <ctime>
#include <string>

namespace lexigrove
{

/// What the game asks of the system beyond the standard library and files.

/// The user's home folder; empty if there is none.
std::string homeFolder();

/// The running program's own file; empty if the system does not tell.
std::string ownExecutable();

/// A new empty folder among the system's temporary ones; empty if none can be made.
std::string newTemporaryFolder();

std::tm localTime(std::time_t moment);

} // namespace lexigrove
