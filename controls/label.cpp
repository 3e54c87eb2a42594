#include "controls/label.hpp"

#include "platform/ascii.hpp"

#include <cstdint>
#include <limits>

namespace lexigrove
{

int numberOf(std::string_view caption)
{
    const std::size_t start = caption.find_first_not_of(" \t");
    if (start == std::string_view::npos)
        return 0;
    caption.remove_prefix(start);
    const bool negative = caption.front() == '-';
    if (negative || caption.front() == '+')
        caption.remove_prefix(1);

    std::int64_t number = 0;
    for (const char c : caption) {
        if (!ascii::isDigit(c))
            break;
        number = number * 10 + (c - '0');
        if (number > std::numeric_limits<int>::max())
            return negative ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
    }
    return static_cast<int>(negative ? -number : number);
}

} // namespace lexigrove
