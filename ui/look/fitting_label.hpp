#pragma once

#include <QColor>
#include <QLabel>

namespace lexigrove
{

/// A label whose text is as large as fits, up to a maximum.
class FittingLabel : public QLabel
{
    Q_OBJECT

public:
    /// `largest` is in pixels, `letterSpacing` a fraction of the text's size.
    FittingLabel(double largest, double letterSpacing, QWidget* parent);

    void setColour(const QColor& colour);

    /// The text shown, smaller and less prominent, while there is none.
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
