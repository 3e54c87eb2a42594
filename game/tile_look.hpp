#pragma once

#include "controls/box_control.hpp"
#include "settings/colour_scheme.hpp"

namespace lexigrove
{

/// How tiles look in the colours of the current scheme.
class TileLook
{
public:
    explicit TileLook(const ColourScheme& scheme) : scheme_(scheme) {}

    /// The look for the tile's multiplier: face, letter and edges, raised.
    void showNormal(BoxControl& tile) const;

    /// The look of a tile in the path: face and letter swap colours, and the tile is held down.
    void showSelected(BoxControl& tile) const;

private:
    const ColourScheme& scheme_;
};

} // namespace lexigrove
