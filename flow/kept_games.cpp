#include "flow/game_flow.hpp"
#include "flow/game_parts.hpp"
#include "platform/leaving.hpp"
#include "record/continue_form.hpp"
#include "record/daily.hpp"

namespace lexigrove
{

namespace
{

/// The position without what time alone changes: such a change is not worth a file.
Position withoutTime(Position position)
{
    position.secondsLeft = 0;
    position.state.tickCount = 0;
    position.state.pressure = 0;
    position.state.secondsPlayed = 0;
    position.state.hoveredTile = 0;
    position.state.developerMode = false;
    return position;
}

std::string twoDigits(unsigned number)
{
    return (number < 10 ? "0" : "") + std::to_string(number);
}

/// The choices of a board that somebody shared or that is a day's: every tile in play has a plain letter.
void expectWholeBoard(const BoardPosition& board)
{
    if (board.level == 0)
        throw PositionError("level: this board was made for somebody's own dictionary");
    for (int tile = 1; tile <= Board::tileCount; ++tile) {
        const BoardPosition::Cell& cell = board.cells[static_cast<std::size_t>(tile)];
        const bool inPlay = Board::row(tile) <= Board::columnHeight(board.arrangement, Board::col(tile));
        if (inPlay && (letterIndex(cell.letter) == 0 || cell.multiplier != multiplier::plain))
            throw PositionError("board, column " + std::to_string(Board::col(tile)) + ", row " +
                                std::to_string(Board::row(tile)) + ": a board begins with a plain letter here");
    }
}

} // namespace

Position GameFlow::position() const
{
    Position position = positionOf(parts_->game);
    position.secondsLeft = parts_->game.state.computerGame ? parts_->Dc1.currentValue() : 0;
    return position;
}

void GameFlow::saveIfChanged()
{
    if (!inGame_ || busy_ || ended_ || keeping_ == Keeping::Off)
        return;
    Position now = position();
    Position compared = withoutTime(now);
    if (compared == saved_)
        return;
    const std::string date = parts_->ports.clock.shortDate() + " " + parts_->ports.clock.shortTime();
    if (parts_->savedGame.write(textOf(SavedGame{date, std::move(now)}), Durability::Written))
        saved_ = std::move(compared);
}

/// The game is over: there is nothing to continue.
void GameFlow::forgetSavedGame()
{
    saved_.reset();
    if (keeping_ == Keeping::On)
        parts_->savedGame.remove();
}

void GameFlow::keepForLater()
{
    const std::string date = parts_->ports.clock.shortDate() + " " + parts_->ports.clock.shortTime();
    if (!parts_->savedGame.write(textOf(SavedGame{date, position()}), Durability::Flushed)) {
        parts_->ports.dialogs.message("The game could not be kept: its file cannot be written");
        return;
    }
    parts_->configuration.save();
    parts_->sounds.play(cue::thanks);
    throw ProgramEnd();
}

void GameFlow::openOrContinue()
{
    input(When::Always, [this](GameParts& /*parts*/) {
        if (continueKept())
            return;
        showOptions();
        beginGame();
    });
}

void GameFlow::continueGame()
{
    input(When::Always, [this](GameParts& /*parts*/) { continueKept(); });
}

/// True when the game that was kept goes on.
bool GameFlow::continueKept()
{
    GameParts& p = *parts_;
    if (keeping_ == Keeping::Off)
        return false;
    ContinueForm form;
    try {
        const auto text = p.savedGame.read();
        if (!text)
            return false;
        form.game = savedGameOf(*text);
    } catch (const std::exception& failure) {
        p.ports.dialogs.message("The last game cannot be continued (" + std::string(failure.what()) +
                                "). Its file is now " + p.savedGame.setAside() + ".");
        return false;
    }
    p.ports.windows.show(form);
    if (!form.accepted)
        return false;
    continueFrom(form.game.position);
    return true;
}

void GameFlow::continueFrom(const Position& position)
{
    GameParts& p = *parts_;
    OptionsForm& options = p.options;
    options.takeChoices();
    options.select(position.board.arrangement == Arrangement::Square ? options.s8x8 : options.s7x8);
    options.setValue(options.Check1, position.state.computerGame);
    p.services.choose(options);
    p.maintenance.reset();
    p.dictionary.applyChoice(position.board.level, position.userDictionary);
    p.dictionary.read(p.ports.dialogs, p.ports.status, p.ports.random, p.ports.clock);
    restore(p.game, position);
    if (position.state.kind == GameKind::Normal && !position.state.computerGame)
        options.settings.presetLetters.clear();
    else
        options.settings.presetLetters.markUnrecorded();
    startClock(position.secondsLeft);
    inGame_ = true;
    noWordLeft_ = false;
    saved_ = withoutTime(this->position());
    if (position.words != p.dictionary.fingerprint())
        p.ports.status.show("The word list has changed since this game was kept");
}

// ---- Boards that are not dealt at random

void GameFlow::beginFrom(const BoardPosition& board, GameKind kind)
{
    GameParts& p = *parts_;
    p.options.takeChoices();
    p.services.choose(p.options);
    p.game.state.resetForNewGame();
    p.game.state.computerGame = false;
    p.game.state.kind = kind;
    p.maintenance.reset();
    p.dictionary.applyChoice(board.level, p.options.UsrDictName.Text);
    p.dictionary.read(p.ports.dialogs, p.ports.status, p.ports.random, p.ports.clock);
    restore(p.game, board);
    p.options.settings.presetLetters.markUnrecorded();
    gameBegun();
}

void GameFlow::playPosition(const BoardPosition& board)
{
    input(When::Always, [&](GameParts& /*parts*/) {
        clearGame();
        beginFrom(board, GameKind::Position);
    });
}

void GameFlow::playShared(const std::string& text)
{
    input(When::NotPaused, [&](GameParts& p) {
        p.game.letterSwap.cancel();
        beginShared(text);
    });
}

/// The clipboard's line stands in the box where it is a board. What is wrong with a line is said, and it is asked
/// again.
void GameFlow::askForSharedBoard()
{
    GameParts& p = *parts_;
    std::string line = p.ports.screen.copiedText();
    if (line.size() > 1000 || line.find('/') == std::string::npos)
        line.clear();
    do {
        line = p.ports.dialogs.input("Play a Shared Board",
                                     "Paste the line that another player has copied with Game > Copy Board", line);
    } while (!line.empty() && !beginShared(line));
}

/// False, after a message, for a line that is no board to begin with.
bool GameFlow::beginShared(const std::string& text)
{
    GameParts& p = *parts_;
    BoardPosition board;
    try {
        board = boardPositionOf(text);
        expectWholeBoard(board);
    } catch (const PositionError& error) {
        p.ports.dialogs.message(std::string("This is no board that can be played.\r\n") + error.what());
        return false;
    }
    if (!giveUpGame())
        return true;
    beginFrom(board, GameKind::Shared);
    p.game.state.tilesLeft = LetterSupply::startCount(board.arrangement);
    return true;
}

void GameFlow::playDaily()
{
    GameParts& p = *parts_;
    if (!giveUpGame())
        return;
    const BoardPosition board = boardOfTheDay(p.ports.clock.today(), p.dictionary.level());
    beginFrom(board, GameKind::Daily);
    p.game.state.tilesLeft = LetterSupply::startCount(board.arrangement);
}

// ---- Games that are over

/// A game without a word is none. One that was recorded is not recorded again.
void GameFlow::recordGame(GameEnd end)
{
    GameParts& p = *parts_;
    GameState& state = p.game.state;
    if (!inGame_ || state.turns.empty() || state.begun.empty())
        return;
    const GameRecord record = recordOf(p.game, end);
    state.begun.clear();
    if (state.kind == GameKind::Daily) {
        p.ports.screen.copyText(dailySummary(record));
        const std::string last = p.ports.status.Warn ? p.ports.status.Label1 + "\r\n" : "";
        p.ports.status.show(last + "A summary of this board of the day is on the clipboard");
    }
    try {
        lastRecord_ = p.records.add(record);
    } catch (const FileError&) {
        lastRecord_.clear(); // a folder that cannot be written keeps nothing
    }
}

void GameFlow::lookBack()
{
    if (lastRecord_.empty())
        return;
    GameParts& p = *parts_;
    ReviewForm review(p.records.load(lastRecord_), p.reviewLists, p.meanings);
    p.ports.windows.show(review);
}

/// What is begun, for the record and for whoever plays the same board again.
void GameFlow::gameBegun()
{
    GameParts& p = *parts_;
    p.game.state.start = textOf(boardOf(p.game));
    const auto seconds = static_cast<unsigned>(p.ports.clock.secondsSinceMidnight());
    p.game.state.begun =
        textOf(Day(p.ports.clock.today())) + " " + twoDigits(seconds / 3600) + ":" + twoDigits(seconds / 60 % 60);
    startClock(gameSeconds);
    inGame_ = true;
    noWordLeft_ = false;
    forgetSavedGame(); // one that was not continued
}

} // namespace lexigrove
