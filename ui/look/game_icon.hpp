#pragma once

#include <QIcon>
#include <QRectF>

class QPainter;

namespace lexigrove
{

/// The game's sign, a hexagonal tile with an L and a leaf, as data/lexigrove.svg draws it for the desktop.
void paintGameIcon(QPainter& painter, const QRectF& place);

QIcon gameIcon();

} // namespace lexigrove
