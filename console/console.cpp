#include "console/console.hpp"

#include "controls/colour.hpp"
#include "platform/ascii.hpp"
#include "platform/ports.hpp"

#include <algorithm>
#include <cstdint>
#include <random>

namespace lexigrove
{

namespace
{

std::unique_ptr<const Clock> makeClock(std::optional<double> timeOfDay)
{
    if (timeOfDay)
        return std::make_unique<FrozenClock>(*timeOfDay);
    return std::make_unique<SystemClock>();
}

std::uint64_t machineSeed()
{
    std::random_device device;
    return (std::uint64_t{device()} << 32) | device();
}

/// Removes the leading number from a line and returns it; an empty string if there is none.
std::string_view takeId(std::string_view& line)
{
    const std::size_t end = std::min(line.find(' '), line.size());
    const std::string_view id = line.substr(0, end);
    if (!ascii::isNumber(id))
        return {};
    line.remove_prefix(end);
    return id;
}

} // namespace

Console::Console(const std::string& folder, std::optional<double> timeOfDay, std::istream& in, std::ostream& out)
    : channel_(in, out),
      clock_(makeClock(timeOfDay)),
      random_(timeOfDay ? 0 : machineSeed()),
      sound_(channel_, folder),
      flow_({dialogs_, screen_, sound_, *clock_, random_, status_, windows_}, folder, SystemPalette())
{
}

void Console::run(const std::optional<BoardPosition>& position)
{
    flow_.startUp();
    if (position)
        flow_.playPosition(*position);
    while (!flow_.ended() && !context_.quitting) {
        if (const auto line = channel_.readLine()) {
            carryOut(*line);
        } else {
            flow_.perform(Command::Exit);
            writeExit();
        }
    }
}

void Console::carryOut(const std::string& line)
{
    const std::size_t start = line.find_first_not_of(' ');
    if (start == std::string::npos || line.starts_with('#'))
        return;
    std::string_view rest = std::string_view(line).substr(start);
    const std::string_view id = takeId(rest);
    Arguments arguments(rest);
    try {
        const Lines lines = answer(arguments.required("command"), arguments);
        writeExit();
        channel_.writeAnswer(id, lines);
    } catch (const CommandError& error) {
        channel_.writeFailure(id, error.what());
    }
}

Lines Console::answer(const std::string& name, Arguments& arguments)
{
    const ConsoleCommand* const command = commands_.find(name);
    if (command == nullptr)
        throw CommandError("unknown command: " + name);
    if (!flow_.isTime(command->when))
        throw CommandError(flow_.isPaused() ? "the game is paused" : "no game");
    return command->run(context_, arguments);
}

void Console::writeExit()
{
    if (flow_.ended())
        channel_.writeEvent("exit");
}

} // namespace lexigrove
