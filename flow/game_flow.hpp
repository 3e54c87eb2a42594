#pragma once

#include "controls/dc.hpp"
#include "dictionary/dictionary.hpp"
#include "flow/letter_swap.hpp"
#include "flow/windows.hpp"
#include "game/game.hpp"
#include "opponent/board_search.hpp"
#include "opponent/computer_turn.hpp"
#include "opponent/hints.hpp"
#include "opponent/word_round.hpp"
#include "platform/ports.hpp"
#include "scores/score_file.hpp"
#include "settings/configuration.hpp"
#include "settings/meaning_services.hpp"

#include <functional>
#include <string>

namespace lexigrove
{

/// The keys that set the drop-animation delay in developer mode.
enum class DeveloperKey { End, NumpadMinus, NumpadPlus, Home };

/// The whole game as a front end plays it: the front end pushes inputs and ticks, and afterwards, and at every yield,
/// shows what the models say.
///
/// Inputs run to their end; while one runs, other inputs are refused and pressure ticks are skipped, because its
/// questions, animations and waits let events in. No input throws: leaving the program, by whatever way, ends in
/// `ended()`.
class GameFlow
{
public:
    static constexpr int gameSeconds = 600;        ///< of a game against the computer
    static constexpr int pauseTimerInterval = 500; ///< `PauseTimer`, milliseconds

    /// `folder` is the program folder with its closing separator.
    GameFlow(const Ports& ports, const Windows& windows, const std::string& folder);
    GameFlow(const GameFlow&) = delete;
    GameFlow& operator=(const GameFlow&) = delete;

    // The program's course

    /// Start-up, up to but without the options dialog: clock, configuration, dictionary choice, colour scheme.
    void startUp();

    /// Shows the options dialog and starts a game with its choices.
    void openOptionsAndStart();

    /// Starts a game with the choices as they stand, without the options dialog. Preset letters that a game was dealt
    /// from already are the caller's to empty.
    void startGame();

    /// New Game from the menu, with its questions.
    void menuNewGame();

    /// Exit: offers the score, saves the configuration and ends the program. Closing the window does the same.
    void exit();

    /// True when the program is over: the front end closes.
    [[nodiscard]] bool ended() const { return ended_; }

    /// True from a game's start on.
    [[nodiscard]] bool inGame() const { return inGame_; }

    /// True while an input runs.
    [[nodiscard]] bool isBusy() const { return busy_; }

    // The player's inputs

    /// A mouse button released over board tile 1 to 64; a hidden tile takes no input.
    void clickTile(int tile, MouseButton button, bool shift);
    /// The pointer rests on a tile.
    void hoverTile(int tile);
    void enterWord();
    /// A mouse button released over the place of a waiting tile, column 1 to 8.
    void drop(int col);
    void getHint();
    void checkSpelling();
    void showMeaning();
    /// Opens the maintenance window with the selected word.
    void addWord();
    void soundButton();
    void pause();
    /// Esc: cancels a letter swap, else clears the path.
    void escape();
    void releaseClockFrame(MouseButton button);
    void sortWordsMade(int x);
    void showTopTen();
    void showStatistics();
    void showHelp();
    void showAbout();
    /// F1.
    void askDeveloperPassword();
    void releaseDeveloperKey(DeveloperKey key);
    void exportWords();

    // The timers: a front end runs them for as long as the program lasts; the flow knows when a tick counts.

    void redTimerTick();
    void pushTimerTick();
    void clockTimerTick();
    /// `PauseTimer`: blinks the caption while paused.
    void pauseTimerTick();

    /// The clock received the focus, which counts as its expiry.
    void clockGotFocus();

    // Models

    [[nodiscard]] bool isPaused() const { return paused_; }
    /// "Paused" or empty, as the caption of the cover blinks.
    [[nodiscard]] std::string pauseCaption() const { return paused_ && pauseCaptionShown_ ? "Paused" : ""; }
    /// The tile that waits for the letter to swap with, 0 when none does.
    [[nodiscard]] int swapTile() const { return letterSwap.tile(); }
    /// The main window's caption.
    [[nodiscard]] const std::string& caption() const { return dictionary.caption(); }
    [[nodiscard]] const std::string& folder() const { return folder_; }

    /// Runs a front end's own dealings with a model (a test position, an option) as one input: refused while another
    /// runs.
    void asInput(const std::function<void()>& action);

private:
    const Ports ports_;
    const Windows windows_;
    const std::string folder_;

public:
    Dictionary dictionary;
    ColourScheme scheme;
    SoundCues sounds;
    OptionsForm options;
    Dc Dc1;
    Game game;
    MeaningServices services;
    ScoreFile scoreFile;
    ScoreForm scoreForm;
    StatisticsForm statisticsForm{game.state.statistics};
    DictionaryMaintenance maintenance;
    HelpForm helpForm;
    AboutForm aboutForm;
    BoardSearch search;
    ComputerTurn computerTurn{game, search, Dc1};
    WordRound wordRound{game, computerTurn};
    Meanings meanings;
    HintsForm hintsForm{game, meanings};
    Hints hints;
    LetterSwap letterSwap{game};
    Configuration configuration;

private:
    using Action = std::function<void()>;
    void perform(const Action& action);
    void performInGame(const Action& action);
    void performOther(const Action& action);
    void performOtherInGame(const Action& action);

    void setUpClock();
    void beginGame();
    void readDictionary();
    void startClock();
    void showWallClock();
    void clearGame();
    void showOptions();
    void anotherGame();
    [[nodiscard]] bool isNormalGame() const { return options.settings.presetLetters.empty(); }
    std::string offerScore();
    void loseGame(int col);
    void endOfGame();
    void clockExpired();
    void tellWinner();
    void openingWindow();
    [[noreturn]] void leave();
    void resume();

    bool busy_ = false;
    bool ended_ = false;
    bool inGame_ = false;
    bool paused_ = false;
    bool pauseCaptionShown_ = false;
    bool clockRanBeforePause_ = false;
};

} // namespace lexigrove
