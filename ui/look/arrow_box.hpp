#pragma once

#include "ui/look/theme.hpp"

#include <QComboBox>

namespace lexigrove
{

/// A combo box with its arrow in the window colours.
class ArrowBox : public QComboBox
{
public:
    explicit ArrowBox(const Theme& theme);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Theme& theme_;
};

} // namespace lexigrove
