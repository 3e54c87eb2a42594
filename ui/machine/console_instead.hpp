#pragma once

#include "ui/start_options.hpp"

namespace lexigrove
{

/// While the QApplication is made: if there is no display that it could use, the program goes on as lexigrove-console,
/// with the options that it knows, instead of ending in the toolkit's abort. At most one at a time.
class ConsoleInstead
{
public:
    explicit ConsoleInstead(const StartOptions& options);
    /// The display is there: passes on what the toolkit has said meanwhile.
    ~ConsoleInstead();
    ConsoleInstead(const ConsoleInstead&) = delete;
    ConsoleInstead& operator=(const ConsoleInstead&) = delete;
};

} // namespace lexigrove
