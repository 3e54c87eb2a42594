#include "settings/window_colours.hpp"
#include "tests/support/quiet_ports.hpp"
#include "tests/support/temporary_folder.hpp"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <random>

namespace lexigrove
{
namespace
{

/// Every letter of a tile and every text of a window with its background.
void expectReadable(const ColourScheme& scheme, const WindowColours& window)
{
    const auto expect = [](Colour text, Colour background, const char* what) {
        EXPECT_GE(contrastRatio(text, background), minimumContrast) << what;
    };
    for (const Colour multiplier : multiplier::all) {
        SCOPED_TRACE("multiplier " + std::to_string(multiplier));
        const Colour face = scheme.tileFace(multiplier);
        const Colour letter = scheme.tileLetter(multiplier);
        expect(letter, face, "letter");
        expect(letter, lifted(face, letter), "letter under the pointer");
        expect(quietOn(letter, face), face, "value");
    }
    expect(scheme.selectedLetter(), scheme.selectedFace(), "selected");
    expect(window.text, window.background, "text");
    expect(window.text, window.strip, "text on the strip");
    expect(window.quietText, window.background, "quiet text");
    expect(window.cardText, window.card, "card");
    expect(window.cardQuietText, window.card, "quiet on the card");
    expect(window.cardSelectionText, window.cardSelection, "chosen row");
    expect(window.accentText, window.accent, "primary button");
    expect(window.buttonText, window.button, "button");
    expect(window.buttonText, window.buttonHover, "button under the pointer");
    expect(window.computerFore, window.computerBack, "the computer's word");
    expect(window.computerText, window.card, "the computer's score");
    EXPECT_EQ(window.background, scheme.plain(scheme_entry::background)) << "the scheme's own colours stay";
    EXPECT_EQ(window.card, scheme.plain(scheme_entry::wordList));
    EXPECT_EQ(window.computerBack, scheme.plain(scheme_entry::computer));
}

/// The lightness of a colour, 0 to 100 (CIE L*), which is what a grey picture shows.
double greyLevel(Colour colour)
{
    const double luminance = contrastRatio(colour, rgb(0, 0, 0)) * 0.05 - 0.05;
    return luminance > 0.008856 ? 116 * std::cbrt(luminance) - 16 : 903.3 * luminance;
}

// Guards against a shipped scheme that does not load, or that somebody cannot read: Clarity's tiles differ even without
// hues, and Contrast's texts are the strongest. A game without scheme files looks like one with them.
TEST(ShippedSchemes, EveryTextReadsOnItsBackground)
{
    ScriptedDialogs dialogs;
    ColourScheme scheme(DATA_FOLDER, dialogs);
    const auto names = scheme.filesInFolder();
    ASSERT_GE(names.size(), 6U);
    for (const std::string& name : names) {
        SCOPED_TRACE(name);
        ASSERT_TRUE(scheme.load(name));
        const WindowColours window = deriveWindowColours(scheme);
        expectReadable(scheme, window);
        EXPECT_GE(contrastRatio(window.accent, window.background), minimumContrast);
        EXPECT_GE(contrastRatio(window.accent, window.card), minimumContrast);
        EXPECT_GE(contrastRatio(window.link, scheme.selectedFace()), 2.5);
        EXPECT_GT(contrastRatio(window.line, window.background), name == "Contrast.sch" ? 3 : 1.2);
        EXPECT_NE(window.strip, window.background);
        if (name == "Default.sch") {
            EXPECT_EQ(scheme.entries(), builtInColours());
        }
        std::vector<double> greys{greyLevel(scheme.selectedFace())};
        for (const Colour multiplier : multiplier::all) {
            greys.push_back(greyLevel(scheme.tileFace(multiplier)));
            if (name == "Contrast.sch") {
                EXPECT_GE(contrastRatio(scheme.tileLetter(multiplier), scheme.tileFace(multiplier)), 7);
                EXPECT_GE(contrastRatio(window.text, window.background), 15);
            }
        }
        std::sort(greys.begin(), greys.end());
        for (std::size_t i = 1; i < greys.size() && name == "Clarity.sch"; ++i)
            EXPECT_GE(greys[i] - greys[i - 1], 10) << greys[i];
    }
}

// Guards against players' own schemes, however garish, and desktop colours making a window unreadable.
TEST(WindowColours, AnySchemeReads)
{
    TemporaryFolder folder;
    ScriptedDialogs dialogs;
    ColourScheme scheme(folder.path(), dialogs);
    for (unsigned seed = 1; seed <= 1000 && !testing::Test::HasFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        std::mt19937 random(seed);
        std::string text;
        for (int i = 0; i < 13; ++i) {
            const bool grey = random() % 4 == 0; // the middle greys are the hardest
            const auto level = static_cast<unsigned>(100 + random() % 60);
            const Colour colour = grey ? rgb(level, level, level) : static_cast<Colour>(random() & 0xFFFFFFU);
            text += random() % 10 == 0 ? "&H8000000F\r\n" : std::to_string(colour) + "\r\n";
        }
        folder.write("Default.sch", text);
        ASSERT_TRUE(scheme.load(""));
        expectReadable(scheme, deriveWindowColours(scheme));
    }
}

} // namespace
} // namespace lexigrove
