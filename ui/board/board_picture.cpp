#include "ui/board/board_picture.hpp"

#include "game/position.hpp"
#include "game/tile_look.hpp"

#include <QPaintEvent>
#include <QPainter>

namespace lexigrove
{

BoardPicture::BoardPicture(const ColourScheme& scheme, const Theme& theme, QWidget* parent)
    : QWidget(parent), scheme_(scheme), painter_(board_, shape_, theme)
{
    setObjectName("BoardPicture");
    marks_.showsSlots = true;
}

void BoardPicture::show(const BoardPosition& position, const std::vector<int>& path)
{
    const TileLook look(scheme_);
    showOn(board_, position);
    for (BoxControl& tile : board_.Tiles)
        look.showNormal(tile);
    for (BoxControl& waiting : board_.TopDrop)
        look.showNormal(waiting);
    for (const int tile : path)
        look.showSelected(board_.tile(tile));
    marks_.path = path;
    update();
}

QSize BoardPicture::sizeHint() const
{
    constexpr double cell = 42;
    return shape_.sizeFor(cell).toSize();
}

void BoardPicture::paintEvent(QPaintEvent* event)
{
    shape_.fit(size(), devicePixelRatioF());
    const QPoint middle =
        QPointF((width() - shape_.size().width()) / 2, (height() - shape_.size().height()) / 2).toPoint();
    QPainter painter(this);
    painter.translate(middle);
    painter_.paint(painter, marks_, event->rect().translated(-middle));
}

} // namespace lexigrove
