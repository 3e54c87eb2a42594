#pragma once

#include <string>

namespace lexigrove
{

/// What rules ask of the screen. The models are the truth: at every yield a front end reads them and shows what
/// differs. A call that lets events run throws `Leaving` when the player closed the main window meanwhile.
class Screen
{
public:
    virtual ~Screen() = default;

    /// Lets pending window events run once.
    virtual void yield() = 0;

    /// One step of an animation stands in the models: shows it and lets pending events run `rounds` times (the
    /// drop-animation delay, 0 or more; 0 does not wait).
    virtual void animationStep(int rounds) = 0;

    /// Must not throw. Switches between the busy pointer (arrow with hourglass) and the normal one.
    virtual void setBusyPointer(bool busy) = 0;

    /// Must not throw. Stops and releases repainting of the board panel `Picture1`. A single lock is held at a time.
    virtual void lockBoardUpdates(bool locked) = 0;

    /// Lets events run until a key or a mouse button is pressed; that input is used up.
    virtual void waitForAnyInput() = 0;

    /// Must not throw. Puts a text in UTF-8 on the clipboard.
    virtual void copyText(const std::string& text) = 0;
    /// Must not throw. The text on the clipboard in UTF-8, empty where there is none.
    [[nodiscard]] virtual std::string copiedText() const = 0;

    /// Must not throw. An input or a tick of the game has ended: the models may differ from what is shown.
    virtual void inputEnded() = 0;
};

/// Holds the busy pointer for the length of a scope.
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

/// Holds the lock of the board's repainting for the length of a scope.
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
