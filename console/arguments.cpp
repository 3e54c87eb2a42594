#include "console/arguments.hpp"

#include "console/line_channel.hpp"

#include <algorithm>
#include <charconv>

namespace lexigrove
{

int numberIn(std::string_view name, std::string_view text, int lowest, int highest)
{
    int number = 0;
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (failure != std::errc{} || end != text.data() + text.size() || number < lowest || number > highest) {
        throw CommandError(std::string(name) + " must be " + std::to_string(lowest) + " to " + std::to_string(highest) +
                           ": " + std::string(text));
    }
    return number;
}

std::size_t choiceOf(std::string_view name, std::string_view text, std::span<const std::string_view> names)
{
    const auto found = std::find(names.begin(), names.end(), text);
    if (found != names.end())
        return static_cast<std::size_t>(found - names.begin());
    std::string reason = std::string(name) + " must be ";
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (i > 0)
            reason += i + 1 == names.size() ? " or " : ", ";
        reason += names[i];
    }
    throw CommandError(reason + ": " + std::string(text));
}

std::optional<std::string> Arguments::next()
{
    const std::size_t start = text_.find_first_not_of(' ');
    if (start == std::string_view::npos)
        return std::nullopt;
    text_.remove_prefix(start);
    const std::size_t length = std::min(text_.find(' '), text_.size());
    std::string argument = unescaped(text_.substr(0, length));
    text_.remove_prefix(length);
    return argument;
}

std::string Arguments::required(std::string_view name)
{
    if (auto argument = next())
        return *argument;
    throw CommandError("missing argument: " + std::string(name));
}

int Arguments::number(std::string_view name, int lowest, int highest)
{
    return numberIn(name, required(name), lowest, highest);
}

std::size_t Arguments::choice(std::string_view name, std::initializer_list<std::string_view> names)
{
    return choiceOf(name, required(name), {names.begin(), names.size()});
}

std::string Arguments::rest()
{
    if (text_.starts_with(' '))
        text_.remove_prefix(1);
    std::string text = unescaped(text_);
    text_ = {};
    return text;
}

void Arguments::expectEnd()
{
    if (const auto argument = next())
        throw CommandError("unexpected argument: " + *argument);
}

} // namespace lexigrove
