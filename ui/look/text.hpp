#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace lexigrove
{

/// The game's text is Windows-1252, the toolkit's is Unicode. A byte without a character becomes the control character
/// of the same number, so that every text survives the round trip.
QString toQString(std::string_view text);

/// Characters outside Windows-1252 become "?".
std::string fromQString(const QString& text);

/// A file's path in the bytes of the file system, unchanged by the round trip.
QString pathToQString(const std::string& path);
std::string pathFromQString(const QString& path);

/// A text that may contain a file's path: read as UTF-8, like paths, if it is valid, else as the game's text. Two or
/// more accented letters in a row that happen to be valid UTF-8 would be misread; no message has any.
QString messageToQString(std::string_view text);

/// The text with CR LF turned into the toolkit's line breaks.
QString withNewlines(std::string_view text);

/// The text on one line, with a dash between blanks for each line break.
QString onOneLine(std::string_view text);

} // namespace lexigrove
