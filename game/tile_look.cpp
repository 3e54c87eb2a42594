#include "game/tile_look.hpp"

namespace lexigrove
{

namespace
{

void showEdges(BoxControl& tile, const ColourScheme& scheme)
{
    tile.BorderTop(scheme.entry(scheme_entry::tileTop));
    tile.BorderLeft(scheme.entry(scheme_entry::tileLeft));
    tile.BorderBottom(scheme.entry(scheme_entry::tileBottom));
    tile.BorderRight(scheme.entry(scheme_entry::tileRight));
}

} // namespace

void TileLook::showNormal(BoxControl& tile) const
{
    const Colour multiplier = tile.MaskColor();
    showEdges(tile, scheme_);
    tile.ForeColor(scheme_.tileLetter(multiplier));
    tile.KeepUp();
    tile.backcolor(scheme_.tileFace(multiplier));
}

void TileLook::showSelected(BoxControl& tile) const
{
    tile.ForeColor(scheme_.selectedLetter());
    tile.backcolor(scheme_.selectedFace());
    tile.KeepDown(); // last: a redraw of a held tile would show its frame again
}

} // namespace lexigrove
