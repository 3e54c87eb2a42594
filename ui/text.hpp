#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace lexigrove
{

/// The game's text is Windows-1252, the toolkit's is Unicode. A byte without a character there becomes the control
/// character of the same number, so that every text comes back as it was.
QString toQString(std::string_view text);

/// What Windows-1252 does not hold becomes "?".
std::string fromQString(const QString& text);

/// A file's path, which goes both ways unchanged, in the bytes of the file system.
QString pathToQString(const std::string& path);
std::string pathFromQString(const QString& path);

/// The text with its CR LF line breaks as the toolkit breaks lines.
QString linesOf(std::string_view text);

/// The text on one line: its line breaks become a dash between blanks.
QString onOneLine(std::string_view text);

} // namespace lexigrove
