#pragma once

#include <string>
#include <string_view>

namespace lexigrove
{

/// The upper-case form of a Windows-1252 character; a character without one is returned unchanged.
char upperCase(char character);

/// The text in upper case, Windows-1252.
std::string upperCase(std::string_view text);

} // namespace lexigrove
