#pragma once

#include "controls/geometry.hpp"
#include "controls/property_bag.hpp"

#include <cstdint>
#include <optional>
#include <string>

namespace lexigrove
{

class Screen;

/// What a `BoxControl` reports to its container, in the order of the control's interface. `X` and `Y` are in units,
/// relative to the part (surface or caption) under the pointer; `Button` is 1 left, 2 right, 4 middle.
class BoxControlEvents
{
public:
    virtual ~BoxControlEvents() = default;

    virtual void MouseMove(std::int16_t /*Button*/, std::int16_t /*Shift*/, float /*X*/, float /*Y*/) {}
    virtual void Click() {}
    virtual void DblClick() {}
    virtual void KeyDown(std::int16_t /*KeyCode*/, std::int16_t /*Shift*/) {}
    virtual void KeyPress(std::int16_t /*KeyAscii*/) {}
    virtual void KeyUp(std::int16_t /*KeyCode*/, std::int16_t /*Shift*/) {}
    virtual void MouseDown(std::int16_t /*Button*/, std::int16_t /*Shift*/, float /*X*/, float /*Y*/) {}
    virtual void MouseUp(std::int16_t /*Button*/, std::int16_t /*Shift*/, float /*X*/, float /*Y*/) {}
};

/// One of the lines `Line1` to `Line7` as it would be painted.
struct FrameLine {
    Point from;
    Point to;
    int thickness = 1; ///< pixels at the design resolution
    Colour colour = 0;
    bool visible = false;
    bool solid = true; ///< false: transparent, not drawn
};

/// The game's tile and button: a centred caption on a coloured face in a raised frame of lines. While it is pressed, or
/// held down by `KeepDown`, the frame is hidden and a single-line border takes its place.
///
/// It paints nothing itself: it holds what a widget then paints. All setters redraw except those marked "no redraw". A
/// redraw ends with one yield to the screen, if there is one, so that a tile appears at once in the middle of an
/// animation. A setter may therefore throw `Leaving`, after storing the value.
///
/// Lengths and places are in units (see geometry.hpp). Copies share the picture and keep the pointers to screen and
/// events.
class BoxControl
{
public:
    /// A control with its design-time values: caption "Button", top and left lines highlighted, bottom and right in
    /// shadow.
    BoxControl() = default;

    // The properties, in the order of the control's interface.

    [[nodiscard]] Colour ForeColor() const { return ForeColor_; }
    void ForeColor(Colour value) { store(ForeColor_, value); } ///< no redraw

    /// Setting it also colours the caption: button text when enabled, `BorderRight` (the shadow) when not. A disabled
    /// control takes no input.
    [[nodiscard]] bool Enabled() const { return Enabled_; }
    void Enabled(bool value); ///< no redraw

    [[nodiscard]] const ControlFont& Font() const { return Font_; }
    void Font(ControlFont value) { storeAndRedraw(Font_, std::move(value)); }

    /// Repaints the surface without changing the layout.
    void Refresh() { ++revision_; }

    [[nodiscard]] const std::string& Caption() const { return Caption_; }
    void Caption(std::string value) { store(Caption_, std::move(value)); } ///< no redraw

    /// Thickness of the four edge lines.
    [[nodiscard]] std::int16_t BorderWidth() const { return BorderWidth_; }
    void BorderWidth(std::int16_t value) { storeAndRedraw(BorderWidth_, value); }

    [[nodiscard]] Colour BorderTop() const { return BorderTop_; }
    void BorderTop(Colour value) { store(BorderTop_, value); } ///< no redraw
    [[nodiscard]] Colour BorderLeft() const { return BorderLeft_; }
    void BorderLeft(Colour value) { store(BorderLeft_, value); } ///< no redraw
    [[nodiscard]] Colour BorderRight() const { return BorderRight_; }
    void BorderRight(Colour value) { store(BorderRight_, value); } ///< no redraw
    [[nodiscard]] Colour BorderBottom() const { return BorderBottom_; }
    void BorderBottom(Colour value) { store(BorderBottom_, value); } ///< no redraw

    /// Any number; the board keeps a tile's word multiplier here.
    [[nodiscard]] Colour MaskColor() const { return MaskColor_; }
    void MaskColor(Colour value) { store(MaskColor_, value); } ///< no redraw

    [[nodiscard]] const PicturePtr& Picture() const { return Picture_; }
    void Picture(PicturePtr value) { storeAndRedraw(Picture_, std::move(value)); }

    /// 0 draws the inner lines; any other value omits them.
    [[nodiscard]] std::int16_t DrawStyle() const { return DrawStyle_; }
    void DrawStyle(std::int16_t value) { storeAndRedraw(DrawStyle_, value); }

    [[nodiscard]] double FontSize() const { return Font_.size; }
    void FontSize(double value) { storeAndRedraw(Font_.size, value); }
    [[nodiscard]] bool FontBold() const { return Font_.bold; }
    void FontBold(bool value) { storeAndRedraw(Font_.bold, value); }

    /// The colour of the face, stored in `Line7`.
    [[nodiscard]] Colour backcolor() const { return backcolor_; }
    void backcolor(Colour value) { storeAndRedraw(backcolor_, value); }

    /// Hold the control down, and release it. A redraw of a held control shows its lines again and keeps the border.
    void KeepDown() { showDown(true); }
    void KeepUp() { showDown(false); }

    /// 1 shows the frame; any other value shows a flat face.
    [[nodiscard]] std::int16_t DrawFrame() const { return DrawFrame_; }
    void DrawFrame(std::int16_t value) { storeAndRedraw(DrawFrame_, value); }

    [[nodiscard]] const std::string& ToolTipText() const { return ToolTipText_; }
    void ToolTipText(std::string value) { store(ToolTipText_, std::move(value)); } ///< no redraw

    /// 0 none, 1 a single line around the surface. Saved with the properties; only pressing and holding change it.
    [[nodiscard]] std::int16_t BorderStyle() const { return BorderStyle_; }

    // What the container sets when it places the control.

    [[nodiscard]] int Left() const { return Left_; }
    void Left(int value) { Move(value, Top_, Width_, Height_); }
    [[nodiscard]] int Top() const { return Top_; }
    void Top(int value) { Move(Left_, value, Width_, Height_); }
    [[nodiscard]] int Width() const { return Width_; }
    void Width(int value) { Move(Left_, Top_, value, Height_); } ///< a resize: redraws
    [[nodiscard]] int Height() const { return Height_; }
    void Height(int value) { Move(Left_, Top_, Width_, value); } ///< a resize: redraws
    void Move(int left, int top, int width, int height);         ///< redraws once, and only when the size changes
    [[nodiscard]] bool Visible() const { return Visible_; }
    void Visible(bool value)
    {
        Visible_ = value;
        ++revision_;
    }
    [[nodiscard]] const std::string& Tag() const { return Tag_; }
    void Tag(std::string value) { Tag_ = std::move(value); }

    // What to paint.

    /// Width and height inside the border.
    [[nodiscard]] Size innerSize() const;

    /// `Line1` to `Line7` for number 1 to 7; throws std::out_of_range otherwise. `Line7` has no place.
    [[nodiscard]] FrameLine line(int number) const;

    /// The top left corner of a caption label of this size, relative to the inner surface. The label's size depends on
    /// font metrics, which only a front end knows.
    [[nodiscard]] ExactPoint captionPlace(Size label) const;

    /// Where the picture is painted at its natural size, relative to the inner surface; nothing without a picture.
    [[nodiscard]] std::optional<ExactPoint> picturePlace() const;

    /// Increases with every visible change and every repaint: a front end repaints when it differs.
    [[nodiscard]] std::uint32_t revision() const { return revision_; }

    // What a front end reports. A press or click on the caption counts as one on the surface.

    void mousePressed(std::int16_t Button, std::int16_t Shift, float X, float Y);
    void mouseReleased(std::int16_t Button, std::int16_t Shift, float X, float Y);
    void mouseMoved(std::int16_t Button, std::int16_t Shift, float X, float Y);
    void clicked();
    void doubleClicked();
    void keyDown(std::int16_t KeyCode, std::int16_t Shift);
    void keyPressed(std::int16_t KeyAscii);
    void keyUp(std::int16_t KeyCode, std::int16_t Shift);
    void focusReceived() { redraw(); }

    // The container's connections; null for none.

    void setScreen(Screen* screen) { screen_ = screen; }
    void setEvents(BoxControlEvents* events) { events_ = events; }

    // Persistence, under the properties' exact names.

    /// True when a setter has changed any property since the last read or write.
    [[nodiscard]] bool changed() const { return changed_; }
    void writeProperties(PropertyBag& bag, const ControlFont& containerFont = {});
    /// Restores every property, using defaults for those not saved, and redraws.
    void readProperties(const PropertyBag& bag, const ControlFont& containerFont = {});

private:
    template <typename T>
    void store(T& member, T value)
    {
        member = std::move(value);
        changed_ = true;
        ++revision_;
    }
    template <typename T>
    void storeAndRedraw(T& member, T value)
    {
        store(member, std::move(value));
        redraw();
    }
    template <typename Control, typename Visit>
    static void visitProperties(Control& control, const ControlFont& containerFont, Visit visit);
    template <typename... Parameters, typename... Arguments>
    void raise(void (BoxControlEvents::*event)(Parameters...), Arguments... arguments);
    void showDown(bool down);
    void redraw();

    std::string Caption_ = "Button";
    std::string ToolTipText_;
    std::string Tag_;
    ControlFont Font_;
    PicturePtr Picture_;
    Screen* screen_ = nullptr;
    BoxControlEvents* events_ = nullptr;
    Colour ForeColor_ = system_colour::buttonText;
    Colour BorderTop_ = system_colour::highlight3d;
    Colour BorderLeft_ = system_colour::highlight3d;
    Colour BorderRight_ = system_colour::buttonShadow;
    Colour BorderBottom_ = system_colour::buttonShadow;
    Colour MaskColor_ = 0;
    Colour backcolor_ = system_colour::buttonFace;
    int Left_ = 0;
    int Top_ = 0;
    int Width_ = 0;
    int Height_ = 0;
    std::uint32_t revision_ = 0;
    std::int16_t BorderWidth_ = 1;
    std::int16_t BorderStyle_ = 0;
    std::int16_t DrawStyle_ = 5;
    std::int16_t DrawFrame_ = 1;
    bool Enabled_ = true;
    bool Visible_ = true;
    bool linesShown_ = true; ///< `Line1` to `Line6`
    bool line7Shown_ = true;
    bool changed_ = false;
};

} // namespace lexigrove
