#include "dictionary/field_cipher.hpp"

#include "platform/ascii.hpp"

#include <stdexcept>

namespace lexigrove
{

namespace
{

constexpr std::string_view hexDigits = "0123456789ABCDEF";

/// The codes of a key's characters in turn, starting over at the end.
class KeyCodes
{
public:
    explicit KeyCodes(std::string_view key) : key_(key) {}

    unsigned next()
    {
        if (key_.empty())
            throw std::invalid_argument("The key of a field is empty");
        const auto code = static_cast<unsigned char>(key_[position_]);
        position_ = (position_ + 1) % key_.size();
        return code;
    }

private:
    std::string_view key_;
    std::size_t position_ = 0;
};

/// The value of a cell's leading hexadecimal digits, or 0 without any.
unsigned cellValue(std::string_view cell)
{
    unsigned value = 0;
    for (const char character : ascii::trimmed(cell)) {
        const int digit = ascii::hexValue(character);
        if (digit < 0)
            break;
        value = value * 16 + static_cast<unsigned>(digit);
    }
    return value;
}

} // namespace

std::string encipher(std::string_view text, std::string_view key)
{
    KeyCodes keyCodes(key);
    std::string cipher;
    cipher.reserve(text.size() * 2);
    for (const char character : text) {
        const unsigned code = static_cast<unsigned char>(character) ^ keyCodes.next();
        cipher += code < 16 ? ' ' : hexDigits[code / 16];
        cipher += hexDigits[code % 16];
    }
    return cipher;
}

std::string decipher(std::string_view cipher, std::string_view key)
{
    KeyCodes keyCodes(key);
    std::string text;
    text.reserve((cipher.size() + 1) / 2);
    for (std::size_t i = 0; i < cipher.size(); i += 2)
        text += static_cast<char>(keyCodes.next() ^ cellValue(cipher.substr(i, 2)));
    return text;
}

} // namespace lexigrove
