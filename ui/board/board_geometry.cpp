#include "ui/board/board_geometry.hpp"

#include <algorithm>
#include <cmath>

namespace lexigrove
{

namespace
{

constexpr int sideRoom = layout::boardLeft;
constexpr int boardGap = 120; ///< units by which the board is lower on the screen than in the model
constexpr int unitsWide = 2 * sideRoom + Board::columns * layout::cellSize;
constexpr int unitsHigh = layout::boardTop + boardGap + 8 * layout::cellSize + sideRoom;
constexpr double tileGap = 0.03; ///< of a cell, on each side of a tile

} // namespace

/// The drop row stays where the model has it, the board is lower, and whatever is between them is in proportion.
double BoardGeometry::lowered(int top) const
{
    const double share = static_cast<double>(top - layout::dropRowTop) / (layout::boardTop - layout::dropRowTop);
    return headRoom_ + top + (boardGap + middleRoom_) * std::clamp(share, 0.0, 1.0);
}

void BoardGeometry::fit(QSizeF room, double ratio)
{
    const double scale = std::min(room.width() / unitsWide, room.height() / (unitsHigh + headRoom_ + middleRoom_));
    ratio_ = ratio;
    cell_ = std::max(1.0, std::floor(scale * layout::cellSize * ratio)) / ratio;
}

QSizeF BoardGeometry::sizeFor(double cell) const
{
    const double scale = cell / layout::cellSize;
    return {unitsWide * scale, (unitsHigh + headRoom_ + middleRoom_) * scale};
}

QSizeF BoardGeometry::size() const
{
    return sizeFor(cell_);
}

QRectF BoardGeometry::place(int left, int top, int width, int height) const
{
    const double scale = cell_ / layout::cellSize;
    const auto snap = [this](double logical) { return std::round(logical * ratio_) / ratio_; };
    return {snap(left * scale), snap(lowered(top) * scale), snap(width * scale), snap(height * scale)};
}

QRectF BoardGeometry::tilePlace(const BoxControl& control, int left, int top) const
{
    const double gap = std::max(1.0, std::round(cell_ * tileGap * ratio_)) / ratio_;
    return place(left, top, control.Width(), control.Height()).adjusted(gap, gap, -gap, -gap);
}

QRectF BoardGeometry::hintPlace() const
{
    const double top = strip().bottom();
    return {0, top, size().width(), place(0, layout::boardTop, 0, 0).top() - top};
}

QRectF BoardGeometry::strip() const
{
    const QRectF row = place(0, layout::dropRowTop, 0, layout::cellSize);
    const double margin = layout::dropRowTop * cell_ / layout::cellSize;
    return {0, 0, size().width(), row.bottom() + std::round(margin * ratio_) / ratio_};
}

} // namespace lexigrove
