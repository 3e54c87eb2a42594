#pragma once

#include "settings/colour_scheme.hpp"
#include "settings/window_colours.hpp"

#include <QColor>
#include <QFont>
#include <QObject>
#include <QRectF>

#include <optional>

class QPainter;

namespace lexigrove
{

/// The look that all windows share: colours derived from the current scheme, fonts, measures. It colours the whole
/// application (palette, style sheet and icon), so a window of ordinary widgets needs nothing else. A widget that
/// paints itself takes its colours from here and repaints on `changed`.
///
/// The style sheet knows some dynamic properties, set before a widget is shown: "primary" (true) on a window's main
/// button, "link" (true) on a button that reads like a text, "card" (true) on a QFrame that is a card, "quiet" (true)
/// on a QLabel that is less prominent.
class Theme : public QObject
{
    Q_OBJECT

public:
    // Measures in logical pixels.
    static constexpr int grid = 8;           ///< every margin and gap is a multiple of it
    static constexpr int margin = 3 * grid;  ///< around a window's content
    static constexpr int gap = 2 * grid;     ///< between areas
    static constexpr int spacing = grid;     ///< between widgets of one area
    static constexpr int radius = 6;         ///< of cards and buttons
    static constexpr int smallestText = 11;  ///< no text is smaller
    static constexpr int quietTextSize = 12; ///< captions of cards, the status line

    /// Reads the desktop's palette. The colours come with the first scheme.
    Theme();

    /// The desktop's colours, for a scheme that names system colours.
    [[nodiscard]] const SystemPalette& desktop() const { return desktop_; }

    /// Colours the application by the scheme; does nothing if its table has not changed.
    void apply(const ColourScheme& scheme);

    [[nodiscard]] const WindowColours& colours() const { return colours_; }

    /// The scheme that was followed last, which outlives the theme's use.
    [[nodiscard]] const ColourScheme& scheme() const { return *scheme_; }

    /// A plain colour, or a system colour as it stands in this family of windows (a window's background is the card).
    [[nodiscard]] QColor colour(Colour colour) const;

    /// The desktop's own font at a size in pixels, never below the smallest: for text whose place sets its size.
    [[nodiscard]] static QFont fontOfSize(double pixelSize, bool bold = false);

    /// The same at a size that is meant for a desktop font of ten points, and grows with a larger one.
    [[nodiscard]] static QFont font(double pixelSize, bool bold = false);

    /// How much larger the desktop's font is than ten points; a smaller one counts as these.
    [[nodiscard]] static double textScale();

    /// Whether the desktop shows animations: its style's word, and what a desktop without one writes into its files.
    [[nodiscard]] static bool showsAnimations();

    /// A measure that must hold text: `measure` at ten points, and as much larger as the desktop's font.
    [[nodiscard]] static int scaled(int measure);

    /// Paints a card: a rounded face in a thin outline.
    static void paintCard(QPainter& painter, const QRectF& place, Colour face, Colour line, double lineWidth = 1);

signals:
    void changed();

private:
    SystemPalette desktop_;
    const ColourScheme* scheme_ = nullptr;
    ColourTable shown_{};
    WindowColours colours_{};
    SystemPalette systemColours_; ///< as these windows show them
};

/// Converts a plain colour.
QColor toQColor(Colour colour);

} // namespace lexigrove
