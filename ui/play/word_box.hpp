#pragma once

#include "game/game_state.hpp"
#include "ui/look/fitting_label.hpp"
#include "ui/look/theme.hpp"

#include <QWidget>

namespace lexigrove
{

/// The word being built with its score: `WordTried` and `CurrScore`, framed in the accent; in the computer's colours
/// during its turn.
class WordBox : public QWidget
{
    Q_OBJECT

public:
    WordBox(const GameState& state, const Theme& theme, QWidget* parent);

    void synchronise();

    /// The size of the word's letters in pixels.
    void setLetterSize(double size);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void applyColours();

    const GameState& state_;
    const Theme& theme_;
    FittingLabel* WordTried;
    FittingLabel* CurrScore;
    Colour wordBack_ = 0;
    Colour wordFore_ = 0;
    Colour scoreBack_ = 0;
};

} // namespace lexigrove
