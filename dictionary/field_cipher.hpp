#pragma once

#include <string>
#include <string_view>

namespace lexigrove
{

/// The key of the header line of a maintained dictionary.
inline constexpr std::string_view KESTR = "KESTR";

/// The key of the score file.
inline constexpr std::string_view scoreFileKey = "718KESTR";

/// Turns each character of a text into a cell of two characters: its code XOR the key's character at that place, in
/// upper-case hexadecimal, padded on the left with a blank. The key repeats; every call starts at its first character.
/// Throws std::invalid_argument if the key is empty and the text is not.
std::string encipher(std::string_view text, std::string_view key);

/// Turns cells back into a text; an odd last character is a cell too. A cell's blanks are ignored, and its hexadecimal
/// digits (either case) are read up to the first other character. A cell without a digit is 0, so bad input yields
/// characters of the key and never an error. Throws like `encipher` if the key is empty.
std::string decipher(std::string_view cipher, std::string_view key);

} // namespace lexigrove
