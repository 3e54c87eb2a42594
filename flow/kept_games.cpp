#include "flow/game_flow.hpp"
#include "flow/game_parts.hpp"
#include "platform/leaving.hpp"
#include "record/continue_form.hpp"
#include "record/daily.hpp"

#include <algorithm>
#include <filesystem>

namespace lexigrove
{

namespace
{

/// The position without what time alone changes: such a change is not worth a file. Of the clock of a game against the
/// computer ten seconds count, so that nobody gains more by a crash.
Position withoutTime(Position position)
{
    position.secondsLeft /= 10;
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
    Position now = withoutTime(position());
    if (now == saved_)
        return;
    if (save(Durability::Written)) {
        saved_ = std::move(now);
    } else if (!failureToSaveTold_) {
        failureToSaveTold_ = true;
        parts_->ports.status.tell("This game is not kept: its file cannot be written");
        parts_->ports.screen.inputEnded();
    }
}

bool GameFlow::save(Durability durability) const
{
    const Clock& clock = parts_->ports.clock;
    const std::string date = clock.shortDate() + " " + clock.shortTime();
    return parts_->savedGame.write(textOf(SavedGame{date, position()}), durability);
}

/// The game is over: there is nothing to continue. A file that holds another game, of another program or of one that
/// was not continued, stays.
void GameFlow::forgetSavedGame()
{
    if (saved_)
        parts_->savedGame.remove();
    saved_.reset();
}

void GameFlow::keepForLater()
{
    if (keeping_ == Keeping::Off) {
        parts_->ports.dialogs.message("This game cannot be kept: LexiGrove is open a second time");
        return;
    }
    if (!save(Durability::Flushed)) {
        parts_->ports.dialogs.message("The game could not be kept: its file cannot be written");
        return;
    }
    parts_->configuration.save();
    parts_->sounds.play(cue::thanks);
    throw ProgramEnd();
}

void GameFlow::continueGame()
{
    input(When::Always, [this](GameParts& p) {
        if (keeping_ == Keeping::Off)
            return;
        ContinueForm form;
        try {
            const auto text = p.savedGame.read();
            if (!text)
                return;
            form.game = savedGameOf(*text);
            expectUserDictionary(form.game.position);
        } catch (const std::exception& failure) {
            p.ports.dialogs.message("The last game cannot be continued (" + std::string(failure.what()) +
                                    "). Its file is now " + p.savedGame.setAside() + ".");
            return;
        }
        p.ports.windows.show(form);
        if (form.accepted)
            continueFrom(form.game.position);
        else
            declined_ = std::move(form.game.position);
    });
}

/// A game of a user dictionary needs its file, without which no game can be played.
void GameFlow::expectUserDictionary(const Position& position) const
{
    const std::filesystem::path file = std::filesystem::path(parts_->folder) / position.userDictionary;
    std::error_code failure;
    if (position.board.level == 0 && !std::filesystem::exists(file, failure))
        throw PositionError(position.userDictionary + " is missing");
}

void GameFlow::continueFrom(const Position& position)
{
    GameParts& p = *parts_;
    resume();
    p.options.takeChoices();
    p.services.choose(p.options);
    p.dictionary.applyChoice(position.board.level, position.userDictionary);
    readDictionary();
    restore(p.game, position);
    if (position.state.kind == GameKind::Normal && !position.state.computerGame)
        p.options.settings.presetLetters.clear();
    else
        p.options.settings.presetLetters.markUnrecorded();
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
    p.dictionary.applyChoice(board.level, p.options.UsrDictName.Text);
    readDictionary();
    offerCorrectedList();
    restore(p.game, board);
    if (kind != GameKind::Position) // counted as in a game that is dealt
        p.game.state.tilesLeft = std::min(p.game.state.tilesLeft, LetterSupply::startCount(board.arrangement));
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
    return true;
}

void GameFlow::playDaily()
{
    GameParts& p = *parts_;
    if (!giveUpGame())
        return;
    p.options.applyDictionaryChoice(); // the last game's may have been another
    const BoardPosition board = boardOfTheDay(p.ports.clock.today(), p.dictionary.level());
    beginFrom(board, GameKind::Daily);
}

// ---- Games that are over

/// A game without a word is none, a relaxed one stays unrecorded, and one that was recorded is not recorded again.
/// Nothing is returned for these, nor where no record can be kept, which never stops what the player is doing.
std::optional<GameRecord> GameFlow::record(const Position& game, GameEnd end)
{
    if (game.state.turns.empty() || game.state.begun.empty() || game.state.kind == GameKind::Relaxed)
        return std::nullopt;
    try {
        GameRecord record = recordOf(game, end);
        lastRecord_ = parts_->records.add(record);
        return record;
    } catch (const std::exception&) {
        lastRecord_.clear();
        return std::nullopt;
    }
}

std::optional<GameRecord> GameFlow::recordGame(GameEnd end)
{
    if (!inGame_)
        return std::nullopt;
    GameParts& p = *parts_;
    std::optional<GameRecord> over = record(position(), end);
    p.game.state.begun.clear();
    if (!over || over->kind != GameKind::Daily)
        return over;
    p.ports.screen.copyText(dailySummary(*over));
    const StatusLine& status = p.ports.status;
    const std::string last = status.Warn && !status.Label1.empty() ? status.Label1 + "\r\n" : "";
    p.ports.status.show(last + "A summary of this board of the day is on the clipboard");
    return over;
}

void GameFlow::lookBack()
{
    if (lastRecord_.empty())
        return;
    GameParts& p = *parts_;
    std::optional<ReviewForm> review;
    try {
        review.emplace(p.records.load(lastRecord_), p.levelLists, p.meanings);
    } catch (const std::exception& failure) {
        p.ports.dialogs.message(failure.what());
        return;
    }
    p.ports.windows.show(*review);
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
    if (declined_) {
        record(*declined_, GameEnd::Left);
        declined_.reset();
        p.savedGame.remove();
    }
}

} // namespace lexigrove
