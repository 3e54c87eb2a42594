#pragma once

#include "game/board.hpp"

#include <QRectF>
#include <QSize>

namespace lexigrove
{

/// Maps the board's units to logical pixels. Cells are a whole number of device pixels wide, so that all tiles look
/// alike.
///
/// The model leaves little room between the drop row and the board. On the screen the board is a little lower, and
/// letters fall from one to the other evenly.
class BoardGeometry
{
public:
    /// Room above the drop row for the numbers of its columns, in units.
    static constexpr int numberRoom = 120;

    /// Room between the drop row and the board for a line of text, in units.
    static constexpr int hintRoom = 270;

    explicit BoardGeometry(int headRoom = 0, int middleRoom = 0) : headRoom_(headRoom), middleRoom_(middleRoom) {}

    /// Fits the largest board into `room`. `ratio` is device pixels per logical pixel.
    void fit(QSizeF room, double ratio);

    /// The size of the board in logical pixels.
    [[nodiscard]] QSizeF size() const;

    /// A cell's width and height in logical pixels.
    [[nodiscard]] double cell() const { return cell_; }

    /// Where a rectangle of the model is shown.
    [[nodiscard]] QRectF place(int left, int top, int width, int height) const;

    /// A control's tile, a little smaller than its cell.
    [[nodiscard]] QRectF tilePlace(const BoxControl& control, int left, int top) const;
    [[nodiscard]] QRectF tilePlace(const BoxControl& control) const
    {
        return tilePlace(control, control.Left(), control.Top());
    }

    /// Between the drop row and the board.
    [[nodiscard]] QRectF hintPlace() const;

    /// The strip behind the drop row.
    [[nodiscard]] QRectF strip() const;

    /// The size of a board with cells of this size.
    [[nodiscard]] QSizeF sizeFor(double cell) const;

private:
    [[nodiscard]] double lowered(int top) const;

    int headRoom_;
    int middleRoom_;
    double cell_ = 0;
    double ratio_ = 1;
};

} // namespace lexigrove
