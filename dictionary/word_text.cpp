#include "dictionary/word_text.hpp"

#include "platform/ascii.hpp"

#include <algorithm>

namespace lexigrove
{

char upperCase(char character)
{
    const auto code = static_cast<unsigned char>(character);
    if (code >= 0xE0 && code != 0xF7 && code != 0xFF) // 0xF7 is the division sign
        return static_cast<char>(code - 32);
    switch (code) {
    case 0x9A: // s caron, oe and z caron, which Windows-1252 adds to Latin-1
    case 0x9C:
    case 0x9E:
        return static_cast<char>(code - 16);
    case 0xFF: // y with diaeresis
        return '\x9F';
    default:
        return ascii::toUpper(character);
    }
}

std::string upperCase(std::string_view text)
{
    std::string upper(text);
    std::transform(upper.begin(), upper.end(), upper.begin(), [](char character) { return upperCase(character); });
    return upper;
}

} // namespace lexigrove
