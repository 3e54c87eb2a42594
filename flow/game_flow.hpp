#pragma once

#include "controls/mouse_button.hpp"
#include "flow/command.hpp"
#include "game/position.hpp"

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace lexigrove
{

class Board;
enum class Durability;
enum class GameEnd;
class ColourScheme;
class Dc;
class Dictionary;
class DropRow;
class HintsForm;
class LetterSupply;
class LetterSwap;
class OptionsForm;
class Selection;
class SoundCues;
struct GameParts;
struct GameRecord;
struct GameState;
struct Ports;
struct SystemPalette;

/// What a front end shows: the models, read-only.
struct GameView {
    const GameState& state;
    const Board& board;
    const Selection& selection;
    const LetterSupply& supply;
    const DropRow& dropRow;
    const LetterSwap& letterSwap;
    const HintsForm& hints;
    const OptionsForm& options;
    const Dictionary& dictionary;
    const ColourScheme& scheme;
    const SoundCues& sounds;
    const Dc& clock;
};

/// The whole game as a front end plays it: the front end passes on inputs and ticks and, after each of them and at
/// every yield, shows what the views say.
///
/// An input runs to its end. Meanwhile other inputs are refused and pressure ticks are skipped, because its questions,
/// animations and waits let events in. No input throws: leaving the program in any way makes `ended()` true, and an
/// unforeseen failure is shown in a message box.
class GameFlow
{
public:
    static constexpr int gameSeconds = 600; ///< of a game against the computer

    /// `folder` is the program folder with its trailing separator, `desktop` the colours that system colours stand for.
    GameFlow(const Ports& ports, const std::string& folder, const SystemPalette& desktop);
    ~GameFlow();
    GameFlow(const GameFlow&) = delete;
    GameFlow& operator=(const GameFlow&) = delete;

    // The program's course

    /// Start-up, up to but not including the options dialog. An arrangement given here replaces the stored one there.
    void startUp(std::optional<Arrangement> arrangement = {});
    /// Shows the options dialog and starts a game with its choices.
    void openOptionsAndStart();
    /// Starts a game with the choices as they stand, without the options dialog.
    void startGame();
    /// Starts a game from a position, which is not recorded among the scores.
    void playPosition(const BoardPosition& board);
    /// Offers to continue the game that was kept. Without one, or declined, nothing happens until another game begins,
    /// which takes its place.
    void continueGame();
    [[nodiscard]] bool ended() const { return ended_; }   ///< the program is over: the front end closes
    [[nodiscard]] bool inGame() const { return inGame_; } ///< once a game has started
    [[nodiscard]] bool isPaused() const { return paused_; }
    [[nodiscard]] bool isBusy() const { return busy_; } ///< while an input runs
    [[nodiscard]] bool isTime(When when) const;

    // Inputs

    void perform(Command command);
    [[nodiscard]] static When timeOf(Command command);
    void clickTile(int tile, MouseButton button, bool shift); ///< a mouse button released over tile 1 to 64
    void hoverTile(int tile);                                 ///< the pointer rests on a tile
    void drop(int col);                         ///< a mouse button released over column 1 to 8 of the drop row
    void typeLetter(char letter);               ///< adds to the word; see `typedPath`
    void typeWord(const std::string& word);     ///< letter by letter, as far as the board allows
    void pickWord(int row);                     ///< makes a row of `WordsMade` the current one
    void sortWordsMade(int x);                  ///< a click on its headings, in its units
    void releaseClockFrame(MouseButton button); ///< released over `Frame10`
    void releaseDeveloperKey(DeveloperKey key);
    void playShared(const std::string& text); ///< a board that `GameState::start` of another game gave
    void tick(Timer timer);
    void warnOfPush();    ///< some seconds before a tick of `Timer::Push`: tells which columns may be pushed down
    void clockGotFocus(); ///< which counts as its expiry

    // Views

    [[nodiscard]] const GameView& view() const { return view_; }
    [[nodiscard]] Position position() const;
    [[nodiscard]] std::string pauseCaption() const; ///< "Paused" or empty, as it blinks

    // The game is kept in a file

    /// Whether games are kept; off for a second program that plays in the same folder.
    enum class Keeping { On, Off };
    void setKeeping(Keeping keeping) { keeping_ = keeping; }
    /// Writes the file of the game when an input has changed it; for a front end to call when it is idle.
    void saveIfChanged();

private:
    friend class Study;
    struct Entry;
    static const Entry& entryOf(Command command);

    template <typename Rule>
    void input(When when, Rule rule);
    template <typename Rule>
    void aside(When when, Rule rule);
    [[nodiscard]] bool beginInput(When when);
    void endEarly();
    void offerEndIfNoWordIsLeft();
    void endInput();

    void beginGame();
    void readDictionary();
    void offerCorrectedList();
    void beginFrom(const BoardPosition& board, GameKind kind);
    void gameBegun();
    void clearGame();
    [[nodiscard]] GameKind kindOfNextGame() const;
    bool giveUpGame();
    void askForSharedBoard();
    bool beginShared(const std::string& text);
    std::optional<GameRecord> record(const Position& game, GameEnd end);
    std::optional<GameRecord> recordGame(GameEnd end);
    void lookBack();
    void expectUserDictionary(const Position& position) const;
    void continueFrom(const Position& position);
    void keepForLater();
    [[nodiscard]] bool save(Durability durability) const;
    void forgetSavedGame();
    void playDaily();
    void startClock(int seconds);
    void showOptions();
    void anotherGame();
    void newGame();
    void showWallClock();
    void loseGame(int col);
    void endOfGame(GameEnd end, const std::string& reason);
    bool wantsAnotherGame(bool canLookBack);
    void clockExpired();
    void prepareWindow();
    void runTick(Timer timer);
    void dropInto(int col);
    void enterWord();
    void pauseOrResume();
    void resume();
    [[noreturn]] void leave();

    const std::unique_ptr<GameParts> parts_;
    const GameView view_;
    std::optional<Position> saved_;    ///< the file's, without what time alone changes; nothing for another game's file
    std::optional<Position> declined_; ///< the file's, which the player did not want to continue
    std::vector<int> refused_;         ///< the path of a word that is in no dictionary
    std::string lastRecord_;           ///< the file of the game that was over last, empty for none
    std::string uncorrectedList_;      ///< the player's own list that is played in spite of its faults
    Keeping keeping_ = Keeping::On;
    bool failureToSaveTold_ = false;
    bool noWordLeft_ = false; ///< which was told
    bool busy_ = false;
    bool ticking_ = false; ///< while something else than an action of the player runs: a timer, a look
    bool ended_ = false;
    bool inGame_ = false;
    bool paused_ = false;
    bool pauseCaptionShown_ = false;
    bool clockRanBeforePause_ = false;
};

/// Runs one input from beginning to end.
template <typename Rule>
void GameFlow::input(When when, Rule rule)
{
    if (!beginInput(when))
        return;
    try {
        rule(*parts_);
        if (!ticking_)
            offerEndIfNoWordIsLeft();
    } catch (...) {
        endEarly();
    }
    endInput();
}

/// An input that is no action of the player's: what was said stays.
template <typename Rule>
void GameFlow::aside(When when, Rule rule)
{
    const bool outer = std::exchange(ticking_, true);
    input(when, rule);
    ticking_ = outer;
}

} // namespace lexigrove
