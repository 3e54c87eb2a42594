#include "ui/play/word_box.hpp"

#include "dictionary/letter_tables.hpp"
#include "game/game_state.hpp"
#include "game/selection.hpp"
#include "settings/colour_scheme.hpp"
#include "settings/readable_colours.hpp"
#include "ui/look/text.hpp"

#include <QFontMetricsF>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QTimer>
#include <QVariantAnimation>

#include <cmath>
#include <numbers>

namespace lexigrove
{

namespace
{

constexpr double wordSize = 28;
constexpr double scoreShare = 0.78; ///< size of the score's digits relative to the word's letters
constexpr double frameWidth = 2;

/// "SNOOZE  15 x 2 = 30"
QString momentText(const Turn& turn)
{
    const int sum = letterSum(turn.word);
    QString text = toQString(turn.word) + "  " + QString::number(sum);
    if (turn.score != sum && sum > 0)
        text += QString(" \u00D7 %1 = %2").arg(turn.score / sum).arg(turn.score);
    return text;
}

/// Every new name is reported to assistive tools.
void nameWithValue(QWidget& widget, const QString& name)
{
    if (name != widget.accessibleName())
        widget.setAccessibleName(name);
}

} // namespace

/// A label whose text is as large as fits, up to a maximum.
class FittingLabel : public QLabel
{
public:
    /// `largest` is in pixels, `letterSpacing` a fraction of the text's size.
    FittingLabel(double largest, double letterSpacing, QWidget* parent)
        : QLabel(parent), largest_(largest), letterSpacing_(letterSpacing)
    {
        setTextFormat(Qt::PlainText);
    }

    void setColour(const QColor& colour)
    {
        if (colour == colour_)
            return;
        colour_ = colour;
        update();
    }

    /// Moves the text aside for a moment, to and fro; a desktop without animations leaves it where it is.
    void shake()
    {
        if (!Theme::showsAnimations())
            return;
        auto* const shaking = new QVariantAnimation(this);
        shaking->setDuration(240);
        shaking->setStartValue(0.0);
        shaking->setEndValue(1.0);
        connect(shaking, &QVariantAnimation::valueChanged, this, [this](const QVariant& share) {
            constexpr double reach = 7;
            aside_ = reach * (1 - share.toDouble()) * std::sin(share.toDouble() * 6 * std::numbers::pi);
            update();
        });
        shaking->start(QAbstractAnimation::DeleteWhenStopped);
    }

    /// The text shown, smaller and less prominent, while there is none.
    void setPlaceholder(const QString& text) { placeholder_ = text; }

    void setLargest(double largest)
    {
        largest_ = largest;
        updateGeometry();
        update();
    }

    [[nodiscard]] QSize sizeHint() const override
    {
        const double width = text().isEmpty() ? 0 : QFontMetricsF(fontOf(largest_)).horizontalAdvance(text());
        // By the font that is loaded anyway: looking for another size takes time at the start.
        const double height = QFontMetricsF(font()).height() * largest_ / QFontInfo(font()).pixelSize();
        return {static_cast<int>(std::ceil(width)), static_cast<int>(std::ceil(height))};
    }

    [[nodiscard]] QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        const Qt::Alignment place = alignment() | Qt::AlignVCenter;
        if (text().isEmpty()) {
            painter.setPen(palette().color(QPalette::PlaceholderText));
            painter.drawText(rect(), static_cast<int>(place) | Qt::TextWordWrap, placeholder_);
            return;
        }
        const double wanted = QFontMetricsF(fontOf(largest_)).horizontalAdvance(text());
        const double size = wanted > width() ? std::floor(largest_ * width() / wanted) : largest_;
        painter.setFont(fontOf(size));
        painter.setPen(colour_);
        painter.drawText(QRectF(rect()).translated(aside_, 0), static_cast<int>(place), text());
    }

private:
    [[nodiscard]] QFont fontOf(double size) const
    {
        QFont font = Theme::fontOfSize(size, true);
        font.setLetterSpacing(QFont::AbsoluteSpacing, size * letterSpacing_);
        return font;
    }

    double largest_;
    double letterSpacing_;
    double aside_ = 0;
    QColor colour_;
    QString placeholder_;
};

WordBox::WordBox(const GameFlow& flow, const Theme& theme, QWidget* parent)
    : QWidget(parent),
      flow_(flow),
      theme_(theme),
      WordTried(new FittingLabel(wordSize, 0.08, this)),
      CurrScore(new FittingLabel(wordSize * scoreShare, 0, this)),
      refusal_(new QLabel(this)),
      refusalTime_(new QTimer(this)),
      momentTime_(new QTimer(this))
{
    WordTried->setObjectName("WordTried");
    WordTried->setPlaceholder(tr("Click or type touching letters"));
    CurrScore->setObjectName("CurrScore");
    CurrScore->setAlignment(Qt::AlignHCenter);
    CurrScore->setToolTip(tr("What this word is worth"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(2 * Theme::grid, Theme::grid, Theme::grid, Theme::grid);
    row->addWidget(WordTried, 1);
    row->addWidget(refusal_);
    row->addWidget(CurrScore);
    refusal_->setObjectName("Refusal");
    refusal_->setFont(Theme::font(Theme::quietTextSize, true));
    refusal_->hide();
    refusalTime_->setSingleShot(true);
    refusalTime_->setInterval(1'800);
    connect(refusalTime_, &QTimer::timeout, refusal_, &QWidget::hide);
    momentTime_->setSingleShot(true);
    connect(momentTime_, &QTimer::timeout, this, &WordBox::synchronise);
}

void WordBox::refuse(const QString& why)
{
    synchronise(); // what is refused may have taken an earlier word's place
    WordTried->shake();
    refusal_->setText(why);
    refusal_->show();
    refusalTime_->start();
}

/// A word that enters says what it brought, a long one for longer.
void WordBox::lookForNewWord()
{
    const GameState& state = flow_.view().state;
    if (state.begun == begun_ && state.turns.size() > turns_) {
        const Turn& turn = state.turns.back();
        moment_ = momentText(turn);
        momentTime_->start(700 + 150 * static_cast<int>(turn.word.size()));
    }
    begun_ = state.begun;
    turns_ = state.turns.size();
}

void WordBox::setLetterSize(double size)
{
    WordTried->setLargest(size);
    CurrScore->setLargest(size * scoreShare);
}

void WordBox::synchronise()
{
    const GameState& state = flow_.view().state;
    const WindowColours& colours = theme_.colours();
    lookForNewWord();
    const QString word = toQString(flow_.view().selection.wordTried());
    const bool tellsWord = momentTime_->isActive() && word.isEmpty() && !state.computerTurnInProgress;
    const QString shown = tellsWord ? moment_ : word;
    if (shown != WordTried->text()) {
        WordTried->setText(shown);
        refusal_->hide();
    }
    const bool isPrompt = flow_.view().selection.isEmpty();
    nameWithValue(*WordTried, word.isEmpty() ? tr("No word yet")
                              : isPrompt     ? word
                                             : tr("The word so far, %1").arg(word));
    const QString score = toQString(state.currScoreText());
    if (score != CurrScore->text()) {
        CurrScore->setText(score);
        nameWithValue(*CurrScore, score.isEmpty() ? QString() : tr("Its score, %1").arg(score));
        const int width = score.isEmpty() ? 0 : CurrScore->sizeHint().width() + 2 * Theme::grid;
        CurrScore->setFixedWidth(width);
    }
    std::optional<Colour> scoreBack;
    if (state.currScore && multiplier::isBonus(state.currScore->best))
        scoreBack = flow_.view().scheme.tileFace(state.currScore->best);
    if (state.computerTurnInProgress != computersTurn_ || scoreBack != scoreBack_)
        update();
    computersTurn_ = state.computerTurnInProgress;
    scoreBack_ = scoreBack;
    WordTried->setColour(toQColor(computersTurn_ ? colours.computerFore
                                  : tellsWord    ? colours.accent
                                                 : colours.cardText));
    CurrScore->setColour(toQColor(scoreBack_ ? readableOn(*scoreBack_) : colours.accent));
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
