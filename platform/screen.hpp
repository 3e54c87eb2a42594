#pragma once

#include <string>
#include <vector>

namespace lexigrove
{

/// What happens on the board that a picture can make a moment of.
enum class Moment {
    BonusEarned, ///< a long word has made a tile a bonus tile
    RedTile,     ///< a tile has turned red
    Pushed,      ///< a column was pushed down
};

/// A game is over.
struct EndOfGame {
    std::string reason;
    int score = 0;                      ///< the player's
    std::vector<std::string> memorable; ///< what to remember of it, a sentence each; empty without a word
};

/// What the rules ask of the screen. The models hold the truth: at every yield a front end reads them and shows what
/// has changed. A call that processes events throws `Leaving` if the player closed the main window meanwhile.
class Screen
{
public:
    virtual ~Screen() = default;

    /// Processes pending window events once.
    virtual void yield() = 0;

    /// Shows the animation step that the models hold and processes pending events `rounds` times (the drop-animation
    /// delay, 0 or more; 0 does not wait).
    virtual void animationStep(int rounds) = 0;

    /// Must not throw. Switches between the busy pointer (arrow with hourglass) and the normal one.
    virtual void setBusyPointer(bool busy) = 0;

    /// Must not throw. Stops and releases repainting of the board panel `Picture1`. Only one lock is held at a time.
    virtual void lockBoardUpdates(bool locked) = 0;

    /// Processes events until a key or a mouse button is pressed; that input has no other effect.
    virtual void waitForAnyInput() = 0;

    /// Must not throw. Puts a text in UTF-8 on the clipboard.
    virtual void copyText(const std::string& text) = 0;
    /// Must not throw. The text on the clipboard in UTF-8, empty where there is none.
    [[nodiscard]] virtual std::string copiedText() const = 0;

    /// A front end with a picture makes it a moment before the questions come.
    virtual void showEnd(const EndOfGame& /*end*/) {}

    /// Must not throw. `place` is the tile, 1 to 64, or the column, 1 to 8, that it happens to.
    virtual void happened(Moment /*moment*/, int /*place*/) {}

    /// Must not throw. An input was refused: a front end with a picture shows it, and `why`, where the word is made.
    virtual void refuse(const std::string& /*why*/) {}

    /// Must not throw. An input or a tick of the game has ended: the models may differ from what is shown.
    virtual void inputEnded() = 0;
};

/// Shows the busy pointer until the end of the scope.
class BusyPointer
{
public:
    explicit BusyPointer(Screen& screen) : screen_(screen) { screen_.setBusyPointer(true); }
    ~BusyPointer() { screen_.setBusyPointer(false); }
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;

private:
    Screen& screen_;
};

/// Stops repainting of the board until the end of the scope.
class BoardLock
{
public:
    explicit BoardLock(Screen& screen) : screen_(screen) { screen_.lockBoardUpdates(true); }
    ~BoardLock() { screen_.lockBoardUpdates(false); }
    BoardLock(const BoardLock&) = delete;
    BoardLock& operator=(const BoardLock&) = delete;

private:
    Screen& screen_;
};

} // namespace lexigrove
