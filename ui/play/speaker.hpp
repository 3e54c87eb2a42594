#pragma once

#include "flow/game_flow.hpp"

#include <QPointer>
#include <QString>
#include <QWidget>

namespace lexigrove
{

/// The one place that speaks to assistive tools: what the status line says, the word so far, what a word brought, the
/// computer's word, the last minute of the clock, the end. Silent and idle while nobody listens.
class Speaker
{
public:
    /// `voice` is the widget whose name is what was said last; it outlives the speaker's use.
    explicit Speaker(const GameFlow& flow) : flow_(flow) {}
    void setVoice(QWidget* voice) { voice_ = voice; }

    /// Says a text that differs from the last one.
    void say(const QString& text);

    /// Looks at the game after an input or a tick.
    void lookAtGame();

private:
    void lookAtClock();

    const GameFlow& flow_;
    QPointer<QWidget> voice_;
    QString said_;
    QString word_;
    int rows_ = 1; ///< of the words made, the headings included
    int secondsLeft_ = 0;
};

} // namespace lexigrove
