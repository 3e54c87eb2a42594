#pragma once

#include <string>
#include <utility>

namespace lexigrove
{

/// How the computer picks its word.
enum class Strategy { HighestScore, LongestWord, Any };

/// The words that the computer knows, among those of the player's dictionary: all, those of level 2, or those of
/// level 1.
enum class Vocabulary { Every, Common, Simple };

/// Whether a game alone has red tiles and pushes. A relaxed one has not, and is not recorded.
enum class Pressure { On, Relaxed };

/// The preset letters: 100 letters for the board and the queue (1 to 64 fill the tiles, 65 to 100 the queue) or none,
/// and whether the score of the game may enter the top ten. A game is normal, and its score offered, only if there are
/// neither letters nor the mark.
class PresetLetters
{
public:
    static constexpr int count = 100;

    /// Letters A to Z for the next game; fewer than `count` leave the other places without a letter.
    void choose(std::string letters)
    {
        letters_ = std::move(letters);
        state_ = letters_.empty() ? State::None : State::Chosen;
    }

    /// No preset board: the next game is normal.
    void clear() { choose({}); }

    /// Marks the game as one whose score is not recorded (again); its letters are forgotten.
    void markUnrecorded()
    {
        letters_.clear();
        state_ = State::Unrecorded;
    }

    /// A game has been dealt from the letters: they do not apply to the next one.
    void dealt()
    {
        if (state_ == State::Chosen)
            state_ = State::Dealt;
    }

    /// Whether letters are waiting for the next game.
    [[nodiscard]] bool areWaiting() const { return state_ == State::Chosen; }
    [[nodiscard]] bool isNormalGame() const { return state_ == State::None; }
    [[nodiscard]] const std::string& letters() const { return letters_; }

    /// The letters, or "x" for the mark.
    [[nodiscard]] std::string text() const { return state_ == State::Unrecorded ? "x" : letters_; }

private:
    enum class State { None, Chosen, Dealt, Unrecorded };

    State state_ = State::None;
    std::string letters_;
};

/// The choices that matter beyond the options dialog.
struct GameSettings {
    static constexpr int startDelay = 250;

    /// Drop-animation delay: event-yield rounds per animation step, 0 to 32,767; 0 does not wait.
    int dropDelay = startDelay;

    Strategy strategy = Strategy::HighestScore;
    Vocabulary vocabulary = Vocabulary::Every;
    Pressure pressure = Pressure::On;

    PresetLetters presetLetters;
};

} // namespace lexigrove
