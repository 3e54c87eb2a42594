#include "dictionary/list_correction.hpp"

#include "dictionary/maintained_format.hpp"
#include "platform/ascii.hpp"
#include "platform/text_file.hpp"

#include <algorithm>
#include <filesystem>
#include <set>

namespace lexigrove
{

namespace
{

namespace fs = std::filesystem;

/// A line as a message shows it: a file that is no list may have long ones.
std::string shown(std::string_view line)
{
    constexpr std::size_t longest = 40;
    return line.size() <= longest ? std::string(line) : std::string(line.substr(0, longest)) + "...";
}

/// What follows "Line N of the list " in the sentence about this line; empty for a word that may come next.
std::string faultOf(std::string_view line, std::string_view previous)
{
    if (std::ranges::all_of(line, ascii::isUpper) && line > previous)
        return {};
    if (line.empty())
        return "is empty.";
    if (isMaintainedHeader(line))
        return "begins the compact form of Dictionary Maintenance, in which no word can be played.";
    if (!std::ranges::all_of(line, ascii::isLetter))
        return "holds something else than letters from A to Z, which cannot be played: " + shown(line);
    if (!std::ranges::all_of(line, ascii::isUpper))
        return "is in lower case, and only capital letters can be played: " + shown(line);
    if (line == previous)
        return "is there twice: " + shown(line);
    return "is out of order, so that words of the list are not found: " + shown(line);
}

/// The words that can be played. Spaces around them and the mark at the beginning of a file, both invisible, do not
/// count.
std::set<std::string> playableWords(const std::string& path)
{
    std::vector<std::string> lines =
        codingOf(path) == Coding::Maintained ? decodeMaintained(readFile(path)).words : readLines(path);
    if (!lines.empty() && lines.front().starts_with("\xEF\xBB\xBF"))
        lines.front().erase(0, 3);
    std::set<std::string> words;
    for (const std::string& line : lines) {
        std::string word = ascii::upperCase(std::string(ascii::trimmed(line, " \t")));
        if (!word.empty() && std::ranges::all_of(word, ascii::isUpper))
            words.insert(std::move(word));
    }
    return words;
}

} // namespace

std::string firstFault(const WordList& list, const std::string& name)
{
    for (int i = 1; i <= list.count(); ++i) {
        const std::string fault = faultOf(list.entry(i), list.entry(i - 1)); // entry 0 is empty
        if (!fault.empty())
            return "Line " + std::to_string(i) + " of " + fs::path(name).filename().string() + " " + fault;
    }
    return {};
}

std::string correctedName(const std::string& name)
{
    const fs::path path(name);
    return (path.parent_path() / (path.stem().string() + "-corrected.txt")).string();
}

void writeCorrected(const std::string& path, const std::string& copy)
{
    std::string text;
    try {
        for (const std::string& word : playableWords(path))
            text.append(word).append("\r\n");
    } catch (const FormatError& error) {
        throw FileError(error.what(), path, 0);
    }
    if (text.empty())
        throw FileError("The list holds no word of the letters A to Z", path, 0);
    if (!fs::exists(copy))
        replaceFile(copy, text);
    else if (readFile(copy) != text)
        throw FileError("Another list has this name already and stays as it is; choose it, or rename it", copy, 0);
}

} // namespace lexigrove
