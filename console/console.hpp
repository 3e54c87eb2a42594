#pragma once

#include "console/command.hpp"
#include "console/console_ports.hpp"
#include "console/console_windows.hpp"
#include "console/line_channel.hpp"
#include "flow/game_flow.hpp"
#include "platform/system_clock.hpp"

#include <istream>
#include <memory>
#include <optional>
#include <ostream>
#include <string>

namespace lexigrove
{

/// The whole game behind a line protocol: reads commands, plays them through the flow, and writes the events that they
/// cause and their answers. docs/console.md describes the protocol.
class Console
{
public:
    /// `folder` is the program folder with its trailing separator. A time of day (seconds since midnight) freezes the
    /// clock, and the random generator then starts from a fixed state: the same input gives the same output.
    Console(const std::string& folder, std::optional<double> timeOfDay, std::istream& in, std::ostream& out);

    /// Starts the game and carries out commands until one of them ends it or the input ends, which leaves the game as
    /// closing its window would.
    /// With a position it begins a game with that board.
    void run(const std::optional<BoardPosition>& position = {});

private:
    void carryOut(const std::string& line);
    Lines answer(const std::string& name, Arguments& arguments);
    void writeExit();

    LineChannel channel_;
    std::unique_ptr<const Clock> clock_;
    Random random_;
    ConsoleDialogs dialogs_{channel_};
    ConsoleScreen screen_;
    ConsoleSound sound_;
    ConsoleStatus status_{channel_};
    ConsoleWindows windows_{channel_};
    GameFlow flow_;
    const CommandTable commands_;
    CommandContext context_{flow_, Study(flow_), status_, commands_};
};

} // namespace lexigrove
