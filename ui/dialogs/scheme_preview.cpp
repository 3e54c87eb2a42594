#include "ui/dialogs/scheme_preview.hpp"

#include "game/tile_look.hpp"
#include "ui/board/box_painter.hpp"

#include <QPainter>

#include <array>

namespace lexigrove
{

namespace
{

constexpr int tileSize = 40;
constexpr int tileGap = 4;

struct PreviewTile {
    const char* letter;
    Colour multiplier;
    bool selected;
};
constexpr std::array<PreviewTile, 6> previewTiles{{{"G", multiplier::plain, false},
                                                   {"R", multiplier::plain, true},
                                                   {"O", multiplier::doubled, false},
                                                   {"V", multiplier::tripled, false},
                                                   {"E", multiplier::quadrupled, false},
                                                   {"S", multiplier::red, false}}};

} // namespace

SchemePreview::SchemePreview(const Theme& theme, QWidget* parent) : QWidget(parent), theme_(theme)
{
    setObjectName("SchemePreview");
}

void SchemePreview::setScheme(const ColourScheme& scheme)
{
    scheme_.emplace(scheme);
    update();
}

QSize SchemePreview::sizeHint() const
{
    const int count = static_cast<int>(previewTiles.size());
    return {count * (tileSize + tileGap) + 3 * tileGap, tileSize + 4 * tileGap};
}

void SchemePreview::paintEvent(QPaintEvent*)
{
    if (!scheme_)
        return;
    QPainter painter(this);
    const WindowColours colours = deriveWindowColours(*scheme_);
    theme_.paintCard(painter, rect(), colours.background, colours.line);

    const BoxPainter boxes(theme_);
    const TileLook look(*scheme_);
    const int count = static_cast<int>(previewTiles.size());
    int left = (width() - count * (tileSize + tileGap) + tileGap) / 2;
    for (const PreviewTile& shown : previewTiles) {
        BoxControl tile;
        tile.Move(0, 0, tileSize * unitsPerPixel, tileSize * unitsPerPixel);
        tile.Caption(shown.letter);
        tile.FontBold(true);
        tile.BorderWidth(2);
        tile.MaskColor(shown.multiplier);
        look.showNormal(tile);
        if (shown.selected)
            look.showSelected(tile);
        const QRectF place(left, (height() - tileSize) / 2.0, tileSize, tileSize);
        boxes.paintFace(painter, tile, place);
        boxes.paintCaption(painter, tile, place, tileSize / 2.0);
        left += tileSize + tileGap;
    }
}

QIcon SchemePreview::icon(const ColourScheme& scheme, double devicePixelRatio)
{
    QPixmap pixmap(iconSize * devicePixelRatio);
    pixmap.setDevicePixelRatio(devicePixelRatio);
    pixmap.fill(toQColor(scheme.plain(scheme_entry::background)));
    QPainter painter(&pixmap);
    constexpr int margin = 3;
    constexpr int side = 10;
    int left = margin;
    for (const Colour multiplier : multiplier::all) {
        painter.fillRect(left, margin, side, side, toQColor(scheme.tileFace(multiplier)));
        left += side + 2;
    }
    QIcon icon(pixmap);
    icon.addPixmap(pixmap, QIcon::Selected); // a selected row does not change the colours
    return icon;
}

} // namespace lexigrove
