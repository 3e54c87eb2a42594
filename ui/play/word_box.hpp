#pragma once

#include "flow/game_flow.hpp"
#include "ui/look/theme.hpp"

#include <QWidget>

#include <optional>
#include <string>

class QLabel;
class QTimer;

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

    /// The word shakes its head, and says why for a while: it is none, or a letter cannot follow.
    void refuse(const QString& why);

    /// The size of the word's letters in pixels.
    void setLetterSize(double size);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void lookForNewWord();

    const GameFlow& flow_;
    const Theme& theme_;
    FittingLabel* WordTried;
    FittingLabel* CurrScore;
    QLabel* refusal_;
    QTimer* refusalTime_;
    QTimer* momentTime_; ///< runs while a word that was made says what it brought
    QString moment_;
    std::string begun_; ///< of the game that is known
    std::size_t turns_ = 0;
    bool computersTurn_ = false;
    std::optional<Colour> scoreBack_; ///< of the bonus tile that multiplies the score
};

} // namespace lexigrove
