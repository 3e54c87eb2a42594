#pragma once

#include "game/board.hpp"

#include <QRectF>
#include <QSize>

namespace lexigrove
{

/// Where the board's units are shown, in logical pixels. Cells are a whole number of device pixels wide, so that all
/// tiles are alike.
///
/// The model leaves little room between the drop row and the board; on the screen the board stands a little lower, and
/// what falls from the one to the other goes the way evenly.
class BoardGeometry
{
public:
    /// The largest board that fits into `room`. `ratio` is device pixels a logical pixel.
    void fit(QSizeF room, double ratio);

    /// The room that the board takes, in logical pixels.
    [[nodiscard]] QSizeF size() const;

    /// A cell's width and height in logical pixels.
    [[nodiscard]] double cell() const { return cell_; }

    /// A place of the model as it is shown.
    [[nodiscard]] QRectF place(int left, int top, int width, int height) const;

    /// A control's tile, a little smaller than its cell.
    [[nodiscard]] QRectF tilePlace(const BoxControl& control, int left, int top) const;
    [[nodiscard]] QRectF tilePlace(const BoxControl& control) const
    {
        return tilePlace(control, control.Left(), control.Top());
    }

    /// The strip under the drop row.
    [[nodiscard]] QRectF strip() const;

    /// The room that a board with cells of this size takes.
    static QSizeF sizeFor(double cell);

private:
    double cell_ = 0;
    double ratio_ = 1;
};

} // namespace lexigrove
