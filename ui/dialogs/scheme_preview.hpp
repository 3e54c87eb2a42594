#pragma once

#include "settings/colour_scheme.hpp"
#include "ui/look/theme.hpp"

#include <QIcon>
#include <QSize>
#include <QWidget>

#include <optional>

namespace lexigrove
{

/// A few tiles in the colours of a scheme, shown where it is chosen.
class SchemePreview : public QWidget
{
    Q_OBJECT

public:
    static constexpr QSize iconSize{64, 16};

    explicit SchemePreview(const Theme& theme, QWidget* parent = nullptr);

    void setScheme(const ColourScheme& scheme);

    /// A scheme's background with its tiles' colours, for a list.
    static QIcon icon(const ColourScheme& scheme, double devicePixelRatio);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Theme& theme_;
    std::optional<ColourScheme> scheme_;
};

} // namespace lexigrove
