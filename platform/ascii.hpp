#pragma once

#include <algorithm>
#include <string>
#include <string_view>

/// ASCII letters, digits and blanks, whatever the locale. Any other character is none of these and is left unchanged.
namespace lexigrove::ascii
{

constexpr bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}
constexpr bool isUpper(char c)
{
    return c >= 'A' && c <= 'Z';
}
constexpr bool isLower(char c)
{
    return c >= 'a' && c <= 'z';
}
constexpr bool isLetter(char c)
{
    return isUpper(c) || isLower(c);
}

constexpr char toUpper(char c)
{
    return isLower(c) ? static_cast<char>(c - 'a' + 'A') : c;
}
constexpr char toLower(char c)
{
    return isUpper(c) ? static_cast<char>(c - 'A' + 'a') : c;
}

/// The value of a hexadecimal digit; -1 for anything else.
constexpr int hexValue(char c)
{
    if (isDigit(c))
        return c - '0';
    const char letter = toUpper(c);
    return letter >= 'A' && letter <= 'F' ? letter - 'A' + 10 : -1;
}

/// Digits and nothing else; false for an empty string.
inline bool isNumber(std::string_view text)
{
    return !text.empty() && std::ranges::all_of(text, isDigit);
}

inline std::string upperCase(std::string text)
{
    std::ranges::transform(text, text.begin(), toUpper);
    return text;
}
inline std::string lowerCase(std::string text)
{
    std::ranges::transform(text, text.begin(), toLower);
    return text;
}

/// The text without these characters at its ends. The view points into `text`.
constexpr std::string_view trimmed(std::string_view text, std::string_view blanks = " ")
{
    const std::size_t first = std::min(text.find_first_not_of(blanks), text.size());
    return text.substr(first, text.find_last_not_of(blanks) + 1 - first);
}

} // namespace lexigrove::ascii
