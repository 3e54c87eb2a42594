#pragma once

#include "ui/look/theme.hpp"

#include <QWidget>

#include <cstdint>

namespace lexigrove
{

class GameFlow;

/// The face of the clock `Dc1`, as large as fits. Digits too close to their panel's colour are painted in a shade that
/// reads; the clock's own colours stay. With "DEFAULT", they are painted in the window's accent. It never takes the
/// focus by itself; a container that gives it the focus makes it expire.
class ClockView : public QWidget
{
    Q_OBJECT

public:
    ClockView(GameFlow& flow, const Theme& theme, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    GameFlow& flow_;
    const Theme& theme_;
};

/// The frame `Frame10` around the clock, in the clock's own background colour.
class ClockFrame : public QWidget
{
    Q_OBJECT

public:
    ClockFrame(GameFlow& flow, const Theme& theme, QWidget* parent);

    /// Repaints when the clock shows something else.
    void synchronise();

    /// For those who hear it: "Clock 09:59".
    [[nodiscard]] QString time() const;

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* /*event*/) override {} ///< accepted, so that the release comes here
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    GameFlow& flow_;
    const Theme& theme_;
    ClockView* view_;
    std::uint32_t shownRevision_ = 0;
};

} // namespace lexigrove
