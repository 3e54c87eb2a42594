#include "console/line_channel.hpp"

#include "platform/leaving.hpp"

namespace lexigrove
{

namespace
{

struct Escape {
    char letter;
    char character;
};

constexpr Escape escapes[] = {{'r', '\r'}, {'n', '\n'}, {'t', '\t'}, {'\\', '\\'}};

} // namespace

std::string escaped(std::string_view text)
{
    std::string result;
    for (const char c : text) {
        char letter = 0;
        for (const Escape& escape : escapes)
            letter = escape.character == c ? escape.letter : letter;
        if (letter != 0)
            result += {'\\', letter};
        else
            result += c;
    }
    return result;
}

std::string unescaped(std::string_view text)
{
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        char character = text[i];
        if (character == '\\' && i + 1 < text.size()) {
            for (const Escape& escape : escapes) {
                if (escape.letter != text[i + 1])
                    continue;
                character = escape.character;
                ++i;
                break;
            }
        }
        result += character;
    }
    return result;
}

std::optional<std::string> LineChannel::readLine()
{
    out_.flush();
    std::string line;
    if (!std::getline(in_, line))
        return std::nullopt;
    if (line.ends_with('\r'))
        line.pop_back();
    return line;
}

std::string LineChannel::readReply()
{
    const std::optional<std::string> line = readLine();
    if (!line)
        throw Leaving{};
    return unescaped(*line);
}

std::string LineChannel::readChoice()
{
    std::string reply;
    do
        reply = readReply();
    while (reply.starts_with('#'));
    return reply;
}

void LineChannel::writeEvent(std::string_view what)
{
    out_ << "! " << what << '\n';
}

void LineChannel::writeEvent(std::string_view what, std::string_view text)
{
    out_ << "! " << what << ' ' << escaped(text) << '\n';
}

void LineChannel::write(char mark, std::string_view id, const Lines& lines)
{
    out_ << mark << id << ' ';
    for (std::size_t i = 0; i < lines.size(); ++i)
        out_ << (i > 0 ? "\n" : "") << escaped(lines[i]);
    out_ << "\n\n" << std::flush;
}

} // namespace lexigrove
