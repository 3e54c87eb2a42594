#include "settings/window_colours.hpp"
#include "tests/support/quiet_ports.hpp"
#include "tests/support/temporary_folder.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <map>
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

using Triple = std::array<double, 3>;

Triple times(const std::array<Triple, 3>& matrix, const Triple& v)
{
    const auto row = [&](const Triple& m) { return m[0] * v[0] + m[1] * v[1] + m[2] * v[2]; };
    return {row(matrix[0]), row(matrix[1]), row(matrix[2])};
}

/// What the matrix's eye sees of an sRGB colour, as CIE L*a*b* for daylight (D65).
Triple seen(Colour colour, const std::array<Triple, 3>& eye)
{
    const auto linear = [](unsigned channel) {
        const double c = channel / 255.0;
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    Triple rgb = times(eye, {linear(redOf(colour)), linear(greenOf(colour)), linear(blueOf(colour))});
    for (double& channel : rgb)
        channel = std::clamp(channel, 0.0, 1.0);
    const Triple xyz = times(
        {{{0.4124564, 0.3575761, 0.1804375}, {0.2126729, 0.7151522, 0.0721750}, {0.0193339, 0.1191920, 0.9503041}}},
        rgb);
    const auto f = [](double t) { return t > 216.0 / 24389 ? std::cbrt(t) : (24389.0 / 27 * t + 16) / 116; };
    const double y = f(xyz[1]);
    return {116 * y - 16, 500 * (f(xyz[0] / 0.95047) - y), 200 * (y - f(xyz[2] / 1.08883))};
}

/// CIEDE2000, after Sharma, Wu and Dalal (2005).
double difference(Triple p, Triple q)
{
    constexpr double degree = 3.14159265358979323846 / 180;
    const auto seventh = [](double c) { return std::sqrt(std::pow(c, 7) / (std::pow(c, 7) + std::pow(25, 7))); };
    const double g = 1.5 - 0.5 * seventh((std::hypot(p[1], p[2]) + std::hypot(q[1], q[2])) / 2);
    const double c1 = std::hypot(p[1] * g, p[2]);
    const double c2 = std::hypot(q[1] * g, q[2]);
    const double h1 = std::atan2(p[2], p[1] * g) / degree;
    const double turn = std::remainder(std::atan2(q[2], q[1] * g) / degree - h1, 360);
    const double h = h1 + turn / 2;
    const double c = (c1 + c2) / 2;
    const auto cosine = [&](double angle) { return std::cos(angle * degree); };
    const double t =
        1 - 0.17 * cosine(h - 30) + 0.24 * cosine(2 * h) + 0.32 * cosine(3 * h + 6) - 0.20 * cosine(4 * h - 63);
    const double l = (p[0] + q[0]) / 2 - 50;
    const double dl = (q[0] - p[0]) / (1 + 0.015 * l * l / std::sqrt(20 + l * l));
    const double dc = (c2 - c1) / (1 + 0.045 * c);
    const double dh = 2 * std::sqrt(c1 * c2) * std::sin(turn / 2 * degree) / (1 + 0.015 * c * t);
    const double hue = std::remainder(h - 275, 360) / 25;
    const double rotation = -2 * seventh(c) * std::sin(60 * degree * std::exp(-hue * hue));
    return std::sqrt(dl * dl + dc * dc + dh * dh + rotation * dc * dh);
}

// Guards players who see some colours alike from taking a red tile for a double one, and from bonus tiles that look the
// same. The matrices are those of Machado, Oliveira and Fernandes (2009) at full severity, for linear RGB.
TEST(ShippedSchemes, TilesDifferWithEveryKindOfColourBlindness)
{
    const std::map<std::string, std::array<Triple, 3>> eyes{
        {"usual", {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}}},
        {"protanopia",
         {{{0.152286, 1.052583, -0.204868}, {0.114503, 0.786281, 0.099216}, {-0.003882, -0.048116, 1.051998}}}},
        {"deuteranopia",
         {{{0.367322, 0.860646, -0.227968}, {0.280085, 0.672501, 0.047413}, {-0.011820, 0.042940, 0.968881}}}},
        {"tritanopia",
         {{{1.255528, -0.076749, -0.178779}, {-0.078411, 0.930809, 0.147602}, {0.004733, 0.691367, 0.303900}}}},
    };
    ASSERT_NEAR(difference({50, 2.6772, -79.7751}, {50, 0, -82.7485}), 2.0425, 1e-4) << "a published pair";
    ASSERT_NEAR(difference({50, 2.5, 0}, {58, 24, 15}), 19.4535, 1e-4) << "another";
    ScriptedDialogs dialogs;
    ColourScheme scheme(DATA_FOLDER, dialogs);
    for (const std::string& name : scheme.filesInFolder()) {
        scheme.load(name);
        ASSERT_TRUE(dialogs.messages.empty());
        std::map<std::string, Colour> faces{{"selected", scheme.selectedFace()}};
        for (const Colour multiplier : multiplier::all)
            faces[std::to_string(multiplier)] = scheme.tileFace(multiplier);
        for (const auto& [eye, matrix] : eyes) {
            for (auto one = faces.begin(); one != faces.end(); ++one) {
                for (auto other = std::next(one); other != faces.end(); ++other) {
                    const bool redAndDouble = one->first == "2" && other->first == "9";
                    EXPECT_GE(difference(seen(one->second, matrix), seen(other->second, matrix)),
                              redAndDouble ? 15 : 10)
                        << name << ", " << eye << ": " << one->first << " and " << other->first;
                }
            }
        }
    }
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
        scheme.load(name);
        ASSERT_TRUE(dialogs.messages.empty());
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
        scheme.load("");
        ASSERT_TRUE(dialogs.messages.empty());
        expectReadable(scheme, deriveWindowColours(scheme));
        const auto any = static_cast<Colour>(random() & 0xFFFFFFU);
        EXPECT_EQ(shadeFor(any, any, any, 1), any) << "a shade that will do is kept";
    }
}

} // namespace
} // namespace lexigrove
