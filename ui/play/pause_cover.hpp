#pragma once

#include "ui/look/theme.hpp"

#include <QWidget>

namespace lexigrove
{

/// Covers a part of the window while the game is paused. A click on it resumes.
class PauseCover : public QWidget
{
    Q_OBJECT

public:
    /// `hint` is a less prominent line below the caption.
    PauseCover(const Theme& theme, const QString& hint, QWidget* parent);

    /// The blinking caption, empty in its off phase.
    void setCaption(const QString& caption);
    [[nodiscard]] const QString& caption() const { return caption_; }

signals:
    void clicked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* /*event*/) override {} ///< accepted: nothing below sees it
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    const Theme& theme_;
    QString caption_;
    const QString hint_;
};

} // namespace lexigrove
