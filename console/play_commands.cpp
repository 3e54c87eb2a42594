#include "console/command.hpp"

namespace lexigrove
{

namespace
{

constexpr int mostTicks = 1'000'000;

MouseButton buttonArgument(Arguments& arguments)
{
    return arguments.choice("button", {"left", "right"}) == 0 ? MouseButton::Left : MouseButton::Right;
}

int ticksArgument(Arguments& arguments)
{
    const auto typed = arguments.next();
    return typed ? numberIn("ticks", *typed, 1, mostTicks) : 1;
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

Lines clickTile(CommandContext& context, const Click& click)
{
    GameFlow& flow = context.flow;
    if (!flow.game.board.isVisible(click.tile))
        throw CommandError("tile " + std::to_string(click.tile) + " is not on the board");
    flow.clickTile(click.tile, click.button, click.shift);
    const GameState& state = flow.game.state;
    if (flow.game.selection.length() == 0)
        return {};
    return {state.WordTried.Caption + " " + state.CurrScore.Caption};
}

Lines enterWord(CommandContext& context)
{
    context.flow.enterWord();
    return {};
}

Lines drop(CommandContext& context, int col)
{
    const bool waits = context.flow.game.board.TopDrop[static_cast<std::size_t>(col)].Visible();
    context.flow.drop(col); // also over an empty place: a letter swap refuses it with a sound
    if (!waits)
        throw CommandError("no letter waits over column " + std::to_string(col));
    return {};
}

/// The ticks of a timer; those that are left when the program ends are not told.
template <void (GameFlow::*tick)()>
Lines ticks(CommandContext& context, int count)
{
    for (int i = 0; i < count && !context.flow.ended(); ++i)
        (context.flow.*tick)();
    return {};
}

Lines pushTick(CommandContext& context)
{
    context.flow.pushTimerTick();
    return {};
}

Lines clickClock(CommandContext& context, MouseButton button)
{
    context.flow.releaseClockFrame(button);
    return {};
}

Lines pause(CommandContext& context)
{
    context.flow.pause();
    return {context.flow.isPaused() ? "paused" : "playing"};
}

Lines getHint(CommandContext& context)
{
    context.flow.getHint();
    return {};
}

Lines checkSpelling(CommandContext& context)
{
    context.flow.checkSpelling();
    return {};
}

std::string rowArgument(Arguments& arguments)
{
    return arguments.required("row");
}

Lines showMeaning(CommandContext& context, const std::string& typed)
{
    WordsGrid& WordsMade = context.flow.game.state.WordsMade;
    if (WordsMade.Rows() == 1)
        throw CommandError("no word has been made: " + typed);
    WordsMade.setCurrent(numberIn("row", typed, 1, WordsMade.Rows() - 1));
    context.flow.showMeaning();
    return {};
}

Lines pressSoundButton(CommandContext& context)
{
    context.flow.soundButton();
    return {context.flow.sounds.SoundOnOff.Caption};
}

} // namespace

std::vector<Command> playCommands()
{
    return {
        command("click", Needs::Play, clickArguments, clickTile),
        command("enter", Needs::Play, enterWord),
        command("drop", Needs::Play, columnArgument, drop),
        command("red_tick", Needs::Game, ticksArgument, ticks<&GameFlow::redTimerTick>),
        command("push_tick", Needs::Game, pushTick),
        command("clock_tick", Needs::Nothing, ticksArgument, ticks<&GameFlow::clockTimerTick>),
        command("clock_click", Needs::Nothing, buttonArgument, clickClock),
        command("pause", Needs::Game, pause),
        command("hint", Needs::Play, getHint),
        command("check", Needs::Play, checkSpelling),
        command("meaning", Needs::Play, rowArgument, showMeaning),
        command("sound", Needs::Nothing, pressSoundButton),
    };
}

} // namespace lexigrove
