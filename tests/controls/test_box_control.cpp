#include "controls/box_control.hpp"
#include "platform/screen.hpp"

#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <tuple>
#include <vector>

namespace lexigrove
{
namespace
{

using testing::ElementsAre;

class CountingScreen : public Screen
{
public:
    void yield() override { ++yields; }
    void animationStep(int) override {}
    void setBusyPointer(bool) override {}
    void lockBoardUpdates(bool) override {}
    void waitForAnyInput() override {}

    int yields = 0;
};

/// Notes each event with its arguments and whether the control was up or down by then.
class RecordedEvents : public BoxControlEvents
{
public:
    explicit RecordedEvents(const BoxControl& box) : box_(box) {}

    void Click() override { note("Click"); }
    void KeyUp(std::int16_t k, std::int16_t s) override { note("KeyUp", k, s); }
    void MouseDown(std::int16_t b, std::int16_t s, float x, float y) override { note("MouseDown", b, s, x, y); }
    void MouseUp(std::int16_t b, std::int16_t s, float x, float y) override { note("MouseUp", b, s, x, y); }

    std::vector<std::string> noted;

private:
    template <typename... Arguments>
    void note(const std::string& name, Arguments... given)
    {
        const std::vector<double> arguments{static_cast<double>(given)...};
        noted.push_back(name + testing::PrintToString(arguments) + (box_.BorderStyle() == 1 ? " down" : " up"));
    }

    const BoxControl& box_;
};

using Place = std::tuple<int, int, int, int>;

Place placeOf(const BoxControl& box, int number)
{
    const FrameLine line = box.line(number);
    return {line.from.x, line.from.y, line.to.x, line.to.y};
}

/// The lines that the player sees, Line7 aside, which has no place.
std::vector<int> drawnLines(const BoxControl& box)
{
    std::vector<int> drawn;
    for (int number = 1; number <= 6; ++number)
        if (box.line(number).visible && box.line(number).solid)
            drawn.push_back(number);
    return drawn;
}

BoxControl boxOf(int width, int height)
{
    BoxControl box;
    box.Move(0, 0, width, height);
    return box;
}

// Guards the raised look: an inset that follows the thickness, or edges that trade places.
TEST(BoxControl, edgesStandWhereEachThicknessPutsThem)
{
    BoxControl box = boxOf(600, 450);
    EXPECT_EQ(placeOf(box, 1), Place(0, 0, 600, 0));
    EXPECT_EQ(placeOf(box, 2), Place(0, 0, 0, 450));

    for (const std::int16_t thickness : std::initializer_list<std::int16_t>{0, 2, 3, 7}) {
        box.BorderWidth(thickness);
        EXPECT_EQ(placeOf(box, 1), Place(0, 10, 600, 10)) << thickness;
        EXPECT_EQ(placeOf(box, 2), Place(10, 0, 10, 450)) << thickness;
        EXPECT_EQ(box.line(4).thickness, thickness);
    }
    for (const std::int16_t thickness : std::initializer_list<std::int16_t>{1, 5}) {
        box.BorderWidth(thickness);
        EXPECT_EQ(placeOf(box, 3), Place(0, 430, 580, 430)) << thickness;
        EXPECT_EQ(placeOf(box, 4), Place(580, 0, 580, 430)) << thickness;
        EXPECT_EQ(placeOf(box, 5), Place(590, 0, 590, 460)) << thickness;
        EXPECT_EQ(placeOf(box, 6), Place(0, 440, 600, 440)) << thickness;
        EXPECT_EQ(box.line(5).thickness, 1);
    }
    box.Height(900);
    EXPECT_EQ(placeOf(box, 3), Place(0, 880, 580, 880));
    EXPECT_THROW(static_cast<void>(box.line(0)), std::out_of_range);
    EXPECT_THROW(static_cast<void>(box.line(8)), std::out_of_range);
}

// Guards against inner lines drawn by default, and against a flat face that keeps a line.
TEST(BoxControl, drawStyleAndDrawFrameChooseTheLines)
{
    BoxControl box = boxOf(600, 600);
    EXPECT_THAT(drawnLines(box), ElementsAre(1, 2, 3, 4));
    box.DrawStyle(0);
    EXPECT_THAT(drawnLines(box), ElementsAre(1, 2, 3, 4, 5, 6));
    EXPECT_TRUE(box.line(7).visible);

    for (const std::int16_t flat : std::initializer_list<std::int16_t>{0, 2, -1}) {
        box.DrawFrame(flat);
        EXPECT_THAT(drawnLines(box), ElementsAre()) << flat;
        EXPECT_FALSE(box.line(7).visible) << flat;
    }
    box.DrawFrame(1);
    EXPECT_EQ(drawnLines(box).size(), 6U);
}

// Guards the border colours of the schemes (right and bottom exchanged), and the caption of a disabled control, greyed
// in the colour that the right border has at that moment.
TEST(BoxControl, eachColourReachesItsLine)
{
    BoxControl box;
    box.BorderTop(1);
    box.BorderLeft(2);
    box.BorderBottom(3);
    box.BorderRight(4);
    box.backcolor(7);
    for (const int number : {1, 2, 3, 4, 7})
        EXPECT_EQ(box.line(number).colour, static_cast<Colour>(number));
    box.Enabled(false);
    EXPECT_EQ(box.ForeColor(), 4U);
    box.Enabled(true);
    EXPECT_EQ(box.ForeColor(), system_colour::buttonText);
}

// Guards the look of a tile in the path, recoloured while it is held: it must come up exactly as it went down.
TEST(BoxControl, aHeldTileComesUpAsItWas)
{
    BoxControl box = boxOf(600, 600);
    box.DrawStyle(0);
    std::vector<Place> raised;
    for (int number = 1; number <= 6; ++number)
        raised.push_back(placeOf(box, number));

    box.KeepDown();
    EXPECT_THAT(drawnLines(box), ElementsAre());
    EXPECT_TRUE(box.line(7).visible);
    EXPECT_EQ(box.BorderStyle(), 1);
    EXPECT_EQ(box.innerSize(), (Size{570, 570})) << "the border takes a pixel on each side";

    box.backcolor(rgb(1, 2, 3)); // a redraw lifts the lines and leaves the border
    EXPECT_EQ(drawnLines(box).size(), 6U);
    EXPECT_EQ(box.BorderStyle(), 1);
    EXPECT_EQ(placeOf(box, 3), Place(0, 550, 550, 550)) << "within the border";

    box.KeepUp();
    EXPECT_EQ(box.BorderStyle(), 0);
    for (int number = 1; number <= 6; ++number)
        EXPECT_EQ(placeOf(box, number), raised[static_cast<std::size_t>(number - 1)]) << number;
}

// Guards the order of look and event (a handler must find the control already down or up) and the arguments on their
// way.
TEST(BoxControl, pressAndReleaseSwitchTheLookAndTell)
{
    BoxControl box = boxOf(600, 600);
    RecordedEvents events(box);
    box.setEvents(&events);
    const auto useAll = [&] {
        box.mousePressed(rightButton, 1, 5, 6.5F);
        box.mouseReleased(rightButton, 1, 7, 8);
        box.clicked();
        box.keyUp(66, 3);
    };
    useAll();
    EXPECT_THAT(events.noted, ElementsAre("MouseDown{ 2, 1, 5, 6.5 } down", "MouseUp{ 2, 1, 7, 8 } up", "Click{} up",
                                          "KeyUp{ 66, 3 } up"));
    EXPECT_EQ(drawnLines(box).size(), 4U);
    events.noted.clear();
    box.Enabled(false);
    useAll();
    EXPECT_THAT(events.noted, ElementsAre()) << "a disabled control takes no input";
}

// Guards the animations: a setter that yields when it should not slows each move, one that does not leaves tiles stale;
// and a front end must be able to see every change.
TEST(BoxControl, onlyTheSettersThatRedrawYield)
{
    CountingScreen screen;
    BoxControl box;
    box.setScreen(&screen);
    const std::vector<std::function<void()>> quiet{
        [&] { box.ForeColor(1); },   [&] { box.Caption("A"); },   [&] { box.BorderTop(1); },
        [&] { box.BorderLeft(1); },  [&] { box.BorderRight(1); }, [&] { box.BorderBottom(1); },
        [&] { box.MaskColor(9); },   [&] { box.Enabled(false); }, [&] { box.ToolTipText("tip"); },
        [&] { box.Refresh(); },      [&] { box.KeepDown(); },     [&] { box.Move(5, 5, 0, 0); },
        [&] { box.Visible(false); },
    };
    const std::vector<std::function<void()>> drawing{
        [&] {
            box.Font({"serif", 9, false});
        },
        [&] { box.BorderWidth(2); },
        [&] { box.Picture(nullptr); },
        [&] { box.DrawStyle(0); },
        [&] { box.FontSize(12); },
        [&] { box.FontBold(true); },
        [&] { box.backcolor(1); },
        [&] { box.DrawFrame(0); },
        [&] { box.Move(5, 5, 600, 600); },
        [&] { box.focusReceived(); },
        [&] { box.readProperties({}); },
    };
    for (const bool draws : {false, true}) {
        const auto& changes = draws ? drawing : quiet;
        for (std::size_t i = 0; i < changes.size(); ++i) {
            const int yields = screen.yields;
            const std::uint32_t revision = box.revision();
            changes[i]();
            EXPECT_EQ(screen.yields - yields, draws ? 1 : 0) << (draws ? "drawing " : "quiet ") << i;
            EXPECT_NE(box.revision(), revision) << (draws ? "drawing " : "quiet ") << i;
        }
    }
}

// Guards the middle of a face: the caption's, and the picture's, which is measured in other units.
TEST(BoxControl, captionAndPictureAreCentred)
{
    BoxControl box = boxOf(605, 450);
    EXPECT_EQ(box.captionPlace({200, 150}), (ExactPoint{202.5, 150}));
    EXPECT_FALSE(box.picturePlace());
    const auto picture = std::make_shared<ControlPicture>(300, 101);
    box.Picture(picture);
    EXPECT_EQ(box.Picture(), picture);
    EXPECT_EQ(*box.picturePlace(), (ExactPoint{(605 - 150) / 2.0 - 24, (450 - 50.5) / 2.0 - 24}));
}

// Guards the saved format: names, defaults that differ from the design, and the size that is always written.
TEST(BoxControl, savedPropertiesComeBack)
{
    const BoxControl restoredFromNothing = [] {
        BoxControl box;
        box.readProperties({}, {"serif", 20, true});
        return box;
    }();
    EXPECT_EQ(restoredFromNothing.Caption(), "Label1");
    EXPECT_EQ(restoredFromNothing.BorderTop(), system_colour::windowText);
    EXPECT_EQ(restoredFromNothing.DrawStyle(), 5);
    EXPECT_EQ(restoredFromNothing.Font(), (ControlFont{"serif", 8, false}));

    PropertyBag bag;
    BoxControl(restoredFromNothing).writeProperties(bag, {"serif", 8, false});
    ASSERT_EQ(bag.values.size(), 1U) << "all else equals its default";
    EXPECT_EQ(bag.read<double>("FontSize", 0), 8);

    BoxControl box;
    box.ForeColor(1);
    box.BorderRight(5);
    box.Enabled(false); // the caption takes colour 5
    box.Font({"mono", 14, true});
    box.Caption("Q");
    box.BorderWidth(3);
    box.MaskColor(9);
    box.Picture(std::make_shared<ControlPicture>(1, 1));
    box.DrawStyle(0);
    box.backcolor(77);
    box.DrawFrame(0);
    box.ToolTipText("tip");
    box.KeepDown();
    EXPECT_TRUE(box.changed());
    box.writeProperties(bag);
    EXPECT_FALSE(box.changed());
    EXPECT_EQ(bag.values.count("backcolor"), 1U);
    EXPECT_EQ(bag.values.count("BorderStyle"), 1U);

    BoxControl restored;
    restored.readProperties(bag);
    PropertyBag again;
    restored.writeProperties(again);
    EXPECT_EQ(again.values, bag.values);
    EXPECT_EQ(restored.ForeColor(), 5U);
    EXPECT_EQ(restored.MaskColor(), 9U);
    EXPECT_EQ(restored.Picture(), box.Picture());
    EXPECT_TRUE(restored.FontBold());

    bag.values["BorderWidth"] = std::string("wide");
    restored.readProperties(bag);
    EXPECT_EQ(restored.BorderWidth(), 1) << "a value of another kind counts as not saved";
}

} // namespace
} // namespace lexigrove
