#pragma once

#include <QRect>
#include <QSize>

namespace lexigrove
{

/// Where a window of this size stands beside a place that is to stay in sight, on the screen: to its right, or to its
/// left where only that has room. Where neither has, it stands at the edge of the screen on the roomier side, and is
/// made no smaller.
QRect beside(const QRect& place, const QSize& window, const QRect& screen);

} // namespace lexigrove
