#pragma once

#include "controls/box_control.hpp"
#include "ui/board/box_painter.hpp"

#include <QRectF>

class QPainter;

namespace lexigrove
{

/// Paints letter tiles: the control with its letter, the letter's value, and a mark for its multiplier, so that nothing
/// is shown by colour alone. Face and letter are painted separately, with the links between them.
class TilePainter
{
public:
    explicit TilePainter(const Theme& theme) : theme_(theme), box_(theme) {}

    void paintFace(QPainter& painter, const BoxControl& tile, const QRectF& place, bool lifted = false) const
    {
        box_.paintFace(painter, tile, place, lifted);
    }

    void paintLetter(QPainter& painter, const BoxControl& tile, const QRectF& place) const;

    /// Beside a red tile's mark: how many pushes of its column it is from being out.
    void paintRedDistance(QPainter& painter, const BoxControl& tile, const QRectF& place, int pushes) const;

    /// The bar that joins two successive tiles of a path. It reaches a little into both, but not as far as their
    /// letters.
    void paintLink(QPainter& painter, const QRectF& from, const QRectF& to) const;

    /// The dot that marks the first tile of a path.
    void paintStart(QPainter& painter, const QRectF& place) const;

    /// The frame around the tile whose letter is to be swapped.
    void paintSwapMark(QPainter& painter, const QRectF& place) const;

private:
    void paintRedMark(QPainter& painter, const QRectF& place) const;

    const Theme& theme_;
    BoxPainter box_;
};

} // namespace lexigrove
