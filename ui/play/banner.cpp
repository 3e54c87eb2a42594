#include "ui/play/banner.hpp"

#include <QPainter>
#include <QStyle>
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

void Banner::tell(const QString& text, std::optional<int> score)
{
    text_ = text;
    score_ = score;
    setAccessibleName(score ? tr("%1 Your score: %2").arg(text).arg(*score) : text);
    if (score && style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this) > 0) {
        auto* const counting = new QVariantAnimation(this);
        counting->setDuration(countingTime);
        counting->setStartValue(0);
        counting->setEndValue(*score);
        counting->setEasingCurve(QEasingCurve::OutCubic);
        connect(counting, &QVariantAnimation::valueChanged, this, [this](const QVariant& value) {
            score_ = value.toInt();
            update();
        });
        counting->start(QAbstractAnimation::DeleteWhenStopped);
    }
    show();
    raise();
    update();
}

void Banner::paintEvent(QPaintEvent* /*event*/)
{
    const WindowColours& colours = theme_.colours();
    QPainter painter(this);
    constexpr double frameWidth = 2;
    Theme::paintCard(painter, rect(), colours.card, colours.accent, frameWidth);
    const QRect inside = rect().adjusted(Theme::gap, Theme::grid, -Theme::gap, -Theme::grid);
    painter.setPen(toQColor(colours.cardText));
    painter.setFont(Theme::fontOfSize(std::clamp(height() / 5.0, 16.0, 30.0), true));
    const int share = score_ ? inside.height() / 2 : inside.height();
    painter.drawText(QRect(inside.topLeft(), QSize(inside.width(), share)), Qt::AlignCenter | Qt::TextWordWrap, text_);
    if (!score_)
        return;
    painter.setPen(toQColor(colours.accent));
    painter.setFont(Theme::fontOfSize(std::clamp(height() / 3.0, 24.0, 64.0), true));
    painter.drawText(QRect(inside.left(), inside.top() + share, inside.width(), inside.height() - share),
                     Qt::AlignCenter, QString::number(*score_));
}

} // namespace lexigrove
