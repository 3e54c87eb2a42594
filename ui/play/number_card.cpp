#include "ui/play/number_card.hpp"

#include "ui/look/text.hpp"

#include <QVBoxLayout>

namespace lexigrove
{

namespace
{

constexpr double numberSize = 24;

} // namespace

NumberCard::NumberCard(const QString& name, const QString& caption, const QString& toolTip, QWidget* parent)
    : QFrame(parent), number_(new QLabel(this))
{
    setProperty("card", true);
    setToolTip(toolTip);
    auto* heading = new QLabel(caption, this);
    heading->setProperty("quiet", true);
    heading->setFont(Theme::font(Theme::smallestText));
    number_->setObjectName(name);
    number_->setAccessibleName(caption);
    number_->setFont(Theme::font(numberSize, true));
    number_->setTextFormat(Qt::PlainText);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Theme::grid + Theme::grid / 2, Theme::grid - 2, Theme::grid, Theme::grid - 2);
    column->setSpacing(0);
    column->addWidget(heading);
    column->addWidget(number_, 1, Qt::AlignVCenter);
}

void NumberCard::setNumber(const std::string& number)
{
    const QString text = toQString(number);
    if (text != number_->text())
        number_->setText(text);
}

void NumberCard::setNumberColour(const QColor& colour)
{
    number_->setStyleSheet(QStringLiteral("color: %1").arg(colour.name()));
}

} // namespace lexigrove
