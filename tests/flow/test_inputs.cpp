#include "tests/support/random_play.hpp"

#include <sstream>

namespace lexigrove
{
namespace
{

enum Effect : unsigned { endsSwap = 1, holdsPressure = 2 }; ///< beside an input's own business

struct Input {
    const char* name;
    When when;
    unsigned effects;
    std::function<void(GameFlow&)> run;
};

Input performing(const char* name, Command command, When when, unsigned effects)
{
    return {name, when, effects, [=](GameFlow& flow) { flow.perform(command); }};
}

std::vector<Input> inputs()
{
    constexpr unsigned window = endsSwap | holdsPressure;
    return {
        performing("New Game", Command::NewGame, When::NotPaused, endsSwap),
        performing("Pause", Command::Pause, When::InGame, endsSwap),
        performing("Sound", Command::Sound, When::Always, endsSwap),
        performing("Exit", Command::Exit, When::Always, 0),
        performing("Enter Word", Command::EnterWord, When::InPlay, endsSwap),
        performing("Esc", Command::ClearWord, When::InPlay, endsSwap),
        performing("Backspace", Command::TakeBack, When::InPlay, 0),
        performing("Get Hint", Command::GetHint, When::InPlay, endsSwap),
        performing("Check Word", Command::CheckWord, When::InPlay, endsSwap),
        performing("Meaning", Command::ShowMeaning, When::InPlay, window),
        performing("Add Word", Command::AddWord, When::InPlay, window),
        performing("Top Ten", Command::TopTen, When::InPlay, window),
        performing("Statistics", Command::Statistics, When::InPlay, window),
        performing("Help", Command::Help, When::Always, window),
        performing("About", Command::About, When::Always, window),
        performing("F1", Command::AskPassword, When::Always, endsSwap),
        performing("Export", Command::ExportWords, When::InPlay, endsSwap),
        {"click", When::InPlay, endsSwap, [](auto& flow) { flow.clickTile(4, MouseButton::Left, false); }},
        {"hover", When::InPlay, 0, [](auto& flow) { flow.hoverTile(4); }},
        {"drop", When::InPlay, endsSwap, [](auto& flow) { flow.drop(1); }},
        {"letter", When::InPlay, endsSwap, [](auto& flow) { flow.typeLetter('E'); }},
        {"word", When::InPlay, endsSwap, [](auto& flow) { flow.typeWord("E"); }},
        {"row", When::InPlay, 0, [](auto& flow) { flow.pickWord(0); }},
        {"heading", When::InPlay, endsSwap, [](auto& flow) { flow.sortWordsMade(500); }},
        {"frame", When::Always, endsSwap, [](auto& flow) { flow.releaseClockFrame(MouseButton::Left); }},
        {"red tick", When::InPlay, 0, [](auto& flow) { flow.tick(Timer::Red); }},
        {"push tick", When::InPlay, endsSwap, [](auto& flow) { flow.tick(Timer::Push); }},
    };
}

/// Column 1 has room above CAT, which is in the path; a word has been made, and a tile may sink.
struct Position : PlayedGame {
    explicit Position(bool withPath)
    {
        start(Arrangement::Square, presetOf("CATEECATEEEEEEEEEEEEEEEE"));
        click({1, 2, 3});
        flow.perform(Command::EnterWord);
        flow.pickWord(1);
        study.set(&GameState::yourScore, 15); // the price of a hint; more than a swap's
        study.editTile(64, "E", multiplier::doubled);
        if (withPath)
            click({6, 7, 8});
        dialogs.answers = {"no"};
    }
};

/// Everything that an input might change.
std::string everything(const PlayedGame& played)
{
    const GameView& view = played.flow.view();
    std::ostringstream text;
    text << Letters(played).text() << played.path.wordTried() << played.status.Label1 << view.sounds.caption()
         << view.letterSwap.tile() << ' ' << view.clock.revision() << ' ' << played.state.yourScore << ' '
         << played.state.WordsMade.revision() << ' ' << played.state.WordsMade.Row() << ' ' << played.state.tickCount
         << ' ' << played.sounds.commands.size() << ' ' << played.windows.shown.size() << ' '
         << played.dialogs.questions.size() << ' ' << played.dialogs.messages.size() << played.flow.isPaused();
    return text.str();
}

bool acts(PlayedGame& played, const Input& input)
{
    const std::string before = everything(played);
    input.run(played.flow);
    return everything(played) != before;
}

/// Guards against inputs that act before the game, in a pause, while another one runs, or when all is over, and
/// against those that do nothing in their time.
TEST(Inputs, ActInTheirTimeOnly)
{
    for (const Input& input : inputs()) {
        SCOPED_TRACE(input.name);
        PlayedGame before;
        const bool needsGame = input.when == When::InPlay || input.when == When::InGame;
        EXPECT_EQ(acts(before, input), !needsGame);

        Position playing(true);
        EXPECT_TRUE(acts(playing, input));

        Position paused(true);
        paused.flow.perform(Command::Pause);
        EXPECT_EQ(acts(paused, input), input.when == When::Always || input.when == When::InGame);

        Position busy(true);
        busy.dialogs.at["Do you wish to reset?"] = [&] { EXPECT_FALSE(acts(busy, input)); };
        busy.flow.perform(Command::NewGame);
        busy.dialogs.answers.clear(); // the next question is the end
        busy.flow.perform(Command::NewGame);
        ASSERT_TRUE(busy.flow.ended());
        EXPECT_FALSE(busy.flow.isBusy() || acts(busy, input));
    }
}

/// Guards against a letter swap that goes on behind another action, and windows that give the player no rest.
TEST(Inputs, EndASwapAndHoldThePressure)
{
    for (const Input& input : inputs()) {
        SCOPED_TRACE(input.name);
        Position swapping(false);
        swapping.study.set(&GameState::yourScore, 10); // just its price
        swapping.flow.clickTile(64, MouseButton::Left, true);
        ASSERT_EQ(swapping.flow.view().letterSwap.tile(), 64);
        input.run(swapping.flow);
        EXPECT_EQ(swapping.flow.view().letterSwap.isPending(), (input.effects & endsSwap) == 0);

        Position holding(true);
        input.run(holding.flow);
        EXPECT_EQ(holding.state.redTileHold, (input.effects & holdsPressure) != 0);
        holding.click({6, 7, 8});
        holding.flow.perform(Command::EnterWord);
        EXPECT_FALSE(holding.state.redTileHold && !holding.flow.ended());
    }
}

/// Guards somebody who is left to guess: why an input came to nothing, and what comes next.
TEST(Inputs, SayWhy)
{
    PlayedGame played;
    const std::string& told = played.status.News;
    played.start(Arrangement::Square, presetOf("CAT"));
    for (const auto& [word, why] : {std::pair{"C", "two letters at least"}, {"CAE", "not in dictionary"}}) {
        played.flow.typeWord(word);
        played.flow.perform(Command::EnterWord);
        EXPECT_EQ(played.screen.refusal, why);
        played.flow.perform(Command::ClearWord);
    }
    played.flow.drop(1);
    EXPECT_EQ(told, "Column 1 is full");
    for (const int tile : {8, 24, 64})
        played.study.editTile(tile, "E", multiplier::doubled);
    played.flow.warnOfPush();
    EXPECT_EQ(told, "Column 1, 3 or 8 will be pushed down");

    played.study.set(&GameState::yourScore, 10);
    played.click({4});
    for (const bool pending : {true, false}) {
        played.flow.perform(Command::SwapLetter);
        EXPECT_EQ(played.flow.view().letterSwap.isPending(), pending);
    }
    played.study.chooseOptions([](OptionsForm& form) { form.settings.pressure = Pressure::Relaxed; });
    played.start(Arrangement::Square);
    EXPECT_EQ(told, "A relaxed game: no red tiles, no pushes, no record");
}

} // namespace
} // namespace lexigrove
