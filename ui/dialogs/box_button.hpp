#pragma once

#include "controls/box_control.hpp"
#include "ui/look/theme.hpp"

#include <QAbstractButton>

namespace lexigrove
{

/// A `BoxControl` of a dialog as a button. Its caption, tool tip, colours and state are the model's; presses, releases,
/// keys and the focus go to the model. `clicked()` means a mouse button released over it, or the space bar.
class BoxButton : public QAbstractButton
{
    Q_OBJECT

public:
    /// `control` and `theme` outlive the button. The control gets the size of the button.
    BoxButton(BoxControl& control, const Theme& theme, QWidget* parent = nullptr);

    /// Shows what the model now says.
    void synchronise();

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    BoxControl& control_;
    const Theme& theme_;
};

} // namespace lexigrove
