#pragma once

#include <QIcon>
#include <QRectF>

class QPainter;

namespace lexigrove
{

/// The game's sign, a hexagonal tile with an L and a leaf, drawn by data/lexigrove.svg.
void paintGameIcon(QPainter& painter, const QRectF& place);

QIcon gameIcon();

} // namespace lexigrove
