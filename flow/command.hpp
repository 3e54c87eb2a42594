#pragma once

namespace lexigrove
{

/// When an input is accepted. At other times it is refused.
enum class When {
    Always,
    NotPaused, ///< even before the first game
    InGame,    ///< from the first game on, paused or not
    InPlay,    ///< in a game that is not paused
};

/// The inputs without arguments, which menus, buttons, keys and console commands offer.
enum class Command {
    NewGame,      ///< from the menu, with its questions
    Daily,        ///< the board of the day, with the questions of a new game
    CopyBoard,    ///< the board that the game began with, as a line of text on the clipboard
    SharedBoard,  ///< asks for such a line and plays its board, with the questions of a new game
    PastGames,    ///< shows the games that are over
    LookBack,     ///< shows the last game that is over
    KeepForLater, ///< leaves the program and keeps the game for the next start
    Pause,        ///< pauses or resumes
    Sound,        ///< switches the sound on or off
    Exit,         ///< offers the score, saves the configuration and ends the program; closing the window does the same
    EnterWord,    ///< `EnterWord`
    ClearWord,    ///< Esc: cancels a letter swap, else clears the path
    TakeBack,     ///< removes the last tile from the path
    OtherPath,    ///< spells the word so far over other tiles
    SwapLetter,   ///< requests a swap of the path's last tile
    GetHint,      ///< `Hintx`
    CheckWord,    ///< `CheckDict`
    ShowMeaning,  ///< of the current word of `WordsMade`
    AddWord,      ///< opens the maintenance window with the selected word
    TopTen,       ///< shows the top ten
    Statistics,   ///< `showstatx`
    Help,         ///< `Helpx`
    About,        ///< shows the about box
    AskPassword,  ///< F1: the developer's password
    ExportWords,  ///< see `Dictionary::exportWords`
};
constexpr Command lastCommand = Command::ExportWords;

/// The keys that set the drop-animation delay in developer mode.
enum class DeveloperKey { End, NumpadMinus, NumpadPlus, Home };

/// The timers that a front end runs all the time, the last one at least while the game is paused; the flow knows when a
/// tick counts.
enum class Timer {
    Red,   ///< `UpdateRedTriggerTimer`
    Push,  ///< `MoveColDownTimer`
    Clock, ///< of the clock `Dc1`
    Pause, ///< `PauseTimer`: blinks the caption while paused
};

/// Milliseconds between two ticks.
constexpr int intervalOf(Timer timer)
{
    switch (timer) {
    case Timer::Push:
        return 64'000;
    case Timer::Pause:
        return 500;
    default:
        return 1'000;
    }
}

} // namespace lexigrove
