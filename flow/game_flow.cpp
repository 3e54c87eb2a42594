#include "flow/game_flow.hpp"

#include "dictionary/list_correction.hpp"
#include "flow/game_parts.hpp"
#include "platform/leaving.hpp"
#include "record/review_texts.hpp"
#include "settings/window_colours.hpp"

#include <algorithm>
#include <exception>
#include <filesystem>

namespace lexigrove
{

namespace
{

GameView viewOf(const GameParts& p)
{
    return {p.game.state, p.game.board, p.game.selection, p.game.supply, p.game.dropRow, p.game.letterSwap,
            p.hintsForm,  p.options,    p.dictionary,     p.scheme,      p.sounds,       p.Dc1};
}

void setUpClock(Dc& Dc1)
{
    Dc1.ClockColor("BLUE");
    Dc1.DigitWidth(3);
    Dc1.ClockIncrement(-1);
}

/// Shows the top-ten window if the score enters the list. Returns its answer, or Close if it was not shown.
ScoreForm::Answer offerScore(GameParts& parts)
{
    const int score = parts.game.state.yourScore;
    if (score <= parts.scoreFile.lowest())
        return ScoreForm::Answer::Close;
    return showTopTen(parts.scoreForm, parts.ports.windows, score);
}

std::vector<std::string> memorableTexts(const GameRecord& game, LevelLists& lists)
{
    try {
        return memorableTexts(Review(game, lists), ReviewList::Own);
    } catch (const std::exception&) {
        return {}; // a list that cannot be read, or a board with too many words
    }
}

void showWinner(const GameState& state, StatusLine& status)
{
    const int lead = state.yourScore - state.compScore;
    if (lead > 0)
        status.show("You won by " + std::to_string(lead) + (lead == 1 ? " point" : " points"));
    else if (lead < 0)
        status.show("The computer won by " + std::to_string(-lead) + (lead == -1 ? " point" : " points"));
    else
        status.show("A draw: you and the computer have the same score");
}

} // namespace

GameFlow::GameFlow(const Ports& ports, const std::string& folder, const SystemPalette& desktop)
    : parts_(std::make_unique<GameParts>(ports, folder)), view_(viewOf(*parts_))
{
    parts_->scheme.palette = desktop;
}

GameFlow::~GameFlow() = default;

bool GameFlow::isTime(When when) const
{
    switch (when) {
    case When::Always:
        return true;
    case When::NotPaused:
        return !paused_;
    case When::InGame:
        return inGame_;
    case When::InPlay:
        return inGame_ && !paused_;
    }
    return false;
}

/// False when the input is refused. What was said of the one before is over.
bool GameFlow::beginInput(When when)
{
    if (busy_ || ended_)
        return false;
    StatusLine& status = parts_->ports.status;
    if (!isTime(when)) {
        if (paused_ && !ticking_) {
            status.tell("The game is paused");
            parts_->ports.screen.inputEnded();
        }
        return false;
    }
    busy_ = true;
    if (!ticking_)
        status.actionBegins();
    return true;
}

/// An input has thrown. If the player closed the window, the leaving sequence follows; an unforeseen failure ends only
/// the input that met it.
void GameFlow::endEarly()
{
    try {
        try {
            throw;
        } catch (const std::exception& failure) {
            parts_->ports.dialogs.message(failure.what());
        } catch (const Leaving&) {
            leave();
        }
    } catch (const Leaving&) { // the message was closed with the window
        endEarly();
    } catch (const ProgramEnd&) {
        ended_ = true;
    } catch (const std::exception&) { // not even leaving goes through: there is nothing more to try
        ended_ = true;
    }
}

/// A solo game without letters to come and without a word on the board would go on for ever.
void GameFlow::offerEndIfNoWordIsLeft()
{
    GameParts& p = *parts_;
    const Board& board = p.game.board;
    const bool letterWaits = std::ranges::any_of(board.TopDrop, [](const BoxControl& w) { return w.Visible(); });
    if (!inGame_ || ended_ || noWordLeft_ || letterWaits || p.game.state.computerGame)
        return;
    try {
        noWordLeft_ =
            p.search.sweep(snapshotOf(board), p.dictionary.words, [&p] { p.ports.screen.yield(); }).count() == 0;
    } catch (const std::exception&) {
        return; // a board with too many words to count
    }
    if (!noWordLeft_)
        return;
    p.ports.status.tell("No more words: New Game or Exit");
    if (p.ports.dialogs.offer("There is no word left on the board, and no letter is left to come.\r\n\r\n"
                              "End the game?"))
        endOfGame(GameEnd::NoWordLeft, "No more words");
}

void GameFlow::endInput()
{
    busy_ = false;
    parts_->ports.screen.inputEnded();
}

// ---- The program's course

void GameFlow::startUp(std::optional<Arrangement> arrangement)
{
    input(When::Always, [&](GameParts& p) {
        setUpClock(p.Dc1);
        const WindowColours before = deriveWindowColours(p.scheme);
        p.configuration.load(before.background, before.card);
        p.options.applyDictionaryChoice();
        p.options.loadSchemes();
        if (p.Dc1.ClockColor() == "DEFAULT") { // its colours are from before the scheme was loaded
            const WindowColours colours = deriveWindowColours(p.scheme);
            p.Dc1.ClockBackground(colours.background);
            p.Dc1.DigitHighlight(colours.card);
        }
        p.game.refreshLooks();
        showWallClock(); // a theme leaves the digits dark until the next tick
        if (arrangement)
            p.options.select(*arrangement == Arrangement::Square ? p.options.s8x8 : p.options.s7x8);
    });
}

void GameFlow::openOptionsAndStart()
{
    input(When::Always, [this](GameParts& /*parts*/) {
        showOptions();
        beginGame();
    });
}

void GameFlow::startGame()
{
    input(When::Always, [this](GameParts& p) {
        if (!p.options.settings.presetLetters.areWaiting()) // a game was dealt from them, or its score is not recorded
            p.options.settings.presetLetters.clear();
        clearGame();
        beginGame();
    });
}

void GameFlow::showOptions()
{
    inGame_ = false;
    showWallClock();
    OptionsForm& options = parts_->options;
    do {
        options.open(lastRecord_.empty() ? OptionsForm::LookBack::Hidden : OptionsForm::LookBack::Offered);
        parts_->ports.windows.show(options);
        if (options.answer() == OptionsForm::Answer::Exit)
            leave();
        if (options.answer() == OptionsForm::Answer::LookBack)
            lookBack();
    } while (options.answer() != OptionsForm::Answer::Start);
    parts_->configuration.saveQuietly();
}

void GameFlow::clearGame()
{
    forgetSavedGame();
    resume();
    parts_->game.letterSwap.cancel();
    parts_->game.selection.clear();
    parts_->game.board.clear();
    parts_->game.supply.RandomLetters.clear();
    parts_->game.state.resetForNewGame();
}

void GameFlow::beginGame()
{
    GameParts& p = *parts_;
    p.options.takeChoices(); // applies the dictionary choice again, to reset the red threshold from its table
    p.services.choose(p.options);
    p.game.state.resetForNewGame();
    p.game.state.computerGame = p.options.isComputerGame();
    p.game.state.kind = kindOfNextGame();
    readDictionary();
    offerCorrectedList();
    p.game.board.layOut(p.options.isSquare() ? Arrangement::Square : Arrangement::Staggered);
    p.game.supply.dealLetters();
    p.game.refreshLooks();
    if (p.game.state.computerGame || p.game.state.kind == GameKind::Relaxed)
        p.options.settings.presetLetters.markUnrecorded();
    if (p.game.state.kind == GameKind::Relaxed)
        p.ports.status.tell("A relaxed game: no red tiles, no pushes, no record");
    gameBegun();
}

GameKind GameFlow::kindOfNextGame() const
{
    const OptionsForm& options = parts_->options;
    if (options.settings.presetLetters.areWaiting())
        return GameKind::Preset;
    const bool relaxed = options.settings.pressure == Pressure::Relaxed && !options.isComputerGame();
    return relaxed ? GameKind::Relaxed : GameKind::Normal;
}

/// Reads the words of a game. A level in the maintained format has none that can be played: it can be made a plain list
/// again there and then.
void GameFlow::readDictionary()
{
    GameParts& p = *parts_;
    const auto read = [&] {
        p.maintenance.reset();
        p.dictionary.read(p.ports.dialogs, p.ports.status, p.ports.random, p.ports.clock);
    };
    read();
    if (!p.dictionary.holdsCodedLines())
        return;
    const std::string level = "Level " + std::to_string(p.dictionary.loadedLevel());
    if (p.ports.dialogs.offer(level + " is in the compact form of Dictionary Maintenance: none of its words can be "
                                      "played.\r\n\r\nMake it a plain word list again, and play?") &&
        p.maintenance.restorePlainList()) {
        read();
        p.ports.status.show(level + " is a plain word list again");
    }
}

/// Words in a list of the player's own that cannot be played are easily overlooked. A corrected copy is offered once;
/// later games with the same list only tell.
void GameFlow::offerCorrectedList()
{
    GameParts& p = *parts_;
    if (p.dictionary.loadedLevel() != 0)
        return;
    const std::string name = p.dictionary.fileTable[0];
    const std::string fault = firstFault(p.dictionary.words, name);
    if (fault.empty())
        return;
    const std::string copy = correctedName(name);
    if (uncorrectedList_ != name &&
        p.ports.dialogs.offer(fault + "\r\n\r\nPlay with a corrected copy? It is written beside the list, as " +
                              std::filesystem::path(copy).filename().string() + ".")) {
        try {
            writeCorrected(p.dictionary.path(0), (p.folder / std::filesystem::path(copy)).string());
            p.options.UsrDictName.Text = p.options.UsrDictName.ToolTipText = copy;
            p.dictionary.applyChoice(0, copy);
            readDictionary();
            return;
        } catch (const std::exception& failure) {
            p.ports.dialogs.message(failure.what());
        }
    }
    uncorrectedList_ = name;
    p.ports.status.tell(fault);
}

/// Counts down in a game against the computer; in a solo game it goes on showing the time of day.
void GameFlow::startClock(int seconds)
{
    if (!parts_->game.state.computerGame) {
        showWallClock();
        return;
    }
    parts_->Dc1.ShowTimeOnly(false);
    parts_->Dc1.ClockStartValue(static_cast<std::int16_t>(seconds));
    parts_->Dc1.StartCountdown();
}

/// Shows the time of day at once, as the clock does between games and in a solo game.
void GameFlow::showWallClock()
{
    Dc& Dc1 = parts_->Dc1;
    if (!Dc1.ShowTimeOnly()) {
        Dc1.ShowTimeOnly(true);
        Dc1.ClockStartValue(0); // lights the dots, which a countdown dims at every odd second
    }
    Dc1.ResumeCountDown();
    (void)Dc1.tick(parts_->ports.clock.secondsSinceMidnight());
}

void GameFlow::newGame()
{
    if (giveUpGame())
        anotherGame();
}

/// The questions before a game makes room for another one. False when it goes on; else it is cleared.
bool GameFlow::giveUpGame()
{
    GameParts& p = *parts_;
    p.sounds.play(cue::menu);
    if (p.game.state.wordsMade > 0) {
        if (!p.ports.dialogs.confirm("Do you wish to reset?"))
            return false;
        recordGame(GameEnd::NewGame);
        PresetLetters& preset = p.options.settings.presetLetters;
        if (preset.isNormalGame()) {
            preset.markUnrecorded(); // offered once: leaving does not record the score a second time
            if (offerScore(p) == ScoreForm::Answer::ExitProgram)
                leave();
        }
    }
    p.options.settings.presetLetters.clear();
    clearGame();
    return true;
}

/// Clears the board and all counts of the game, lets the player choose options, and starts a game.
void GameFlow::anotherGame()
{
    parts_->options.settings.presetLetters.clear();
    clearGame();
    showOptions();
    beginGame();
}

void GameFlow::loseGame(int col)
{
    parts_->game.redTiles.pushOutRedTile(col);
    parts_->ports.status.show("A red tile was pushed out. Game over.");
    parts_->ports.screen.yield();
    endOfGame(GameEnd::Lost, "A red tile was pushed out");
}

void GameFlow::endOfGame(GameEnd end, const std::string& reason)
{
    GameParts& p = *parts_;
    const std::optional<GameRecord> over = recordGame(end);
    forgetSavedGame();
    p.ports.screen.showEnd(
        {reason, p.game.state.yourScore, over ? memorableTexts(*over, p.levelLists) : std::vector<std::string>()});
    p.sounds.play(cue::menu);
    PresetLetters& preset = p.options.settings.presetLetters;
    if (preset.isNormalGame()) {
        p.game.state.statistics.setHintsUsed(p.game.state.hintsUsed);
        preset.markUnrecorded(); // offered once: leaving does not record the score a second time
        const ScoreForm::Answer answer = offerScore(p);
        if (answer == ScoreForm::Answer::ExitProgram)
            leave();
        if (answer != ScoreForm::Answer::NewGame) {
            if (!wantsAnotherGame(over.has_value()))
                leave();
            showTopTen(p.scoreForm, p.ports.windows, {});
        }
    } else if (!wantsAnotherGame(over.has_value())) {
        leave();
    }
    p.game.state.redTileHold = true;
    anotherGame();
}

bool GameFlow::wantsAnotherGame(bool canLookBack)
{
    const std::string question = "Another game?";
    if (!canLookBack)
        return parts_->ports.dialogs.confirm(question);
    for (;;) {
        if (const std::optional<bool> answer = parts_->ports.dialogs.confirmOrLookBack(question))
            return *answer;
        lookBack();
    }
}

void GameFlow::clockExpired()
{
    if (!inGame_ || !parts_->game.state.computerGame)
        return;
    parts_->Dc1.SuspendCountDown(); // reported once
    parts_->game.letterSwap.cancel();
    parts_->ports.dialogs.message("Game over\r\n5 minutes have elapsed");
    showWinner(parts_->game.state, parts_->ports.status);
    endOfGame(GameEnd::ClockExpired, std::string(parts_->ports.status.Label1));
}

/// Leaving continues whatever happens to its questions: one that is closed counts as declined.
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
        if (parts_->options.settings.presetLetters.isNormalGame())
            offerScore(*parts_);
    });
    recordGame(GameEnd::Left);
    forgetSavedGame();
    despiteLeaving([this] { parts_->configuration.save(); });
    parts_->sounds.play(cue::thanks);
    throw ProgramEnd();
}

} // namespace lexigrove
