#include "ui/dialogs/beside.hpp"

#include "ui/look/theme.hpp"

#include <algorithm>

namespace lexigrove
{

QRect beside(const QRect& place, const QSize& window, const QRect& screen)
{
    const int roomRight = screen.right() - place.right() - Theme::gap;
    const int roomLeft = place.left() - screen.left() - Theme::gap;
    const bool right = roomRight >= window.width() || roomRight >= roomLeft;
    const int wanted = right ? place.right() + Theme::gap : place.left() - Theme::gap - window.width();
    const int left = std::clamp(wanted, screen.left(), std::max(screen.left(), screen.right() + 1 - window.width()));
    const int top =
        std::clamp(place.top(), screen.top(), std::max(screen.top(), screen.bottom() + 1 - window.height()));
    return {QPoint(left, top), window};
}

} // namespace lexigrove
