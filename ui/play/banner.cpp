#include "ui/play/banner.hpp"

#include "ui/look/text.hpp"

#include <QPainter>
#include <QVariantAnimation>

#include <algorithm>

namespace lexigrove
{

Banner::Banner(const Theme& theme, const char* objectName, QWidget* parent) : QWidget(parent), theme_(theme)
{
    setObjectName(objectName);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void Banner::tell(const QString& text)
{
    text_ = text;
    score_.reset();
    memorable_.clear();
    setAccessibleName(text);
    show();
    raise();
    update();
}

void Banner::tell(const EndOfGame& end)
{
    tell(toQString(end.reason));
    score_ = end.score;
    QStringList lines;
    for (const std::string& line : end.memorable)
        lines.append(toQString(line));
    memorable_ = lines.join('\n');
    setAccessibleName(tr("%1 Your score: %2").arg(text_).arg(end.score));
    if (Theme::showsAnimations())
        countUp(end.score);
}

void Banner::countUp(int score)
{
    auto* const counting = new QVariantAnimation(this);
    counting->setDuration(countingTime);
    counting->setStartValue(0);
    counting->setEndValue(score);
    counting->setEasingCurve(QEasingCurve::OutCubic);
    connect(counting, &QVariantAnimation::valueChanged, this, [this](const QVariant& value) {
        score_ = value.toInt();
        update();
    });
    counting->start(QAbstractAnimation::DeleteWhenStopped);
}

void Banner::paintEvent(QPaintEvent* /*event*/)
{
    const WindowColours& colours = theme_.colours();
    QPainter painter(this);
    constexpr double frameWidth = 2;
    Theme::paintCard(painter, rect(), colours.card, colours.accent, frameWidth);
    const QRect inside = rect().adjusted(Theme::gap, Theme::grid, -Theme::gap, -Theme::grid);
    // One text alone, or the reason and the score as a quarter and a third of the height, and the rest for the others.
    const int textHeight = score_ ? inside.height() / 4 : inside.height();
    const int scoreHeight = inside.height() / 3;
    painter.setPen(toQColor(colours.cardText));
    double size = std::clamp(height() / (score_ ? 8.0 : 5.0), 16.0, 30.0);
    if (score_) // one line
        size *= std::min(1.0, inside.width() / QFontMetricsF(Theme::fontOfSize(size, true)).horizontalAdvance(text_));
    painter.setFont(Theme::fontOfSize(size, true));
    painter.drawText(QRect(inside.topLeft(), QSize(inside.width(), textHeight)), Qt::AlignCenter | Qt::TextWordWrap,
                     text_);
    if (!score_)
        return;
    painter.setFont(Theme::font(Theme::quietTextSize + 1));
    painter.drawText(inside.adjusted(0, textHeight + scoreHeight, 0, 0), Qt::AlignCenter | Qt::TextWordWrap,
                     memorable_);
    painter.setPen(toQColor(colours.accent));
    painter.setFont(Theme::fontOfSize(std::clamp(height() / 4.5, 24.0, 64.0), true));
    painter.drawText(QRect(inside.left(), inside.top() + textHeight, inside.width(), scoreHeight), Qt::AlignCenter,
                     QString::number(*score_));
}

} // namespace lexigrove
