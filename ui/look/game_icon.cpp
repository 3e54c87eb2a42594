#include "ui/look/game_icon.hpp"

#include <QPainter>
#include <QSvgRenderer>

namespace lexigrove
{

void paintGameIcon(QPainter& painter, const QRectF& place)
{
    QSvgRenderer(QStringLiteral(":/lexigrove.svg")).render(&painter, place);
}

QIcon gameIcon()
{
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paintGameIcon(painter, pixmap.rect());
        icon.addPixmap(pixmap);
    }
    return icon;
}

} // namespace lexigrove
