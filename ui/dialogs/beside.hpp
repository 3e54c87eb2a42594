#pragma once

#include <QRect>
#include <QSize>

namespace lexigrove
{

/// Where a window of this size goes on the screen beside a place that must stay visible: to its right, or to its left
/// if there is room only there. If there is room on neither side, it goes to the edge of the screen on the roomier side
/// and is not made smaller.
QRect beside(const QRect& place, const QSize& window, const QRect& screen);

} // namespace lexigrove
