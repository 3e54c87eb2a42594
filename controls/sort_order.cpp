#include "controls/sort_order.hpp"

#include "controls/label.hpp"

#include <algorithm>
#include <numeric>
#include <string>

namespace lexigrove
{

namespace
{

/// The small letter of a capital one in Windows-1252; any other character is itself.
char smallLetter(char c)
{
    const auto code = static_cast<unsigned char>(c);
    const bool latinCapital = (code >= 0xC0 && code <= 0xDE && code != 0xD7) || (code >= 'A' && code <= 'Z');
    if (latinCapital)
        return static_cast<char>(code + 0x20);
    if (code == 0x8A || code == 0x8C || code == 0x8E) // S with caron, OE, Z with caron
        return static_cast<char>(code + 0x10);
    if (code == 0x9F) // Y with diaeresis
        return static_cast<char>(0xFF);
    return c;
}

template <typename Key>
std::vector<std::size_t> orderOf(const std::vector<Key>& keys, SortDirection direction)
{
    std::vector<std::size_t> order(keys.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        return direction == SortDirection::Ascending ? keys[a] < keys[b] : keys[b] < keys[a];
    });
    return order;
}

} // namespace

std::vector<std::size_t> sortedOrder(const std::vector<std::string_view>& texts, SortBy by, SortDirection direction)
{
    if (by == SortBy::Number) {
        std::vector<int> numbers(texts.size());
        std::transform(texts.begin(), texts.end(), numbers.begin(), numberOf);
        return orderOf(numbers, direction);
    }
    std::vector<std::string> folded(texts.begin(), texts.end());
    for (std::string& text : folded)
        std::transform(text.begin(), text.end(), text.begin(), smallLetter);
    return orderOf(folded, direction);
}

} // namespace lexigrove
