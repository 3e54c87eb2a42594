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
    PauseCover(const Theme& theme, QWidget* parent);

    /// The blinking caption, empty in its off phase, and a less prominent line below it.
    void setCaption(const QString& caption, const QString& hint = {});
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
    QString hint_;
};

} // namespace lexigrove
