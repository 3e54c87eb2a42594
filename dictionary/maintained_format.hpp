#pragma once

#include "dictionary/word_list.hpp"

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace lexigrove
{

/// The coding base that the game writes. Any 16-bit base is read.
inline constexpr int writtenCodingBase = 129;

/// A text is not in the maintained format, or the format cannot hold the words.
class FormatError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// The content of the first line of a maintained file.
struct MaintainedHeader {
    int codingBase = 0; ///< 16 bits, signed
    std::string firstWord;
};

/// SplitHeaderLine: the two enciphered fields of a first line; the third, date and time, is ignored. Throws FormatError
/// if there is no tab character or the coding base exceeds 16 bits. A first field that is not a number is 0.
MaintainedHeader splitHeaderLine(std::string_view line);

/// True if a file that begins with this line is in the maintained format: the line has several fields, and the first
/// one deciphers to a whole number of at least 1. No plain word does.
bool isMaintainedHeader(std::string_view line);

/// The first line of a maintained file, without its line end.
std::string headerLine(std::string_view firstWord, std::string_view date, std::string_view time);

/// All lines after the first of a maintained file with the entries from 1 to the count, each with its line end, and
/// each coding a word relative to the one before. Throws FormatError if a marker is outside 0 to 255 or is a line end
/// (the word before has 116, 119 or more than 129 letters that the word does not share), or if a word contains a line
/// end.
std::string codedLines(const WordList& words);

/// The word that a line codes relative to the previous word. Throws FormatError if the line has no marker, or if its
/// marker shares fewer than 0 letters or more than the previous word has.
std::string expandLine(std::string_view previous, std::string_view line, int codingBase);

/// ExpandOldLine: the same for the older coding, whose marker is 64 + the number of shared letters.
std::string expandOldLine(std::string_view previous, std::string_view line);

/// How the words of a file are written: in the maintained format, in its older form, or plainly, one per line.
enum class Coding { Maintained, OldMaintained, Plain };

/// How the words of a file are written, by its first line: plainly or in the maintained format. Nothing if there are
/// none, or no such file.
std::optional<Coding> codingOf(const std::string& path);

/// Reads the lines of a dictionary file in order.
class LineDecoder
{
public:
    explicit LineDecoder(Coding coding) : coding_(coding) {}

    /// Reads the next line's word. Throws FormatError like the functions above; the last word read is then kept.
    const std::string& read(std::string_view line);

    /// The last word read, empty before the first.
    [[nodiscard]] const std::string& word() const { return word_; }

    /// The coding base from the first line; 0 before it and for a plain list.
    [[nodiscard]] int codingBase() const { return codingBase_; }

private:
    Coding coding_;
    bool atStart_ = true;
    int codingBase_ = 0;
    std::string word_;
};

/// The words of a whole maintained file.
struct MaintainedWords {
    int codingBase = 0;
    std::vector<std::string> words;
};

/// Decodes a whole file. Any bytes either decode or throw FormatError, as do more than 250,000 lines, or words of more
/// than 64 MiB in all (a file of a few hundred kilobytes could otherwise exhaust the memory).
MaintainedWords decodeMaintained(std::string_view text, Coding coding = Coding::Maintained);

/// The words of a dictionary file, plain or maintained. Throws FormatError, or std::length_error above 250,000 lines.
WordList wordsIn(std::string text);

} // namespace lexigrove
