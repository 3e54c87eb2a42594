#include "dictionary/word_text.hpp"

#include <algorithm>

namespace lexigrove
{

unsigned char upperCase(unsigned char character)
{
    if (character >= 'a' && character <= 'z')
        return static_cast<unsigned char>(character - 32);
    if (character >= 0xE0 && character != 0xF7 && character != 0xFF) // 0xF7 is the division sign
        return static_cast<unsigned char>(character - 32);
    switch (character) {
    case 0x9A: // s caron, oe and z caron, which Windows-1252 adds to Latin-1
    case 0x9C:
    case 0x9E:
        return static_cast<unsigned char>(character - 16);
    case 0xFF: // y with diaeresis
        return 0x9F;
    default:
        return character;
    }
}

std::string upperCase(std::string_view text)
{
    std::string upper(text);
    std::transform(upper.begin(), upper.end(), upper.begin(),
                   [](char character) { return static_cast<char>(upperCase(static_cast<unsigned char>(character))); });
    return upper;
}

std::string_view trimBlanks(std::string_view text)
{
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

} // namespace lexigrove
