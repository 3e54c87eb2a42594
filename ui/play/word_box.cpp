#include "ui/play/word_box.hpp"

#include "settings/readable_colours.hpp"
#include "ui/look/text.hpp"

#include <QHBoxLayout>
#include <QPainter>

namespace lexigrove
{

namespace
{

constexpr double wordSize = 28;
constexpr double scoreShare = 0.78; ///< the score's letters, of the word's
constexpr double frameWidth = 2;

} // namespace

WordBox::WordBox(const GameState& state, const Theme& theme, QWidget* parent)
    : QWidget(parent),
      state_(state),
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
}

void WordBox::setLetterSize(double size)
{
    WordTried->setLargest(size);
    CurrScore->setLargest(size * scoreShare);
}

void WordBox::synchronise()
{
    const QString word = toQString(state_.WordTried.Caption);
    if (word != WordTried->text())
        WordTried->setText(word);
    const QString score = toQString(state_.CurrScore.Caption);
    if (score != CurrScore->text()) {
        CurrScore->setText(score);
        const int width = score.isEmpty() ? 0 : CurrScore->sizeHint().width() + 2 * Theme::grid;
        CurrScore->setFixedWidth(width);
    }
    const bool same = state_.WordTried.backColor == wordBack_ && state_.WordTried.foreColor == wordFore_ &&
                      state_.CurrScore.backColor == scoreBack_;
    if (same)
        return;
    wordBack_ = state_.WordTried.backColor;
    wordFore_ = state_.WordTried.foreColor;
    scoreBack_ = state_.CurrScore.backColor;
    applyColours();
}

void WordBox::applyColours()
{
    const WindowColours& colours = theme_.colours();
    WordTried->setColour(theme_.colour(wordFore_));
    WordTried->setPlaceholder(tr("Click or type touching letters"), toQColor(colours.cardQuietText));
    CurrScore->setColour(toQColor(isSystemColour(scoreBack_) ? colours.accent : readableOn(scoreBack_)));
    update();
}

void WordBox::paintEvent(QPaintEvent* /*event*/)
{
    const WindowColours& colours = theme_.colours();
    QPainter painter(this);
    const Colour face = isSystemColour(wordBack_) ? colours.card : wordBack_;
    Theme::paintCard(painter, rect(), face, colours.accent, frameWidth);
    if (isSystemColour(scoreBack_) || CurrScore->text().isEmpty())
        return;
    // The score stands on the colour of the bonus tile that multiplies it.
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(toQColor(scoreBack_));
    painter.drawRoundedRect(CurrScore->geometry(), Theme::radius - frameWidth, Theme::radius - frameWidth);
}

} // namespace lexigrove
