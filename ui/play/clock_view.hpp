#pragma once

#include "controls/dc.hpp"
#include "ui/look/theme.hpp"

#include <QWidget>

#include <cstdint>

namespace lexigrove
{

/// The face of the clock `Dc1`, as large as fits. It never takes the focus by itself; a container that gives it the
/// focus makes it expire.
class ClockView : public QWidget
{
    Q_OBJECT

public:
    ClockView(const Dc& clock, QWidget* parent);

    /// Repaints when the clock shows something else.
    void synchronise();

signals:
    void focusReceived();

protected:
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    const Dc& clock_;
    std::uint32_t shownRevision_ = 0;
};

/// The frame `Frame10` around the clock, in the clock's own background colour.
class ClockFrame : public QWidget
{
    Q_OBJECT

public:
    ClockFrame(const Dc& clock, const Theme& theme, QWidget* parent);

    void synchronise();
    [[nodiscard]] ClockView& view() { return *view_; }

    [[nodiscard]] QSize sizeHint() const override;

signals:
    void released(Qt::MouseButton button);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* /*event*/) override {} ///< accepted, so that the release comes here
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    const Dc& clock_;
    const Theme& theme_;
    ClockView* view_;
    std::uint32_t shownRevision_ = 0;
};

} // namespace lexigrove
