#pragma once

#include "platform/screen.hpp"
#include "ui/look/theme.hpp"

#include <QString>
#include <QWidget>

#include <optional>

namespace lexigrove
{

/// Large letters over a part of the board: what nobody may miss. Clicks go through it.
class Banner : public QWidget
{
    Q_OBJECT

public:
    /// How long a score counts up, in milliseconds.
    static constexpr int countingTime = 1'200;

    Banner(const Theme& theme, const char* objectName, QWidget* parent);

    /// Shows a text.
    void tell(const QString& text);
    /// Shows why a game is over, the score, which counts up where the desktop shows animations, and what to remember.
    void tell(const EndOfGame& end);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void countUp(int score);

    const Theme& theme_;
    QString text_;
    QString memorable_;        ///< a line each
    std::optional<int> score_; ///< as far as it is counted
};

} // namespace lexigrove
