#pragma once

#include <QColor>
#include <QLabel>

namespace lexigrove
{

/// A label whose text is as large as its room allows, up to a size of its own.
class FittingLabel : public QLabel
{
    Q_OBJECT

public:
    /// `largest` in pixels; `letterSpacing` in parts of the text's size.
    FittingLabel(double largest, double letterSpacing, QWidget* parent);

    void setColour(const QColor& colour);

    /// What is shown, smaller and quieter, while there is no text.
    void setPlaceholder(const QString& text, const QColor& colour);

    void setLargest(double largest);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QFont fontOf(double size) const;

    double largest_;
    double letterSpacing_;
    QColor colour_;
    QString placeholder_;
    QColor placeholderColour_;
};

} // namespace lexigrove
