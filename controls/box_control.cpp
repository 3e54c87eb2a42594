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

template <typename T>
void BoxControl::store(T& member, T value)
{
    member = std::move(value);
    changed_ = true;
    ++revision_;
}

template <typename T>
void BoxControl::storeAndRedraw(T& member, T value)
{
    store(member, std::move(value));
    redraw();
}

void BoxControl::ForeColor(Colour value)
{
    store(ForeColor_, value);
}

void BoxControl::Enabled(bool value)
{
    store(Enabled_, value);
    ForeColor_ = value ? system_colour::buttonText : BorderRight_;
}

void BoxControl::Font(ControlFont value)
{
    storeAndRedraw(Font_, std::move(value));
}

void BoxControl::Refresh()
{
    ++revision_;
}

void BoxControl::Caption(std::string value)
{
    store(Caption_, std::move(value));
}

void BoxControl::BorderWidth(std::int16_t value)
{
    storeAndRedraw(BorderWidth_, value);
}

void BoxControl::BorderTop(Colour value)
{
    store(BorderTop_, value);
}

void BoxControl::BorderLeft(Colour value)
{
    store(BorderLeft_, value);
}

void BoxControl::BorderRight(Colour value)
{
    store(BorderRight_, value);
}

void BoxControl::BorderBottom(Colour value)
{
    store(BorderBottom_, value);
}

void BoxControl::MaskColor(Colour value)
{
    store(MaskColor_, value);
}

void BoxControl::Picture(PicturePtr value)
{
    storeAndRedraw(Picture_, std::move(value));
}

void BoxControl::DrawStyle(std::int16_t value)
{
    storeAndRedraw(DrawStyle_, value);
}

void BoxControl::FontSize(double value)
{
    storeAndRedraw(Font_.size, value);
}

void BoxControl::FontBold(bool value)
{
    storeAndRedraw(Font_.bold, value);
}

void BoxControl::backcolor(Colour value)
{
    storeAndRedraw(backcolor_, value);
}

void BoxControl::DrawFrame(std::int16_t value)
{
    storeAndRedraw(DrawFrame_, value);
}

void BoxControl::ToolTipText(std::string value)
{
    store(ToolTipText_, std::move(value));
}

void BoxControl::Left(int value)
{
    Left_ = value;
    ++revision_;
}

void BoxControl::Top(int value)
{
    Top_ = value;
    ++revision_;
}

void BoxControl::Width(int value)
{
    Move(Left_, Top_, value, Height_);
}

void BoxControl::Height(int value)
{
    Move(Left_, Top_, Width_, value);
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

void BoxControl::Visible(bool value)
{
    Visible_ = value;
    ++revision_;
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

void BoxControl::mousePressed(std::int16_t Button, std::int16_t Shift, float X, float Y)
{
    if (!Enabled_)
        return;
    showDown(true);
    if (events_ != nullptr)
        events_->MouseDown(Button, Shift, X, Y);
}

void BoxControl::mouseReleased(std::int16_t Button, std::int16_t Shift, float X, float Y)
{
    if (!Enabled_)
        return;
    showDown(false);
    if (events_ != nullptr)
        events_->MouseUp(Button, Shift, X, Y);
}

void BoxControl::mouseMoved(std::int16_t Button, std::int16_t Shift, float X, float Y)
{
    if (Enabled_ && events_ != nullptr)
        events_->MouseMove(Button, Shift, X, Y);
}

void BoxControl::clicked()
{
    if (Enabled_ && events_ != nullptr)
        events_->Click();
}

void BoxControl::doubleClicked()
{
    if (Enabled_ && events_ != nullptr)
        events_->DblClick();
}

void BoxControl::keyDown(std::int16_t KeyCode, std::int16_t Shift)
{
    if (Enabled_ && events_ != nullptr)
        events_->KeyDown(KeyCode, Shift);
}

void BoxControl::keyPressed(std::int16_t KeyAscii)
{
    if (Enabled_ && events_ != nullptr)
        events_->KeyPress(KeyAscii);
}

void BoxControl::keyUp(std::int16_t KeyCode, std::int16_t Shift)
{
    if (Enabled_ && events_ != nullptr)
        events_->KeyUp(KeyCode, Shift);
}

void BoxControl::writeProperties(PropertyBag& bag, const ControlFont& containerFont)
{
    bag.write("ForeColor", ForeColor_, system_colour::buttonText);
    bag.write("Enabled", Enabled_, true);
    bag.write("Font", Font_, containerFont);
    bag.write<std::string>("Caption", Caption_, "Label1");
    bag.write<std::int16_t>("BorderWidth", BorderWidth_, 1);
    bag.write("BorderTop", BorderTop_, system_colour::windowText);
    bag.write("BorderLeft", BorderLeft_, system_colour::windowText);
    bag.write("BorderRight", BorderRight_, system_colour::windowText);
    bag.write("BorderBottom", BorderBottom_, system_colour::windowText);
    bag.write<Colour>("MaskColor", MaskColor_, 0);
    bag.write<PicturePtr>("Picture", Picture_, nullptr);
    bag.write<std::int16_t>("BorderStyle", BorderStyle_, 0);
    bag.write<std::int16_t>("DrawStyle", DrawStyle_, 5);
    bag.write<double>("FontSize", Font_.size, 0); // not 8, the default for reading, so that the size is always written
    bag.write("FontBold", Font_.bold, false);
    bag.write("backcolor", backcolor_, system_colour::buttonFace);
    bag.write<std::int16_t>("DrawFrame", DrawFrame_, 1);
    bag.write<std::string>("ToolTipText", ToolTipText_, "");
    changed_ = false;
}

void BoxControl::readProperties(const PropertyBag& bag, const ControlFont& containerFont)
{
    ForeColor_ = bag.read("ForeColor", system_colour::buttonText);
    Enabled_ = bag.read("Enabled", true);
    Font_ = bag.read("Font", containerFont);
    Caption_ = bag.read<std::string>("Caption", "Label1");
    BorderWidth_ = bag.read<std::int16_t>("BorderWidth", 1);
    BorderTop_ = bag.read("BorderTop", system_colour::windowText);
    BorderLeft_ = bag.read("BorderLeft", system_colour::windowText);
    BorderRight_ = bag.read("BorderRight", system_colour::windowText);
    BorderBottom_ = bag.read("BorderBottom", system_colour::windowText);
    MaskColor_ = bag.read<Colour>("MaskColor", 0);
    Picture_ = bag.read<PicturePtr>("Picture", nullptr);
    BorderStyle_ = bag.read<std::int16_t>("BorderStyle", 0);
    DrawStyle_ = bag.read<std::int16_t>("DrawStyle", 5);
    Font_.size = bag.read<double>("FontSize", 8);
    Font_.bold = bag.read("FontBold", false);
    backcolor_ = bag.read("backcolor", system_colour::buttonFace);
    DrawFrame_ = bag.read<std::int16_t>("DrawFrame", 1);
    ToolTipText_ = bag.read<std::string>("ToolTipText", "");
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
