#pragma once

#include "flow/windows.hpp"
#include "ui/machine/host.hpp"

#include <memory>

namespace lexigrove
{

/// The windows that the rules open, over the main window. `host` outlives them.
class GameWindows
{
public:
    explicit GameWindows(Host& host);
    ~GameWindows();
    GameWindows(const GameWindows&) = delete;
    GameWindows& operator=(const GameWindows&) = delete;

    /// For the flow; valid as long as this object.
    [[nodiscard]] Windows windows();

private:
    struct Members;
    std::unique_ptr<Members> members_;
};

} // namespace lexigrove
