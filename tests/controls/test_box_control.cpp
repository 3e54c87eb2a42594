#include "controls/box_control.hpp"
#include "tests/support/quiet_ports.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>

namespace lexigrove
{
namespace
{

using testing::ElementsAre;

/// Records each event with its arguments and whether the control was up or down at that time.
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

/// The visible lines, each with its number, ends and thickness; "face" for Line7, which has no place.
std::string drawn(const BoxControl& box)
{
    std::string text;
    for (int number = 1; number <= 6; ++number) {
        const FrameLine line = box.line(number);
        if (line.visible && line.solid)
            text += testing::PrintToString(std::array{number, line.from.x, line.from.y, line.to.x, line.to.y}) + "*" +
                    std::to_string(line.thickness) + " ";
    }
    return text + (box.line(7).visible ? "face" : "");
}

BoxControl boxOf(int width, int height)
{
    BoxControl box;
    box.Move(0, 0, width, height);
    return box;
}

// Guards the raised look against edges in the wrong or swapped places, inner lines drawn by default, a flat face that
// keeps a line; and against a held tile, recoloured meanwhile, that does not come up as it went down.
TEST(BoxControl, linesStandWhereTheirLookPutsThem)
{
    BoxControl box = boxOf(600, 450);
    const std::string raised = drawn(box);
    EXPECT_EQ(raised, "{ 1, 0, 0, 600, 0 }*1 { 2, 0, 0, 0, 450 }*1 { 3, 0, 430, 580, 430 }*1 "
                      "{ 4, 580, 0, 580, 430 }*1 face");
    for (const int thickness : {0, 2, 7}) {
        box.BorderWidth(static_cast<std::int16_t>(thickness));
        const std::string thick = "}*" + std::to_string(thickness) + " ";
        EXPECT_EQ(drawn(box), "{ 1, 0, 10, 600, 10 " + thick + "{ 2, 10, 0, 10, 450 " + thick +
                                  "{ 3, 0, 430, 580, 430 " + thick + "{ 4, 580, 0, 580, 430 " + thick + "face");
    }
    box.BorderWidth(1);
    box.KeepDown();
    EXPECT_EQ(drawn(box), "face");
    EXPECT_EQ(box.innerSize(), (Size{570, 420})) << "the border takes a pixel on each side";
    box.backcolor(rgb(1, 2, 3)); // a redraw shows the lines, within the border, which stays
    EXPECT_EQ(box.BorderStyle(), 1);
    EXPECT_THAT(drawn(box), testing::HasSubstr("{ 3, 0, 400, 550, 400 }*1"));
    box.KeepUp();
    EXPECT_EQ(drawn(box), raised);

    box.DrawStyle(0);
    EXPECT_THAT(drawn(box), testing::HasSubstr("{ 5, 590, 0, 590, 460 }*1 { 6, 0, 440, 600, 440 }*1 face"));
    for (const int flat : {0, 2, -1}) {
        box.DrawFrame(static_cast<std::int16_t>(flat));
        EXPECT_EQ(drawn(box), "") << flat;
    }
    EXPECT_THROW(static_cast<void>(box.line(0)), std::out_of_range);
    EXPECT_THROW(static_cast<void>(box.line(8)), std::out_of_range);
}

// Guards the border colours of the schemes (right and bottom exchanged), and the caption of a disabled control, greyed
// in the colour that the right border has at that moment; and the middle of a face: the caption's, and the picture's,
// which is measured in other units.
TEST(BoxControl, coloursCaptionAndPictureReachTheirPlaces)
{
    BoxControl box = boxOf(605, 450);
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

    EXPECT_EQ(box.captionPlace({200, 150}), (ExactPoint{202.5, 150}));
    EXPECT_FALSE(box.picturePlace());
    box.Picture(std::make_shared<ControlPicture>(300, 101));
    EXPECT_EQ(*box.picturePlace(), (ExactPoint{(605 - 150) / 2.0 - 24, (450 - 50.5) / 2.0 - 24}));
}

// Guards the order of look and event (a handler must find the control already down or up) and the events' arguments.
TEST(BoxControl, pressAndReleaseSwitchTheLookAndTell)
{
    BoxControl box = boxOf(600, 600);
    RecordedEvents events(box);
    box.setEvents(&events);
    for (const bool enabled : {false, true}) { // a disabled control takes no input
        box.Enabled(enabled);
        box.mousePressed(2, 1, 5, 6.5F);
        box.mouseReleased(2, 1, 7, 8);
        box.clicked();
        box.keyUp(66, 3);
    }
    EXPECT_THAT(events.noted, ElementsAre("MouseDown{ 2, 1, 5, 6.5 } down", "MouseUp{ 2, 1, 7, 8 } up", "Click{} up",
                                          "KeyUp{ 66, 3 } up"));
}

// Guards the animations: a setter that yields when it should not slows each move, one that does not leaves tiles stale;
// and a front end must be able to see every change.
TEST(BoxControl, onlyTheSettersThatRedrawYield)
{
    QuietScreen screen;
    BoxControl box;
    box.setScreen(&screen);
    const std::function<void()> quiet[] = {
        [&] { box.ForeColor(1); },   [&] { box.Caption("A"); },   [&] { box.BorderTop(1); },
        [&] { box.BorderLeft(1); },  [&] { box.BorderRight(1); }, [&] { box.BorderBottom(1); },
        [&] { box.MaskColor(9); },   [&] { box.Enabled(false); }, [&] { box.ToolTipText("tip"); },
        [&] { box.KeepDown(); },     [&] { box.Refresh(); },      [&] { box.Move(5, 5, 0, 0); },
        [&] { box.Visible(false); },
    };
    const std::function<void()> drawing[] = {
        [&] { box.FontSize(12); },    [&] { box.BorderWidth(2); },       [&] { box.Picture(nullptr); },
        [&] { box.DrawStyle(0); },    [&] { box.FontBold(true); },       [&] { box.backcolor(1); },
        [&] { box.DrawFrame(0); },    [&] { box.Move(5, 5, 600, 600); }, [&] { box.Height(900); },
        [&] { box.focusReceived(); }, [&] { box.readProperties({}); },
    };
    const auto expectYields = [&](const std::function<void()>& change, int expected) {
        const int yields = screen.yields;
        const std::uint32_t revision = box.revision();
        change();
        EXPECT_NE(box.revision(), revision);
        EXPECT_EQ(screen.yields - yields, expected);
    };
    for (const auto& change : quiet)
        expectYields(change, 0);
    for (const auto& change : drawing)
        expectYields(change, 1);
}

// Guards the saved format: names, defaults that differ from the design, and the size that is always written.
TEST(BoxControl, savedPropertiesComeBack)
{
    BoxControl box;
    box.readProperties({}, {"serif", 20, true});
    EXPECT_EQ(box.Caption(), "Label1");
    EXPECT_EQ(box.BorderTop(), system_colour::windowText);
    EXPECT_EQ(box.DrawStyle(), 5);
    EXPECT_EQ(box.Font(), (ControlFont{"serif", 8, false}));
    PropertyBag bag;
    box.writeProperties(bag, {"serif", 8, false});
    ASSERT_EQ(bag.values.size(), 1U) << "all else equals its default";
    EXPECT_EQ(bag.read<double>("FontSize", 0), 8);

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
    EXPECT_EQ(bag.values.count("backcolor") + bag.values.count("BorderStyle"), 2U);

    BoxControl restored;
    restored.readProperties(bag);
    PropertyBag again;
    restored.writeProperties(again);
    EXPECT_EQ(again.values, bag.values);
    EXPECT_EQ(restored.ForeColor(), 5U);
    EXPECT_EQ(restored.Picture(), box.Picture());

    bag.values["BorderWidth"] = std::string("wide");
    restored.readProperties(bag);
    EXPECT_EQ(restored.BorderWidth(), 1) << "a value of another kind counts as not saved";
}

} // namespace
} // namespace lexigrove
