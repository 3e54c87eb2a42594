#include "ui/play/word_box.hpp"

#include "game/game_state.hpp"
#include "game/selection.hpp"
#include "settings/colour_scheme.hpp"
#include "settings/readable_colours.hpp"
#include "ui/look/text.hpp"

#include <QHBoxLayout>
#include <QPainter>

namespace lexigrove
{

namespace
{

constexpr double wordSize = 28;
constexpr double scoreShare = 0.78; ///< size of the score's digits relative to the word's letters
constexpr double frameWidth = 2;

} // namespace

WordBox::WordBox(const GameFlow& flow, const Theme& theme, QWidget* parent)
    : QWidget(parent),
      flow_(flow),
      theme_(theme),
      WordTried(new FittingLabel(wordSize, 0.08, this)),
      CurrScore(new FittingLabel(wordSize * scoreShare, 0, this))
{
    WordTried->setObjectName("WordTried");
    WordTried->setAccessibleName(tr("The word so far"));
    CurrScore->setObjectName("CurrScore");
    CurrScore->setAccessibleName(tr("Its score"));
    CurrScore->setAlignment(Qt::AlignHCenter);
    CurrScore->setToolTip(tr("What this word is worth"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(2 * Theme::grid, Theme::grid, Theme::grid, Theme::grid);
    row->addWidget(WordTried, 1);
    row->addWidget(CurrScore);
    connect(&theme, &Theme::changed, this, &WordBox::applyColours);
    applyColours();
}

void WordBox::setLetterSize(double size)
{
    WordTried->setLargest(size);
    CurrScore->setLargest(size * scoreShare);
}

void WordBox::synchronise()
{
    const GameState& state = flow_.view().state;
    const QString word = toQString(flow_.view().selection.wordTried());
    if (word != WordTried->text())
        WordTried->setText(word);
    const QString score = toQString(state.currScoreText());
    if (score != CurrScore->text()) {
        CurrScore->setText(score);
        const int width = score.isEmpty() ? 0 : CurrScore->sizeHint().width() + 2 * Theme::grid;
        CurrScore->setFixedWidth(width);
    }
    std::optional<Colour> scoreBack;
    if (state.currScore && multiplier::isBonus(state.currScore->best))
        scoreBack = flow_.view().scheme.tileFace(state.currScore->best);
    if (state.computerTurnInProgress == computersTurn_ && scoreBack == scoreBack_)
        return;
    computersTurn_ = state.computerTurnInProgress;
    scoreBack_ = scoreBack;
    applyColours();
}

void WordBox::applyColours()
{
    const WindowColours& colours = theme_.colours();
    WordTried->setColour(toQColor(computersTurn_ ? colours.computerFore : colours.cardText));
    WordTried->setPlaceholder(tr("Click or type touching letters"), toQColor(colours.cardQuietText));
    CurrScore->setColour(toQColor(scoreBack_ ? readableOn(*scoreBack_) : colours.accent));
    update();
}

void WordBox::paintEvent(QPaintEvent* /*event*/)
{
    const WindowColours& colours = theme_.colours();
    QPainter painter(this);
    Theme::paintCard(painter, rect(), computersTurn_ ? colours.computerBack : colours.card, colours.accent, frameWidth);
    if (!scoreBack_)
        return;
    // The score is on the colour of the bonus tile that multiplies it.
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(toQColor(*scoreBack_));
    painter.drawRoundedRect(CurrScore->geometry(), Theme::radius - frameWidth, Theme::radius - frameWidth);
}

} // namespace lexigrove
