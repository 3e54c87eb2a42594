#include "flow/game_flow.hpp"

#include "platform/leaving.hpp"
#include "settings/window_colours.hpp"

#include <exception>

namespace lexigrove
{

namespace
{

/// The flow is busy for the length of a scope.
class Busy
{
public:
    explicit Busy(bool& flag) : flag_(flag) { flag_ = true; }
    ~Busy() { flag_ = false; }
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;

private:
    bool& flag_;
};

} // namespace

GameFlow::GameFlow(const Ports& ports, const Windows& windows, const std::string& folder)
    : ports_(ports),
      windows_(windows),
      folder_(folder),
      dictionary(folder),
      scheme(folder, ports.dialogs),
      sounds(ports.sound, folder),
      options({ports.dialogs, ports.screen, dictionary, scheme, sounds, folder}),
      game(ports, dictionary, sounds, scheme, options),
      services(folder),
      scoreFile(folder, ports.dialogs),
      scoreForm(scoreFile, ports.dialogs),
      maintenance(dictionary, ports.dialogs, ports.screen, ports.clock),
      meanings(game.state, ports.status, sounds, services, windows.meaning),
      hints(game, search, wordRound, hintsForm, windows.hints),
      configuration({ports.dialogs, ports.clock, options, Dc1, scheme, dictionary, folder})
{
}

/// One input from its beginning to its end. Whoever closes the window on the way unwinds the input to here, and the
/// leaving sequence follows.
void GameFlow::asInput(const Action& action)
{
    if (busy_ || ended_)
        return;
    const Busy busy(busy_);
    try {
        try {
            action();
        } catch (const Leaving&) {
            leave();
        }
    } catch (const ProgramEnd&) {
        ended_ = true;
    }
}

/// An input of the player's. A failure that no rule foresees ends the input that met it, and nothing else.
void GameFlow::perform(const Action& action)
{
    asInput([&] {
        try {
            action();
        } catch (const std::exception& failure) {
            ports_.dialogs.message(failure.what());
        }
    });
}

/// What the timers and the clicks of a letter swap do in a game: refused without one and while it is paused.
void GameFlow::performInGame(const Action& action)
{
    if (inGame_ && !paused_)
        perform(action);
}

/// Any other action of the player's: it cancels a letter swap.
void GameFlow::performOther(const Action& action)
{
    perform([&] {
        letterSwap.cancel();
        action();
    });
}

void GameFlow::performOtherInGame(const Action& action)
{
    if (inGame_ && !paused_)
        performOther(action);
}

// ---- The program's course

void GameFlow::startUp()
{
    perform([this] {
        setUpClock();
        const WindowColours before = deriveWindowColours(scheme);
        configuration.load(before.ground, before.card);
        options.applyDictionaryChoice();
        options.loadSchemes();
        if (Dc1.ClockColor() == "DEFAULT") { // the colours that the configuration gave it were those before the scheme
            const WindowColours colours = deriveWindowColours(scheme);
            Dc1.ClockBackground(colours.ground);
            Dc1.DigitHighlight(colours.card);
        }
        game.refreshLooks();
        showWallClock(); // a theme leaves the digits dark until the next tick
    });
}

void GameFlow::setUpClock()
{
    Dc1.ClockColor("BLUE");
    Dc1.DigitWidth(3);
    Dc1.ClockStartValue(0);
    Dc1.ClockIncrement(-1);
    Dc1.ShowTimeOnly(true);
    Dc1.StartCountdown();
}

void GameFlow::openOptionsAndStart()
{
    perform([this] {
        showOptions();
        beginGame();
    });
}

void GameFlow::startGame()
{
    perform([this] {
        if (options.settings.presetLetters == "x")
            options.settings.presetLetters.clear(); // the mark of the game before is nothing to deal
        clearGame();
        beginGame();
    });
}

void GameFlow::showOptions()
{
    inGame_ = false;
    showWallClock();
    options.open();
    windows_.options.show(options);
    if (options.answer() == OptionsForm::Answer::Exit)
        leave();
}

void GameFlow::clearGame()
{
    resume();
    letterSwap.cancel();
    game.selection.clear();
    game.board.clear();
    game.supply.RandomLetters.clear();
    game.state.resetForNewGame();
}

void GameFlow::beginGame()
{
    options.takeChoices(); // applies the dictionary choice again, so that the red threshold starts from its table
    services.choose(options);
    game.state.resetForNewGame();
    game.state.computerGame = options.isComputerGame();
    maintenance.reset();
    readDictionary();
    game.board.layOut(options.isSquare() ? Arrangement::Square : Arrangement::Staggered);
    game.supply.dealLetters();
    game.refreshLooks();
    if (game.state.computerGame)
        options.settings.presetLetters = "x";
    startClock();
    inGame_ = true;
}

/// Counts down in a game against the computer; in a solo game it goes on showing the time of day.
/// What the reading said of itself leaves the status line with it; a notice about the words stays.
void GameFlow::readDictionary()
{
    dictionary.read(ports_.dialogs, ports_.status, ports_.random, ports_.clock);
    if (ports_.status.Label1 == "Reading Dictionary...")
        ports_.status.write("");
}

void GameFlow::startClock()
{
    if (!game.state.computerGame) {
        showWallClock();
        return;
    }
    Dc1.ShowTimeOnly(false);
    Dc1.ClockStartValue(gameSeconds);
    Dc1.StartCountdown();
}

/// Between games and in a solo game the clock shows the time of day, at once.
void GameFlow::showWallClock()
{
    if (!Dc1.ShowTimeOnly()) {
        Dc1.ShowTimeOnly(true);
        Dc1.ClockStartValue(0); // lights the dots, which a countdown leaves dim at every odd second
    }
    Dc1.ResumeCountDown();
    (void)Dc1.tick(ports_.clock.secondsSinceMidnight());
}

void GameFlow::menuNewGame()
{
    if (paused_)
        return;
    perform([this] {
        letterSwap.cancel();
        sounds.play(cue::menu);
        if (game.state.wordsMade > 0) {
            if (!ports_.dialogs.confirm("Do you wish to reset?"))
                return;
            if (isNormalGame()) {
                options.settings.presetLetters = "x"; // offered once: leaving does not record the score a second time
                if (offerScore() == "NOMORE")
                    leave();
            }
        }
        anotherGame();
    });
}

/// The board and everything that is counted per game are cleared, the player chooses, and a game starts.
void GameFlow::anotherGame()
{
    options.settings.presetLetters.clear();
    clearGame();
    showOptions();
    beginGame();
}

/// Shows the top-ten window when the score enters the list. Its answer, empty otherwise.
std::string GameFlow::offerScore()
{
    const int score = numberOf(game.state.YourScore.Caption);
    if (score <= scoreFile.lowest())
        return {};
    return lexigrove::showTopTen(scoreForm, windows_.scores, std::to_string(score));
}

void GameFlow::loseGame(int col)
{
    game.redTiles.pushOutRedTile(col);
    ports_.status.show("A red tile was pushed out. Game over.");
    ports_.screen.yield();
    endOfGame();
}

void GameFlow::endOfGame()
{
    sounds.play(cue::menu);
    std::string& presetLetters = options.settings.presetLetters;
    if (isNormalGame()) {
        game.state.statistics.setHintsUsed(game.state.hintsUsed);
        presetLetters = "x"; // offered once: leaving does not record the score a second time
        const std::string answer = offerScore();
        if (answer == "NOMORE")
            leave();
        if (answer != "NOGAME") {
            if (!ports_.dialogs.confirm("Another game?"))
                leave();
            lexigrove::showTopTen(scoreForm, windows_.scores, ScoreForm::showOnly);
        }
    } else if (!ports_.dialogs.confirm("Another game?")) {
        leave();
    }
    game.state.redTileHold = true;
    anotherGame();
}

void GameFlow::clockExpired()
{
    if (!inGame_ || !game.state.computerGame)
        return;
    Dc1.SuspendCountDown(); // told once
    letterSwap.cancel();
    ports_.dialogs.message("Game over\r\n5 minutes have elapsed");
    tellWinner();
    endOfGame();
}

void GameFlow::tellWinner()
{
    const int lead = numberOf(game.state.YourScore.Caption) - numberOf(game.state.CompScore.Caption);
    if (lead > 0)
        ports_.status.show("You won by " + std::to_string(lead) + (lead == 1 ? " point" : " points"));
    else if (lead < 0)
        ports_.status.show("The computer won by " + std::to_string(-lead) + (lead == -1 ? " point" : " points"));
    else
        ports_.status.show("A draw: you and the computer have the same score");
}

void GameFlow::exit()
{
    perform([this] { leave(); });
}

/// Leaving goes on whatever happens to its questions: one that is closed counts as declined.
void GameFlow::leave()
{
    const auto despiteLeaving = [](auto step) {
        try {
            step();
        } catch (const Leaving&) {
            return;
        }
    };
    despiteLeaving([this] {
        if (isNormalGame())
            offerScore();
    });
    despiteLeaving([this] { configuration.save(); });
    sounds.play(cue::thanks);
    throw ProgramEnd();
}

} // namespace lexigrove
