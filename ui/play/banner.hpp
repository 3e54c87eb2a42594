#pragma once

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

    /// Shows a text, and below it a score that counts up where the desktop shows animations.
    void tell(const QString& text, std::optional<int> score = {});

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Theme& theme_;
    QString text_;
    std::optional<int> score_; ///< as far as it is counted
};

} // namespace lexigrove
