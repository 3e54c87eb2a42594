#include "platform/text_file.hpp"

namespace lexigrove
{

std::vector<std::string_view> splitLines(std::string_view text)
{
    std::vector<std::string_view> lines;
    std::size_t start = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\r' && text[i] != '\n')
            continue;
        lines.push_back(text.substr(start, i - start));
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n')
            ++i;
        start = i + 1;
    }
    if (start < text.size())
        lines.push_back(text.substr(start));
    return lines;
}

std::vector<std::string> readLines(const std::string& path)
{
    const std::string text = readFile(path);
    const std::vector<std::string_view> lines = splitLines(text);
    return {lines.begin(), lines.end()};
}

void replaceLines(const std::string& path, const std::vector<std::string>& lines)
{
    std::string bytes;
    for (const std::string& line : lines) {
        bytes += line;
        bytes += "\r\n";
    }
    replaceFile(path, bytes);
}

void copyFile(const std::string& source, const std::string& target)
{
    replaceFile(target, readFile(source));
}

} // namespace lexigrove
