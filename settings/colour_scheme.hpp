#pragma once

#include "controls/colour.hpp"
#include "controls/multiplier.hpp"
#include "platform/dialogs.hpp"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace lexigrove
{

/// Indices into the colour table. The other window colours are derived from these in settings/window_colours.hpp.
namespace scheme_entry
{
inline constexpr std::size_t background = 0; ///< frames and panels
inline constexpr std::size_t tileTop = 1;
inline constexpr std::size_t tileLeft = 2;
inline constexpr std::size_t tileBottom = 3;
inline constexpr std::size_t tileRight = 4;
inline constexpr std::size_t tileFace = 5;
inline constexpr std::size_t tileLetter = 6;
inline constexpr std::size_t doubleTile = 7;
inline constexpr std::size_t tripleTile = 8;
inline constexpr std::size_t quadrupleTile = 9;
inline constexpr std::size_t redTile = 10;
inline constexpr std::size_t wordList = 11; ///< word list and colour-scheme box
inline constexpr std::size_t computer = 12; ///< the computer's back colour
} // namespace scheme_entry

using ColourTable = std::array<Colour, 14>;

/// The table before any file is read.
ColourTable builtInColours();

/// The colour table, filled from the scheme files "*.sch" of the program folder.
class ColourScheme
{
public:
    static constexpr std::size_t fileEntries = 13; ///< a file fills 0 to 12; entry 13 is never filled
    static constexpr const char* defaultName = "Default.sch";

    /// `folder` ends with a separator.
    ColourScheme(std::string folder, Dialogs& dialogs);

    /// Makes `name` the current name and fills the table from that file; an empty name loads the default scheme. If the
    /// file cannot be read to its end, shows a message and makes the default's name the current one; the table keeps
    /// the entries read so far.
    void load(const std::string& name);

    /// The scheme files in the folder, in ascending byte order of their names.
    [[nodiscard]] std::vector<std::string> filesInFolder() const;

    [[nodiscard]] const ColourTable& entries() const { return entries_; }
    [[nodiscard]] Colour entry(std::size_t index) const { return entries_.at(index); }

    /// An entry as a plain colour; a system colour is looked up in `palette`.
    [[nodiscard]] Colour plain(std::size_t index) const { return palette.resolve(entries_.at(index)) & 0xFFFFFFU; }

    /// The face of a tile with this multiplier (controls/multiplier.hpp) and the letter on it, as plain colours. The
    /// letter has the scheme's colour on a plain tile; on a coloured one it is black or white, whichever reads better.
    [[nodiscard]] Colour tileFace(Colour multiplier) const;
    [[nodiscard]] Colour tileLetter(Colour multiplier) const;

    /// A tile in the path, whatever its multiplier: the plain tile's face and letter swap colours.
    [[nodiscard]] Colour selectedFace() const { return tileLetter(multiplier::plain); }
    [[nodiscard]] Colour selectedLetter() const { return tileFace(multiplier::plain); }

    /// The text colour on the computer's back colour.
    [[nodiscard]] Colour computerFore() const { return readableOn(plain(scheme_entry::computer)); }

    /// The desktop's colours; the front end keeps it up to date.
    SystemPalette palette;

    /// The file name of the current scheme with its extension; empty until one is known.
    std::string currentName;

private:
    std::string folder_;
    Dialogs& dialogs_;
    ColourTable entries_ = builtInColours();
};

/// Read one line of a scheme file (red;green;blue) or of the default scheme (a whole colour before the first ";").
/// Return false and leave `colour` unchanged if the line has too few fields or no colour.
bool readSchemeLine(std::string_view line, Colour& colour);
bool readDefaultSchemeLine(std::string_view line, Colour& colour);

} // namespace lexigrove
