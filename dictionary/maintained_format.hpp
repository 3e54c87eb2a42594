#pragma once

#include "dictionary/word_list.hpp"

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace lexigrove
{

/// The coding base that the game writes. Any 16-bit base is read.
inline constexpr int writtenCodingBase = 129;

/// A text that is not in the maintained format, or words that it cannot hold.
class FormatError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// What the first line of a maintained file says.
struct MaintainedHeader {
    int codingBase = 0; ///< 16 bits, signed
    std::string firstWord;
};

/// SplitHeaderLine: the two enciphered fields of a first line; the third, date and time, is ignored. Throws FormatError
/// when there is no tab character or when the coding base leaves 16 bits. A first field that is no number is 0.
MaintainedHeader splitHeaderLine(std::string_view line);

/// True when a file that begins with this line is in the maintained format: its first field of several deciphers to a
/// whole number from 1 up. No plain word does.
bool isMaintainedHeader(std::string_view line);

/// The first line of a maintained file, without its line end.
std::string headerLine(std::string_view firstWord, std::string_view date, std::string_view time);

/// Appends the line that codes a word against the word before it, with its line end. Throws FormatError when the marker
/// lies outside 0 to 255 or is a line end (the word before has 116, 119 or more than 129 letters that this one does not
/// share), and when the word itself holds a line end.
void appendCodedLine(std::string& text, std::string_view previous, std::string_view word);

/// Every line behind the first of a maintained file of entries 1 to the count, each with its line end. Throws as
/// `appendCodedLine`, also when entry 1 holds a line end.
std::string codedLines(const WordList& words);

/// The word that a line codes against the word before it. Throws FormatError when the line has no marker, or one that
/// shares fewer than 0 letters or more than the word before has.
std::string expandLine(std::string_view previous, std::string_view line, int codingBase);

/// ExpandOldLine: the same for the older coding, whose marker is 64 + the number of shared letters.
std::string expandOldLine(std::string_view previous, std::string_view line);

/// How the words of a file are written: in the maintained format, in its older form, or one a line as they stand.
enum class Coding { Maintained, OldMaintained, Plain };

/// Reads the lines of a dictionary file one after the other.
class LineDecoder
{
public:
    explicit LineDecoder(Coding coding) : coding_(coding) {}

    /// Reads the next line's word. Throws FormatError as the functions above do; the word read last then stays.
    const std::string& read(std::string_view line);

    /// The word read last, empty before the first.
    [[nodiscard]] const std::string& word() const { return word_; }

    /// The coding base that the first line gave, 0 before it and in a plain list.
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

/// Decodes a whole file. Any bytes decode or throw FormatError, also above 250,000 lines, or when the words would fill
/// more than 64 MiB (a file of a few hundred kilobytes could otherwise fill any memory).
MaintainedWords decodeMaintained(std::string_view text, Coding coding = Coding::Maintained);

} // namespace lexigrove
