#pragma once

#include "flow/game_flow.hpp"
#include "ui/look/theme.hpp"

#include <QWidget>

#include <optional>

namespace lexigrove
{

class FittingLabel;

/// The word being built with its score: `WordTried` and `CurrScore`, framed in the accent; in the computer's colours
/// during its turn.
class WordBox : public QWidget
{
    Q_OBJECT

public:
    WordBox(const GameFlow& flow, const Theme& theme, QWidget* parent);

    void synchronise();

    /// The word shakes its head: a letter cannot follow.
    void shake();

    /// The size of the word's letters in pixels.
    void setLetterSize(double size);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const GameFlow& flow_;
    const Theme& theme_;
    FittingLabel* WordTried;
    FittingLabel* CurrScore;
    bool computersTurn_ = false;
    std::optional<Colour> scoreBack_; ///< of the bonus tile that multiplies the score
};

} // namespace lexigrove
