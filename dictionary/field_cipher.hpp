#pragma once

#include <string>
#include <string_view>

namespace lexigrove
{

/// The key of the header line of a maintained dictionary.
inline constexpr std::string_view KESTR = "KESTR";

/// The key of the score file.
inline constexpr std::string_view scoreFileKey = "718KESTR";

/// Turns a text into cells of two characters, one a character: its code exclusive-or the key's character at that place,
/// in upper-case hexadecimal, padded on the left with a blank. The key repeats; every call starts at its first
/// character. Throws std::invalid_argument when the key is empty and there is a character to encipher.
std::string encipher(std::string_view text, std::string_view key);

/// Turns cells back into a text; a last odd character is a cell of its own. A cell's blanks are passed over and its
/// hexadecimal digits (either case) read up to the first other character; without a digit the cell stands for 0, so
/// that bad input yields characters of the key and never an error. Throws as `encipher` does on an empty key.
std::string decipher(std::string_view cipher, std::string_view key);

} // namespace lexigrove
