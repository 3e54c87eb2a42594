#pragma once

#include "controls/box_control.hpp"
#include "ui/look/theme.hpp"

#include <QRectF>

class QPainter;

namespace lexigrove
{

/// Paints `BoxControl`s at any scale: the control is stretched over a place, its lines keep to whole device pixels, and
/// letters are drawn at their final size, so that both are crisp.
class BoxPainter
{
public:
    explicit BoxPainter(const Theme& theme) : theme_(theme) {}

    /// The face and the frame: everything but the caption. `lifted` is for the control under the pointer.
    void paintFace(QPainter& painter, const BoxControl& control, const QRectF& place, bool lifted = false) const;

    /// The caption in its place, bold if the control says so. `pixelSize` is the letter's height in logical pixels; 0
    /// means the control's own font size. A caption whose ink would touch `taken` moves up until it does not.
    void paintCaption(QPainter& painter, const BoxControl& control, const QRectF& place, double pixelSize = 0,
                      const QRectF& taken = {}) const;

    /// The colour with which the face is painted, lifted or not.
    [[nodiscard]] Colour faceColour(const BoxControl& control, bool lifted) const;

private:
    const Theme& theme_;
};

} // namespace lexigrove
