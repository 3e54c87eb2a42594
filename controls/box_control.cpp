#include "controls/box_control.hpp"

#include "platform/screen.hpp"

#include <stdexcept>
#include <utility>

namespace lexigrove
{

namespace
{

constexpr int outerInset = 20;        ///< of the bottom and right edges, whatever their thickness
constexpr int innerInset = 10;        ///< of the inner lines, and of the top and left edges unless they are thin
constexpr int pictureShift = 24;      ///< how far left of and above the middle a picture is
constexpr int border = unitsPerPixel; ///< of the single-line border, on each side

} // namespace

void BoxControl::Enabled(bool value)
{
    store(Enabled_, value);
    ForeColor_ = value ? system_colour::buttonText : BorderRight_;
}

void BoxControl::Move(int left, int top, int width, int height)
{
    const bool resized = width != Width_ || height != Height_;
    Left_ = left;
    Top_ = top;
    Width_ = width;
    Height_ = height;
    ++revision_;
    if (resized)
        redraw();
}

Size BoxControl::innerSize() const
{
    const int taken = BorderStyle_ == 0 ? 0 : 2 * border;
    return {Width_ - taken, Height_ - taken};
}

// The places depend only on the size and the border, so they are computed on demand. They are then right even if the
// border has changed since the last redraw: a held tile that is recoloured and released looks raised as before.
FrameLine BoxControl::line(int number) const
{
    const auto [w, h] = innerSize();
    const int inset = BorderWidth_ == 1 ? 0 : innerInset;
    const bool innerSolid = DrawStyle_ == 0;
    constexpr Colour innerColour = system_colour::buttonShadow; // fixed by the design; no property sets it
    switch (number) {
    case 1:
        return {{0, inset}, {w, inset}, BorderWidth_, BorderTop_, linesShown_, true};
    case 2:
        return {{inset, 0}, {inset, h}, BorderWidth_, BorderLeft_, linesShown_, true};
    case 3:
        return {{0, h - outerInset}, {w - outerInset, h - outerInset}, BorderWidth_, BorderBottom_, linesShown_, true};
    case 4:
        return {{w - outerInset, 0}, {w - outerInset, h - outerInset}, BorderWidth_, BorderRight_, linesShown_, true};
    case 5: // runs past the bottom edge, where the surface clips it
        return {{w - innerInset, 0}, {w - innerInset, h + innerInset}, 1, innerColour, linesShown_, innerSolid};
    case 6:
        return {{0, h - innerInset}, {w, h - innerInset}, 1, innerColour, linesShown_, innerSolid};
    case 7:
        return {{}, {}, 1, backcolor_, line7Shown_, true};
    default:
        throw std::out_of_range("a tile control has the lines 1 to 7");
    }
}

ExactPoint BoxControl::captionPlace(Size label) const
{
    const Size inner = innerSize();
    return {(inner.width - label.width) / 2.0, (inner.height - label.height) / 2.0};
}

std::optional<ExactPoint> BoxControl::picturePlace() const
{
    if (!Picture_)
        return std::nullopt;
    const Size inner = innerSize();
    return ExactPoint{(inner.width - Picture_->width() / 2.0) / 2.0 - pictureShift,
                      (inner.height - Picture_->height() / 2.0) / 2.0 - pictureShift};
}

template <typename... Parameters, typename... Arguments>
void BoxControl::raise(void (BoxControlEvents::*event)(Parameters...), Arguments... arguments)
{
    if (Enabled_ && events_ != nullptr)
        (events_->*event)(arguments...);
}

void BoxControl::mousePressed(std::int16_t Button, std::int16_t Shift, float X, float Y)
{
    if (Enabled_)
        showDown(true);
    raise(&BoxControlEvents::MouseDown, Button, Shift, X, Y);
}

void BoxControl::mouseReleased(std::int16_t Button, std::int16_t Shift, float X, float Y)
{
    if (Enabled_)
        showDown(false);
    raise(&BoxControlEvents::MouseUp, Button, Shift, X, Y);
}

void BoxControl::mouseMoved(std::int16_t Button, std::int16_t Shift, float X, float Y)
{
    raise(&BoxControlEvents::MouseMove, Button, Shift, X, Y);
}

void BoxControl::clicked()
{
    raise(&BoxControlEvents::Click);
}

void BoxControl::doubleClicked()
{
    raise(&BoxControlEvents::DblClick);
}

void BoxControl::keyDown(std::int16_t KeyCode, std::int16_t Shift)
{
    raise(&BoxControlEvents::KeyDown, KeyCode, Shift);
}

void BoxControl::keyPressed(std::int16_t KeyAscii)
{
    raise(&BoxControlEvents::KeyPress, KeyAscii);
}

void BoxControl::keyUp(std::int16_t KeyCode, std::int16_t Shift)
{
    raise(&BoxControlEvents::KeyUp, KeyCode, Shift);
}

/// Shows every property with its name and its default value, but for `FontSize`, which is read with another default
/// than it is written with.
template <typename Control, typename Visit>
void BoxControl::visitProperties(Control& control, const ControlFont& containerFont, Visit visit)
{
    visit("ForeColor", control.ForeColor_, system_colour::buttonText);
    visit("Enabled", control.Enabled_, true);
    visit("Font", control.Font_, containerFont);
    visit("Caption", control.Caption_, "Label1");
    visit("BorderWidth", control.BorderWidth_, 1);
    visit("BorderTop", control.BorderTop_, system_colour::windowText);
    visit("BorderLeft", control.BorderLeft_, system_colour::windowText);
    visit("BorderRight", control.BorderRight_, system_colour::windowText);
    visit("BorderBottom", control.BorderBottom_, system_colour::windowText);
    visit("MaskColor", control.MaskColor_, 0);
    visit("Picture", control.Picture_, nullptr);
    visit("BorderStyle", control.BorderStyle_, 0);
    visit("DrawStyle", control.DrawStyle_, 5);
    visit("FontBold", control.Font_.bold, false);
    visit("backcolor", control.backcolor_, system_colour::buttonFace);
    visit("DrawFrame", control.DrawFrame_, 1);
    visit("ToolTipText", control.ToolTipText_, "");
}

void BoxControl::writeProperties(PropertyBag& bag, const ControlFont& containerFont)
{
    visitProperties(*this, containerFont, PropertyWriter{bag});
    bag.write("FontSize", Font_.size, 0.0); // not 8, the default for reading, so that the size is always written
    changed_ = false;
}

void BoxControl::readProperties(const PropertyBag& bag, const ControlFont& containerFont)
{
    visitProperties(*this, containerFont, PropertyReader{bag});
    Font_.size = bag.read("FontSize", 8.0);
    changed_ = false;
    redraw();
}

void BoxControl::showDown(bool down)
{
    linesShown_ = !down;
    BorderStyle_ = down ? 1 : 0;
    ++revision_;
}

void BoxControl::redraw()
{
    linesShown_ = DrawFrame_ == 1;
    line7Shown_ = DrawFrame_ == 1;
    ++revision_;
    if (screen_ != nullptr)
        screen_->yield();
}

} // namespace lexigrove
