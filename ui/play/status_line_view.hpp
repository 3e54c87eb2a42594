#pragma once

#include "flow/game_flow.hpp"
#include "platform/status_line.hpp"
#include "ui/look/theme.hpp"

#include <QLabel>
#include <QWidget>

class QTimer;

namespace lexigrove
{

/// The line at the bottom: the icon `Warn`, the label `Label1`, and in developer mode `Label4` below them.
class StatusLineView : public QWidget
{
    Q_OBJECT

public:
    StatusLineView(const StatusLine& status, const GameFlow& flow, const Theme& theme, QWidget* parent);

    void synchronise();

signals:
    void shows(const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void elide();
    void setLoud(bool loud);

    const StatusLine& status_;
    const GameFlow& flow_;
    const Theme& theme_;
    QWidget* Warn;
    QLabel* Label1;
    QLabel* Label4;
    QTimer* newsTime_; ///< runs while the last news stands
    unsigned told_ = 0;
    QString full_; ///< the whole message, of which the label may show only the beginning
};

} // namespace lexigrove
