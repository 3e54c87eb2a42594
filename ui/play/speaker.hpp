#pragma once

#include "flow/game_flow.hpp"
#include "game/game_state.hpp"

#include <QPointer>
#include <QStringList>
#include <QTimer>
#include <QWidget>

#include <string>

namespace lexigrove
{

/// The one place that speaks to assistive tools: what the status line says, the word so far, what a word brought, the
/// computer's word, the last minute of the clock, the end. Silent and idle while nobody listens.
///
/// What comes within a moment is said as one: a screen reader asks for the text later, and would miss all but the last.
class Speaker
{
public:
    explicit Speaker(const GameFlow& flow);

    /// Speaks from this window, in a widget of its own whose name is what was said last.
    void speakFrom(QWidget* window);

    void say(const QString& text);
    /// What the status line shows now; silent about a tile that has the pointer or the cursor, which tools read
    /// themselves.
    void sayStatus(const QString& text);

    /// Looks at the game after an input or a tick, and while the computer waits with its word.
    void lookAtGame();
    void lookAtComputersWord();

private:
    void lookAtWords();
    void lookAtClock();
    void speak();

    const GameFlow& flow_;
    QPointer<QWidget> voice_;
    QStringList texts_; ///< to be said together
    QTimer moment_;     ///< runs until they are
    QString word_;
    std::string begun_; ///< of the game that is known
    Prompt prompt_ = Prompt::None;
    int rows_ = 1; ///< of the words made, the headings included
    int secondsLeft_ = 0;
    bool paused_ = false;
};

} // namespace lexigrove
