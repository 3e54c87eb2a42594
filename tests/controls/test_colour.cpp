#include "controls/colour.hpp"

#include <gtest/gtest.h>

namespace lexigrove
{
namespace
{

// Guards the text colours that are derived from a scheme's: reference ratios of WCAG's own examples.
TEST(Colour, contrastFollowsTheStandard)
{
    const Colour black = rgb(0, 0, 0);
    const Colour white = rgb(255, 255, 255);
    EXPECT_NEAR(contrastRatio(black, white), 21, 1e-9);
    EXPECT_NEAR(contrastRatio(white, black), 21, 1e-9);
    EXPECT_NEAR(contrastRatio(rgb(119, 119, 119), white), 4.48, 0.005);
    EXPECT_NEAR(contrastRatio(rgb(255, 0, 0), white), 4.00, 0.005) << "red and blue exchanged";
    EXPECT_NEAR(contrastRatio(rgb(0, 0, 255), white), 8.59, 0.005);
    EXPECT_NEAR(contrastRatio(rgb(5, 5, 5), rgb(5, 5, 5)), 1, 1e-9);

    for (unsigned step = 0; step < 256; step += 15) // the better of the two is always readable
        EXPECT_GE(contrastRatio(readableOn(rgb(step, 255 - step, step / 2)), rgb(step, 255 - step, step / 2)), 4.5)
            << step;
}

// Guards against unreadable default windows, and against an index from a foreign scheme file beyond the table.
TEST(Colour, systemColoursResolve)
{
    const SystemPalette palette;
    EXPECT_EQ(palette.resolve(rgb(1, 2, 3)), rgb(1, 2, 3));
    EXPECT_GT(
        contrastRatio(palette.resolve(system_colour::windowText), palette.resolve(system_colour::windowBackground)), 7);
    EXPECT_GT(contrastRatio(palette.resolve(system_colour::buttonText), palette.resolve(system_colour::buttonFace)), 7);
    EXPECT_GT(contrastRatio(palette.entries[17], palette.resolve(system_colour::buttonFace)), 4.5) << "grey text";
    EXPECT_EQ(palette.resolve(0x80000000U + 25), rgb(0, 0, 0));
    EXPECT_EQ(palette.resolve(0xFFFFFFFFU), rgb(0, 0, 0));
}

} // namespace
} // namespace lexigrove
