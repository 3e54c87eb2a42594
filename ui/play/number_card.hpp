#pragma once

#include "ui/look/theme.hpp"

#include <QFrame>
#include <QLabel>

#include <string>

namespace lexigrove
{

/// A number of the game on a card, under its caption.
class NumberCard : public QFrame
{
    Q_OBJECT

public:
    /// `name` is the object name of the number's label, `caption` what it counts.
    NumberCard(const QString& name, const QString& caption, const QString& toolTip, QWidget* parent);

    void setNumber(const std::string& number);
    void setNumberColour(const QColor& colour);

private:
    QLabel* number_;
};

} // namespace lexigrove
