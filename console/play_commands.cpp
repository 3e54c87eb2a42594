#include "console/command.hpp"
#include "game/board.hpp"
#include "game/game_state.hpp"
#include "game/selection.hpp"
#include "platform/ascii.hpp"
#include "settings/sound_cues.hpp"

#include <algorithm>

namespace lexigrove
{

namespace
{

constexpr int maxTicks = 1'000'000;

MouseButton buttonArgument(Arguments& arguments)
{
    return arguments.choice("button", {"left", "right"}) == 0 ? MouseButton::Left : MouseButton::Right;
}

int ticksArgument(Arguments& arguments)
{
    const auto typed = arguments.next();
    return typed ? numberIn("ticks", *typed, 1, maxTicks) : 1;
}

struct Click {
    int tile = 0;
    MouseButton button = MouseButton::Left;
    bool shift = false;
};

Click clickArguments(Arguments& arguments)
{
    Click click;
    click.tile = tileArgument(arguments);
    auto word = arguments.next();
    if (word == "left" || word == "right") {
        click.button = word == "left" ? MouseButton::Left : MouseButton::Right;
        word = arguments.next();
    }
    click.shift = word == "shift";
    if (word && !click.shift)
        throw CommandError("unexpected argument: " + *word);
    return click;
}

Lines wordSoFar(const GameFlow& flow)
{
    if (flow.view().selection.isEmpty())
        return {};
    return {flow.view().selection.wordTried() + " " + flow.view().state.currScoreText()};
}

Lines clickTile(CommandContext& context, const Click& click)
{
    GameFlow& flow = context.flow;
    if (!flow.view().board.isVisible(click.tile))
        throw CommandError("tile " + std::to_string(click.tile) + " is not on the board");
    flow.clickTile(click.tile, click.button, click.shift);
    return wordSoFar(flow);
}

/// Letters in any case.
std::string wordArgument(Arguments& arguments)
{
    std::string word = ascii::upperCase(arguments.required("word"));
    if (!std::all_of(word.begin(), word.end(), ascii::isUpper))
        throw CommandError("word must be letters A to Z: " + word);
    return word;
}

Lines typeWord(CommandContext& context, const std::string& word)
{
    context.flow.typeWord(word);
    return wordSoFar(context.flow);
}

void drop(CommandContext& context, int col)
{
    const bool waits = context.flow.view().board.waiting(col).Visible();
    context.flow.drop(col); // even over an empty place, which a letter swap refuses with a sound
    if (!waits)
        throw CommandError("no letter waits over column " + std::to_string(col));
}

/// The ticks of a timer, until the program ends.
template <Timer timer>
void ticks(CommandContext& context, int count)
{
    for (int i = 0; i < count && !context.flow.ended(); ++i)
        context.flow.tick(timer);
}

const char* pause(CommandContext& context)
{
    context.flow.perform(Command::Pause);
    return context.flow.isPaused() ? "paused" : "playing";
}

void showMeaning(CommandContext& context, const std::string& typed)
{
    const int rows = context.flow.view().state.WordsMade.Rows();
    if (rows == 1)
        throw CommandError("no word has been made: " + typed);
    context.flow.pickWord(numberIn("row", typed, 1, rows - 1));
    context.flow.perform(Command::ShowMeaning);
}

const char* pressSoundButton(CommandContext& context)
{
    context.flow.perform(Command::Sound);
    return context.flow.view().sounds.caption();
}

} // namespace

std::vector<ConsoleCommand> playCommands()
{
    const auto row = [](Arguments& arguments) { return arguments.required("row"); };
    return {
        command("click", When::InPlay, clickArguments, clickTile),
        command("enter", Command::EnterWord),
        command("type", When::InPlay, wordArgument, typeWord),
        command("drop", When::InPlay, columnArgument, drop),
        command("red_tick", When::InGame, ticksArgument, ticks<Timer::Red>),
        command("push_tick", When::InGame, [](CommandContext& context) { context.flow.tick(Timer::Push); }),
        command("clock_tick", When::Always, ticksArgument, ticks<Timer::Clock>),
        command("clock_click", When::Always, buttonArgument,
                [](CommandContext& context, MouseButton button) { context.flow.releaseClockFrame(button); }),
        command("keep", Command::KeepForLater),
        command("continue", When::Always, [](CommandContext& context) { context.flow.continueGame(); }),
        command("pause", GameFlow::timeOf(Command::Pause), pause),
        command("hint", Command::GetHint),
        command("check", Command::CheckWord),
        command("meaning", GameFlow::timeOf(Command::ShowMeaning), row, showMeaning),
        command("sound", GameFlow::timeOf(Command::Sound), pressSoundButton),
    };
}

} // namespace lexigrove
