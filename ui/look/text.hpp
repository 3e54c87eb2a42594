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

/// A text that may hold a file's path: read as UTF-8, the form of paths, where it is that, else as the game's text. Two
/// or more accents in a row that happen to be UTF-8 would read wrong; no message has any.
QString messageToQString(std::string_view text);

/// The text with its CR LF line breaks as the toolkit breaks lines.
QString linesOf(std::string_view text);

/// The text on one line: its line breaks become a dash between blanks.
QString onOneLine(std::string_view text);

} // namespace lexigrove
