#pragma once

#include <istream>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace lexigrove
{

/// Lines of an answer or an event, unescaped: the channel escapes them.
using Lines = std::vector<std::string>;

/// The text with carriage return, line feed, tab and backslash as `\r`, `\n`, `\t` and `\\`; all other bytes are
/// unchanged.
std::string escaped(std::string_view text);

/// The reverse of `escaped`. A backslash before any other character is just that.
std::string unescaped(std::string_view text);

/// The two streams of the protocol: lines come in; answers and the events before them go out.
class LineChannel
{
public:
    /// The streams outlive the channel.
    LineChannel(std::istream& in, std::ostream& out) : in_(in), out_(out) {}
    LineChannel(const LineChannel&) = delete;
    LineChannel& operator=(const LineChannel&) = delete;

    /// The next input line without its line end (LF or CR LF), still escaped; nothing at the end of the input. Flushes
    /// the output first.
    std::optional<std::string> readLine();

    /// The input line that answers a question. Throws `Leaving` at the end of the input.
    std::string readReply();

    /// The same for a question with a few possible answers: lines that begin with "#" are skipped.
    std::string readChoice();

    /// "! what" and "! what text".
    void writeEvent(std::string_view what);
    void writeEvent(std::string_view what, std::string_view text);

    /// The answer to a command with this id, which may be empty, and its closing empty line. Flushes.
    void writeAnswer(std::string_view id, const Lines& lines) { write('=', id, lines); }
    void writeFailure(std::string_view id, const std::string& reason) { write('?', id, {reason}); }

private:
    void write(char mark, std::string_view id, const Lines& lines);

    std::istream& in_;
    std::ostream& out_;
};

} // namespace lexigrove
