#include "dictionary/maintained_format.hpp"

#include "dictionary/field_cipher.hpp"
#include "platform/ascii.hpp"
#include "platform/text_file.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <memory>

namespace lexigrove
{

namespace
{

constexpr int olderCodingBase = 64;
constexpr int largestCodingBase = std::numeric_limits<std::int16_t>::max();
constexpr std::size_t largestWordsSize = std::size_t{64} << 20;

/// The number at the start of a text, or 0 without one.
double leadingNumber(std::string_view text)
{
    const std::string_view trimmed = ascii::trimmed(text);
    double number = 0;
    const auto result = std::from_chars(trimmed.data(), trimmed.data() + trimmed.size(), number);
    return result.ec == std::errc::result_out_of_range ? HUGE_VAL : number;
}

std::size_t sharedLetters(std::string_view previous, std::string_view word)
{
    const auto differing = std::mismatch(previous.begin(), previous.end(), word.begin(), word.end());
    return static_cast<std::size_t>(differing.first - previous.begin());
}

void refuseLineEnd(char letter)
{
    if (letter == '\r' || letter == '\n')
        throw FormatError("A word holds a line end");
}

/// Turns the previous word into the line's word: its first (marker - `unshared`) letters, followed by the rest of the
/// line.
void expand(std::string& word, std::string_view line, std::ptrdiff_t unshared)
{
    if (line.empty())
        throw FormatError("A line has no marker");
    const std::ptrdiff_t shared = static_cast<unsigned char>(line.front()) - unshared;
    if (shared < 0 || static_cast<std::size_t>(shared) > word.size())
        throw FormatError("A marker shares letters that the word before does not have");
    word.resize(static_cast<std::size_t>(shared));
    word += line.substr(1);
}

bool beginsWithHeader(std::string_view text)
{
    return isMaintainedHeader(text.substr(0, text.find_first_of("\r\n")));
}

std::ptrdiff_t unsharedLetters(int codingBase, std::string_view previous)
{
    return codingBase - std::ssize(previous);
}

/// Writes the line that codes a word relative to the previous word, with its line end, and returns where it ends.
char* writeCodedLine(char* line, std::string_view previous, std::string_view word)
{
    const std::size_t shared = sharedLetters(previous, word);
    const std::string_view rest = word.substr(shared);
    const std::size_t unshared = previous.size() - shared;
    if (unshared > writtenCodingBase)
        throw FormatError("A word of more than 129 letters cannot be coded: " + std::string(previous));
    const auto marker = static_cast<char>(writtenCodingBase - static_cast<int>(unshared));
    if (marker == '\r' || marker == '\n')
        throw FormatError("The marker behind this word would be a line end: " + std::string(previous));
    *line++ = marker;
    for (const char letter : rest) { // mostly few, so that no function is worth its call
        refuseLineEnd(letter);
        *line++ = letter;
    }
    *line++ = '\r';
    *line++ = '\n';
    return line;
}

} // namespace

MaintainedHeader splitHeaderLine(std::string_view line)
{
    const auto tab = line.find('\t');
    if (tab == std::string_view::npos)
        throw FormatError("The first line is no header of the maintained format");
    const double base = std::nearbyint(leadingNumber(decipher(line.substr(0, tab), KESTR)));
    if (!(std::abs(base) <= largestCodingBase)) // also rejects NaN
        throw FormatError("The coding base leaves 16 bits");
    const std::string_view rest = line.substr(tab + 1);
    return {static_cast<int>(base), decipher(rest.substr(0, rest.find('\t')), KESTR)};
}

bool isMaintainedHeader(std::string_view line)
{
    const auto tab = line.find('\t');
    if (tab == std::string_view::npos)
        return false;
    const std::string base = decipher(line.substr(0, tab), KESTR);
    int number = 0;
    const auto result = std::from_chars(base.data(), base.data() + base.size(), number);
    return result.ec == std::errc() && result.ptr == base.data() + base.size() && number >= 1 &&
           number <= largestCodingBase;
}

std::string headerLine(std::string_view firstWord, std::string_view date, std::string_view time)
{
    std::string line = encipher(std::to_string(writtenCodingBase), KESTR);
    line += '\t';
    line += encipher(firstWord, KESTR);
    line += '\t';
    line += date;
    line += ' ';
    line += time;
    return line;
}

std::string codedLines(const WordList& words)
{
    const std::string_view first = words.entry(1);
    std::for_each(first.begin(), first.end(), refuseLineEnd);
    const std::size_t enough = words.memory() + std::size_t{3} * static_cast<std::size_t>(words.count());
    const auto text = std::make_unique_for_overwrite<char[]>(enough);
    char* end = text.get();
    for (int i = 2; i <= words.count(); ++i)
        end = writeCodedLine(end, words.entry(i - 1), words.entry(i));
    return {text.get(), end};
}

std::string expandLine(std::string_view previous, std::string_view line, int codingBase)
{
    std::string word(previous);
    expand(word, line, unsharedLetters(codingBase, previous));
    return word;
}

std::string expandOldLine(std::string_view previous, std::string_view line)
{
    std::string word(previous);
    expand(word, line, olderCodingBase);
    return word;
}

std::optional<Coding> codingOf(const std::string& path)
{
    try {
        const std::string text = readFile(path);
        if (text.empty())
            return std::nullopt;
        return beginsWithHeader(text) ? Coding::Maintained : Coding::Plain;
    } catch (const FileError&) {
        return std::nullopt;
    }
}

const std::string& LineDecoder::read(std::string_view line)
{
    if (coding_ == Coding::Plain) {
        word_ = line;
    } else if (atStart_) {
        MaintainedHeader header = splitHeaderLine(line);
        codingBase_ = header.codingBase;
        word_ = std::move(header.firstWord);
    } else {
        expand(word_, line, coding_ == Coding::OldMaintained ? olderCodingBase : unsharedLetters(codingBase_, word_));
    }
    atStart_ = false;
    return word_;
}

MaintainedWords decodeMaintained(std::string_view text, Coding coding)
{
    const std::vector<std::string_view> lines = splitLines(text);
    if (lines.empty())
        throw FormatError("The file is empty");
    if (lines.size() > static_cast<std::size_t>(WordList::capacity))
        throw FormatError("The file holds more than 250,000 lines");

    LineDecoder decoder(coding);
    MaintainedWords decoded;
    decoded.words.reserve(lines.size());
    std::size_t size = 0;
    for (const std::string_view line : lines) {
        decoded.words.push_back(decoder.read(line));
        size += decoder.word().size();
        if (size > largestWordsSize)
            throw FormatError("The words fill more than 64 MiB");
    }
    decoded.codingBase = decoder.codingBase();
    return decoded;
}

WordList wordsIn(std::string text)
{
    if (!beginsWithHeader(text))
        return WordList::ofLines(std::move(text));
    const MaintainedWords decoded = decodeMaintained(text);
    const std::vector<std::string_view> words(decoded.words.begin(), decoded.words.end());
    return WordList::of(words);
}

} // namespace lexigrove
