#include "record/line_fields.hpp"

#include "platform/hash.hpp"
#include "platform/text_file.hpp"

#include <algorithm>
#include <charconv>

namespace lexigrove
{

void LineWriter::number(std::string_view name, int value, int /*lowest*/, int /*highest*/)
{
    line(name, std::to_string(value));
}

void LineWriter::numbers(std::string_view name, std::span<const int> values, int /*lowest*/, int /*highest*/)
{
    std::string joined;
    for (const int value : values)
        joined += (joined.empty() ? "" : " ") + std::to_string(value);
    text(name, joined);
}

void LineWriter::list(std::string_view name, const std::vector<int>& values, int lowest, int highest)
{
    numbers(name, values, lowest, highest);
}

void LineWriter::text(std::string_view name, std::string_view value)
{
    line(name, value.empty() ? field::noText : value);
}

void LineWriter::hash(std::string_view name, std::uint64_t value)
{
    line(name, std::to_string(value));
}

void LineWriter::board(std::string_view name, const BoardPosition& value)
{
    line(name, textOf(value));
}

std::string LineWriter::finished()
{
    hash("check", hashOf(text_));
    return text_;
}

void LineWriter::line(std::string_view name, std::string_view value)
{
    text_.append(name).append(" ").append(value) += '\n';
}

LineReader::LineReader(std::string_view text, std::string_view firstLine) : text_(text), lines_(splitLines(text))
{
    const std::string_view kind = firstLine.substr(0, firstLine.rfind(' ') + 1);
    if (lines_.empty() || !lines_[0].starts_with(kind))
        fail("'" + std::string(firstLine) + "' is expected here");
    if (lines_[0] != firstLine)
        fail("another version of the game has written this");
}

bool LineReader::isNext(std::string_view name) const
{
    return place_ + 1 < lines_.size() && lines_[place_ + 1].starts_with(std::string(name) + ' ');
}

void LineReader::number(std::string_view name, int& value, int lowest, int highest)
{
    value = numberIn(take(name), lowest, highest);
}

void LineReader::numbers(std::string_view name, std::span<int> values, int lowest, int highest)
{
    std::vector<int> read;
    list(name, read, lowest, highest);
    if (read.size() != values.size())
        fail(std::to_string(read.size()) + " numbers instead of " + std::to_string(values.size()));
    std::copy(read.begin(), read.end(), values.begin());
}

void LineReader::list(std::string_view name, std::vector<int>& values, int lowest, int highest)
{
    std::string_view rest = take(name);
    values.clear();
    while (rest != field::noText && !rest.empty()) {
        const std::size_t end = std::min(rest.find(' '), rest.size());
        values.push_back(numberIn(rest.substr(0, end), lowest, highest));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
}

void LineReader::text(std::string_view name, std::string& value)
{
    const std::string_view read = take(name);
    value = read == field::noText ? std::string_view{} : read;
}

void LineReader::hash(std::string_view name, std::uint64_t& value)
{
    const std::string_view read = take(name);
    const auto [end, failure] = std::from_chars(read.data(), read.data() + read.size(), value);
    if (failure != std::errc{} || end != read.data() + read.size())
        fail("'" + std::string(read) + "' is no number");
}

void LineReader::board(std::string_view name, BoardPosition& value)
{
    const std::string_view read = take(name);
    try {
        value = boardPositionOf(read);
    } catch (const PositionError& error) {
        fail(error.what());
    }
}

std::size_t LineReader::choiceIn(std::string_view name, std::span<const std::string_view> names)
{
    const std::string_view read = take(name);
    const auto found = std::find(names.begin(), names.end(), read);
    if (found == names.end())
        fail("'" + std::string(read) + "' is not known");
    return static_cast<std::size_t>(found - names.begin());
}

void LineReader::expectEnd()
{
    std::uint64_t check = 0;
    hash("check", check);
    if (++place_ < lines_.size())
        fail("nothing is expected here");
}

void LineReader::expectWritten(std::string_view written) const
{
    if (written == text_)
        return;
    const auto* const place = std::mismatch(text_.begin(), text_.end(), written.begin(), written.end()).first;
    throw PositionError("line " + std::to_string(std::count(text_.begin(), place, '\n') + 1) +
                        ": the text was changed");
}

void LineReader::fail(const std::string& what) const
{
    throw PositionError("line " + std::to_string(place_ + 1) + ": " + what);
}

std::string_view LineReader::take(std::string_view name)
{
    if (++place_ >= lines_.size())
        fail(std::string(name) + " is missing");
    const std::string_view line = lines_[place_];
    if (!line.starts_with(name) || line.size() <= name.size() || line[name.size()] != ' ')
        fail(std::string(name) + " is expected here");
    return line.substr(name.size() + 1);
}

int LineReader::numberIn(std::string_view text, int lowest, int highest) const
{
    int value = 0;
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (failure != std::errc{} || end != text.data() + text.size() || value < lowest || value > highest)
        fail("'" + std::string(text) + "' is no number from " + std::to_string(lowest) + " to " +
             std::to_string(highest));
    return value;
}

} // namespace lexigrove
