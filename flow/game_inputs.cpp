#include "flow/game_flow.hpp"
#include "opponent/spelling.hpp"

#include <algorithm>
#include <limits>

namespace lexigrove
{

void GameFlow::clickTile(int tile, MouseButton button, bool shift)
{
    performInGame([=, this] {
        if (!game.board.isVisible(tile) || !game.state.Picture1.Enabled)
            return;
        const bool again = letterSwap.isPending() && letterSwap.tile() == tile;
        if (shift || again) {
            letterSwap.request(tile);
            return;
        }
        letterSwap.cancel();
        if (button == MouseButton::Right && game.selection.entryPending) {
            game.selection.entryPending = false;
            wordRound.enterWord();
        } else {
            game.selection.tileClicked(tile, button);
        }
    });
}

void GameFlow::hoverTile(int tile)
{
    if (!inGame_ || busy_ || paused_ || !game.board.isVisible(tile))
        return;
    ports_.status.Warn = false;
    ports_.status.write(game.board.hoverCaption(tile));
    game.state.Label4.Caption = game.board.description(tile);
}

void GameFlow::enterWord()
{
    performOtherInGame([this] { wordRound.enterWord(); });
}

void GameFlow::drop(int col)
{
    performInGame([=, this] {
        if (letterSwap.isPending())
            letterSwap.exchange(col);
        else if (game.board.TopDrop[static_cast<std::size_t>(col)].Visible())
            game.dropRow.dropIntoColumn(col);
    });
}

void GameFlow::getHint()
{
    performOtherInGame([this] { hints.getHint(); });
}

void GameFlow::checkSpelling()
{
    performOtherInGame([this] { lexigrove::checkSpelling(game.state, dictionary, sounds, ports_.status); });
}

void GameFlow::showMeaning()
{
    performOtherInGame([this] { meanings.showOfCurrentRow(); });
}

void GameFlow::addWord()
{
    performOtherInGame([this] {
        if (maintenance.open(game.state.WordTried.Caption, ports_.status)) {
            game.state.redTileHold = true;
            windows_.maintenance.show(maintenance);
        }
    });
}

void GameFlow::soundButton()
{
    performOther([this] { options.soundButton(); });
}

void GameFlow::pause()
{
    if (!inGame_)
        return;
    perform([this] {
        if (paused_) {
            resume();
            return;
        }
        letterSwap.cancel();
        paused_ = true;
        pauseCaptionShown_ = true;
        clockRanBeforePause_ = Dc1.running();
        Dc1.SuspendCountDown();
    });
}

void GameFlow::resume()
{
    if (!paused_)
        return;
    paused_ = false;
    if (clockRanBeforePause_)
        Dc1.ResumeCountDown();
}

void GameFlow::escape()
{
    performInGame([this] {
        if (letterSwap.isPending())
            letterSwap.cancel();
        else
            game.selection.clear();
    });
}

void GameFlow::releaseClockFrame(MouseButton button)
{
    performOther([=, this] {
        if (button == MouseButton::Left)
            frame10Released(Dc1, leftButton);
        else if (button == MouseButton::Right)
            frame10Released(Dc1, rightButton);
    });
}

void GameFlow::sortWordsMade(int x)
{
    performOtherInGame([=, this] { game.state.WordsMade.headingClicked(x); });
}

/// What every action does that opens a window from the main one: a sound, and no pressure until the next word.
void GameFlow::openingWindow()
{
    game.state.redTileHold = true;
    sounds.play(cue::menu);
}

void GameFlow::showTopTen()
{
    performOtherInGame([this] {
        openingWindow();
        lexigrove::showTopTen(scoreForm, windows_.scores, ScoreForm::showOnly);
    });
}

void GameFlow::showStatistics()
{
    performOtherInGame([this] {
        openingWindow();
        game.state.statistics.setHintsUsed(game.state.hintsUsed);
        statisticsForm.activate(game.state.computerGame, dictionary.letters.letterCounts);
        windows_.statistics.show(statisticsForm);
    });
}

void GameFlow::showHelp()
{
    performOther([this] {
        openingWindow();
        helpForm.Tag = helpAddress(folder_);
        windows_.help.show(helpForm);
    });
}

void GameFlow::showAbout()
{
    performOther([this] {
        openingWindow();
        windows_.about.show(aboutForm);
    });
}

void GameFlow::askDeveloperPassword()
{
    performOther([this] {
        game.state.developerMode = false;
        if (ports_.dialogs.input("LexiGrove", "Enter password", "") == "718kestr")
            game.state.developerMode = true;
    });
}

void GameFlow::releaseDeveloperKey(DeveloperKey key)
{
    if (!game.state.developerMode)
        return;
    int& delay = options.settings.dropDelay;
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

void GameFlow::exportWords()
{
    performOtherInGame([this] { (void)dictionary.exportWords(ports_.dialogs, ports_.random, ports_.clock); });
}

// ---- The timers

void GameFlow::redTimerTick()
{
    performInGame([this] { game.redTiles.redTimerTick(); });
}

void GameFlow::pushTimerTick()
{
    performInGame([this] {
        const RedTiles::PushResult push = game.redTiles.pushTimerTick();
        if (push.what == RedTiles::Push::Pushed)
            letterSwap.cancel();
        if (push.what == RedTiles::Push::Lost)
            loseGame(push.col);
    });
}

/// The clock goes on while a window is open; an expiry that meets one is told when it has closed, for it is raised
/// again at every tick.
void GameFlow::clockTimerTick()
{
    const bool expired = Dc1.tick(ports_.clock.secondsSinceMidnight());
    if (expired)
        perform([this] { clockExpired(); });
}

void GameFlow::pauseTimerTick()
{
    if (paused_)
        pauseCaptionShown_ = !pauseCaptionShown_;
}

void GameFlow::clockGotFocus()
{
    if (Dc1.gotFocus())
        perform([this] { clockExpired(); });
}

} // namespace lexigrove
