#include "flow/game_flow.hpp"
#include "flow/game_parts.hpp"
#include "game/word_typing.hpp"
#include "word_services/spelling.hpp"

#include <algorithm>
#include <array>
#include <limits>
#include <set>
#include <utility>

namespace lexigrove
{

/// When a command is accepted, what it does to a pending letter swap, and its rule.
struct GameFlow::Entry {
    enum class Swap { Ends, Stays };

    Command command;
    When when;
    Swap swap;
    void (*run)(GameFlow& flow, GameParts& parts);
};

const GameFlow::Entry& GameFlow::entryOf(Command command)
{
    using Flow = GameFlow;
    using Parts = GameParts;
    using enum Entry::Swap;
    static constexpr std::array entries{
        Entry{Command::NewGame, When::NotPaused, Ends, [](Flow& flow, Parts&) { flow.newGame(); }},
        Entry{Command::Daily, When::NotPaused, Ends, [](Flow& flow, Parts&) { flow.playDaily(); }},
        Entry{Command::CopyBoard, When::InGame, Ends,
              [](Flow&, Parts& p) {
                  p.ports.screen.copyText(p.game.state.start);
                  p.ports.status.show(
                      p.dictionary.loadedLevel() == 0
                          ? "The board is on the clipboard, but others cannot play it with your own dictionary"
                          : "The board that this game began with is on the clipboard");
              }},
        Entry{Command::SharedBoard, When::NotPaused, Ends, [](Flow& flow, Parts&) { flow.askForSharedBoard(); }},
        Entry{Command::PastGames, When::NotPaused, Ends,
              [](Flow& flow, Parts& p) {
                  flow.prepareWindow();
                  p.pastGames.activate(p.ports.clock.today());
                  p.ports.windows.show(p.pastGames);
              }},
        Entry{Command::LookBack, When::NotPaused, Ends, [](Flow& flow, Parts&) { flow.lookBack(); }},
        Entry{Command::KeepForLater, When::InGame, Ends, [](Flow& flow, Parts&) { flow.keepForLater(); }},
        Entry{Command::Pause, When::InGame, Ends, [](Flow& flow, Parts&) { flow.pauseOrResume(); }},
        Entry{Command::Sound, When::Always, Ends, [](Flow&, Parts& p) { p.options.soundButton(); }},
        Entry{Command::Exit, When::Always, Stays, [](Flow& flow, Parts&) { flow.leave(); }},
        Entry{Command::EnterWord, When::InPlay, Ends, [](Flow& flow, Parts&) { flow.enterWord(); }},
        Entry{Command::ClearWord, When::InPlay, Stays,
              [](Flow&, Parts& p) {
                  if (p.game.letterSwap.isPending())
                      p.game.letterSwap.cancel();
                  else
                      p.game.selection.clear();
              }},
        Entry{Command::TakeBack, When::InPlay, Stays,
              [](Flow&, Parts& p) {
                  if (p.game.selection.isEmpty())
                      p.ports.status.tell("There is no letter to take back");
                  else
                      p.game.selection.tileClicked(p.game.selection.lastTile(), MouseButton::Left);
              }},
        Entry{Command::OtherPath, When::InPlay, Ends,
              [](Flow&, Parts& p) {
                  if (const auto path = otherPath(p.game.board, p.game.selection))
                      pickPath(p.game.selection, *path);
                  else
                      p.ports.status.tell("There is no other way to spell it");
              }},
        Entry{Command::SwapLetter, When::InPlay, Stays,
              [](Flow&, Parts& p) {
                  if (p.game.letterSwap.isPending())
                      p.game.letterSwap.cancel();
                  else if (p.game.selection.isEmpty())
                      p.ports.status.tell("Pick the letter first that you want to swap");
                  else
                      p.game.letterSwap.request(p.game.selection.lastTile());
              }},
        Entry{Command::GetHint, When::InPlay, Ends, [](Flow&, Parts& p) { p.hints.getHint(); }},
        Entry{Command::CheckWord, When::InPlay, Ends,
              [](Flow&, Parts& p) { checkSpelling(p.game.selection, p.dictionary, p.sounds, p.ports.status); }},
        Entry{Command::ShowMeaning, When::InPlay, Ends, [](Flow&, Parts& p) { p.meanings.showForCurrentRow(); }},
        Entry{Command::AddWord, When::InPlay, Ends,
              [](Flow&, Parts& p) {
                  if (!p.maintenance.open(p.game.selection.word(), p.ports.status))
                      return;
                  p.game.state.redTileHold = true;
                  p.ports.windows.show(p.maintenance);
              }},
        Entry{Command::TopTen, When::InPlay, Ends,
              [](Flow& flow, Parts& p) {
                  flow.prepareWindow();
                  showTopTen(p.scoreForm, p.ports.windows, {});
              }},
        Entry{Command::Statistics, When::InPlay, Ends,
              [](Flow& flow, Parts& p) {
                  flow.prepareWindow();
                  p.game.state.statistics.setHintsUsed(p.game.state.hintsUsed);
                  p.statisticsForm.activate(p.game.state.computerGame, p.dictionary.letters.letterCounts);
                  p.ports.windows.show(p.statisticsForm);
              }},
        Entry{Command::Help, When::Always, Ends,
              [](Flow& flow, Parts& p) {
                  flow.prepareWindow();
                  p.ports.windows.showHelp(p.folder + "lexigrove.htm");
              }},
        Entry{Command::About, When::Always, Ends,
              [](Flow& flow, Parts& p) {
                  flow.prepareWindow();
                  p.ports.windows.showAbout();
              }},
        Entry{Command::AskPassword, When::Always, Ends,
              [](Flow& flow, Parts& p) {
                  p.game.state.developerMode = false;
                  const auto answer = p.ports.dialogs.inputOrHelp("LexiGrove", "Enter password");
                  if (!answer)
                      entryOf(Command::Help).run(flow, p);
                  p.game.state.developerMode = answer == "718kestr";
              }},
        Entry{Command::ExportWords, When::InPlay, Ends,
              [](Flow&, Parts& p) { (void)p.dictionary.exportWords(p.ports.dialogs, p.ports.random, p.ports.clock); }},
    };
    static_assert(entries.size() == static_cast<std::size_t>(lastCommand) + 1, "a row for each command");
    return *std::find_if(entries.begin(), entries.end(), [=](const Entry& entry) { return entry.command == command; });
}

When GameFlow::timeOf(Command command)
{
    return entryOf(command).when;
}

void GameFlow::perform(Command command)
{
    const Entry& entry = entryOf(command);
    input(entry.when, [&](GameParts& p) {
        if (entry.swap == Entry::Swap::Ends)
            p.game.letterSwap.cancel();
        entry.run(*this, p);
    });
}

// ---- Inputs with arguments

void GameFlow::clickTile(int tile, MouseButton button, bool shift)
{
    input(When::InPlay, [=, this](GameParts& p) {
        if (!p.game.board.isVisible(tile))
            return;
        const bool again = p.game.letterSwap.isPending() && p.game.letterSwap.tile() == tile;
        if (shift || again) {
            p.game.letterSwap.request(tile);
            return;
        }
        p.game.letterSwap.cancel();
        if (button == MouseButton::Right && p.game.selection.entryPending) {
            p.game.selection.entryPending = false;
            enterWord();
        } else {
            p.game.selection.tileClicked(tile, button);
        }
    });
}

void GameFlow::hoverTile(int tile)
{
    if (paused_)
        return; // the board is covered
    aside(When::InPlay, [=](GameParts& p) {
        if (!p.game.board.isVisible(tile))
            return;
        p.ports.status.Warn = false;
        p.ports.status.write(p.game.board.hoverCaption(tile));
        p.game.state.hoveredTile = tile;
    });
}

void GameFlow::drop(int col)
{
    input(When::InPlay, [=, this](GameParts& p) {
        if (p.game.letterSwap.isPending())
            p.game.letterSwap.exchange(col);
        else if (!p.game.board.waiting(col).Visible())
            p.ports.status.tell("No letter waits over column " + std::to_string(col));
        else
            dropInto(col);
    });
}

void GameFlow::dropInto(int col)
{
    GameParts& p = *parts_;
    if (p.game.board.isVisible(Board::Grid(1, col)))
        p.ports.status.tell("Column " + std::to_string(col) + " is full");
    p.game.dropRow.dropIntoColumn(col);
}

void GameFlow::enterWord()
{
    GameParts& p = *parts_;
    const EnterResult result = lexigrove::enterWord(p.game, p.computerTurn);
    if (result == EnterResult::TooShort) {
        p.ports.status.tell("A word needs two letters");
        p.ports.screen.refuse("two letters at least");
    }
    if (result == EnterResult::NotFound)
        p.ports.screen.refuse("not in dictionary");
    refused_ = result == EnterResult::NotFound ? p.game.selection.tiles() : std::vector<int>{};
}

void GameFlow::typeLetter(char letter)
{
    input(When::InPlay, [=, this](GameParts& p) {
        p.game.letterSwap.cancel(); // typing counts as another action
        if (!refused_.empty() && p.game.selection.tiles() == refused_)
            p.game.selection.clear(); // who goes on typing after a refused word begins another one
        if (extendWord(p.game, letter))
            return;
        p.sounds.play(cue::error);
        p.ports.screen.refuse("no way on the board");
    });
}

void GameFlow::typeWord(const std::string& word)
{
    input(When::InPlay, [&](GameParts& p) {
        p.game.letterSwap.cancel();
        for (const char letter : word) {
            if (!extendWord(p.game, letter))
                return;
        }
    });
}

void GameFlow::pickWord(int row)
{
    input(When::InPlay, [=](GameParts& p) { p.game.state.WordsMade.setCurrent(row); });
}

void GameFlow::sortWordsMade(int x)
{
    input(When::InPlay, [=](GameParts& p) {
        p.game.letterSwap.cancel();
        p.game.state.WordsMade.headingClicked(x);
    });
}

void GameFlow::releaseClockFrame(MouseButton button)
{
    if (button == MouseButton::Middle)
        return;
    input(When::Always, [=](GameParts& p) {
        p.game.letterSwap.cancel();
        frame10Released(p.Dc1, button);
    });
}

void GameFlow::releaseDeveloperKey(DeveloperKey key)
{
    if (!parts_->game.state.developerMode)
        return;
    int& delay = parts_->options.settings.dropDelay;
    constexpr int step = 10;
    constexpr int highest = std::numeric_limits<std::int16_t>::max();
    switch (key) {
    case DeveloperKey::End:
        delay = 0;
        break;
    case DeveloperKey::NumpadMinus:
        delay = std::min(delay + step, highest);
        break;
    case DeveloperKey::NumpadPlus:
        delay = std::max(delay - step, 0);
        break;
    case DeveloperKey::Home:
        delay = GameSettings::startDelay;
        break;
    }
}

/// What precedes every window opened from the main one: a sound, and no pressure until the next word.
void GameFlow::prepareWindow()
{
    parts_->game.state.redTileHold = true;
    parts_->sounds.play(cue::menu);
}

void GameFlow::pauseOrResume()
{
    if (paused_) {
        resume();
        return;
    }
    paused_ = true;
    pauseCaptionShown_ = true;
    clockRanBeforePause_ = parts_->Dc1.running();
    parts_->Dc1.SuspendCountDown();
}

void GameFlow::resume()
{
    if (!paused_)
        return;
    paused_ = false;
    if (clockRanBeforePause_)
        parts_->Dc1.ResumeCountDown();
}

// ---- The timers

namespace
{

/// What the player has lost with a tile that was pushed out.
std::string bonusText(Colour out)
{
    switch (out) {
    case multiplier::doubled:
        return ", and a double tile is gone";
    case multiplier::tripled:
        return ", and a triple tile is gone";
    case multiplier::quadrupled:
        return ", and a quadruple tile is gone";
    default:
        return {};
    }
}

} // namespace

void GameFlow::tick(Timer timer)
{
    const bool outer = std::exchange(ticking_, true);
    runTick(timer);
    ticking_ = outer;
}

void GameFlow::runTick(Timer timer)
{
    switch (timer) {
    case Timer::Red:
        input(When::InPlay, [](GameParts& p) {
            if (const int tile = p.game.redTiles.redTimerTick())
                p.ports.status.tell("A red tile in column " + std::to_string(Board::col(tile)));
        });
        break;
    case Timer::Push:
        input(When::InPlay, [this](GameParts& p) {
            const bool hadWord = !p.game.selection.isEmpty();
            const RedTiles::PushResult push = p.game.redTiles.pushTimerTick();
            if (push.outcome == RedTiles::Push::Pushed) {
                p.game.letterSwap.cancel();
                p.ports.screen.happened(Moment::Pushed, push.col);
                p.ports.status.tell("Column " + std::to_string(push.col) + " was pushed down" + bonusText(push.out) +
                                    (hadWord ? ", and your word was cleared" : ""));
            }
            if (push.outcome == RedTiles::Push::Lost)
                loseGame(push.col);
        });
        break;
    case Timer::Clock:
        // It keeps running while a window is open. An expiry meanwhile is reported once the window has closed, because
        // it is raised again at every tick.
        if (parts_->Dc1.tick(parts_->ports.clock.secondsSinceMidnight()))
            input(When::Always, [this](GameParts& /*parts*/) { clockExpired(); });
        if (inGame_ && !paused_)
            ++parts_->game.state.secondsPlayed;
        parts_->ports.screen.inputEnded();
        break;
    case Timer::Pause:
        pauseCaptionShown_ = paused_ && !pauseCaptionShown_;
        parts_->ports.screen.inputEnded();
        break;
    }
}

void GameFlow::warnOfPush()
{
    aside(When::InPlay, [](GameParts& p) {
        std::set<int> columns;
        for (const int tile : p.game.redTiles.pushable())
            columns.insert(Board::col(tile));
        std::string list;
        for (const int col : columns)
            list += (list.empty() ? "" : col == *columns.rbegin() ? " or " : ", ") + std::to_string(col);
        if (!list.empty())
            p.ports.status.tell("Column " + list + " will be pushed down");
    });
}

void GameFlow::clockGotFocus()
{
    if (parts_->Dc1.gotFocus())
        input(When::Always, [this](GameParts& /*parts*/) { clockExpired(); });
}

std::string GameFlow::pauseCaption() const
{
    return paused_ && pauseCaptionShown_ ? "Paused" : "";
}

} // namespace lexigrove
