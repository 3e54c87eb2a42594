#pragma once

#include <initializer_list>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

namespace lexigrove
{

/// A command cannot be carried out as given. `what()` says what is wrong, and nothing has changed.
class CommandError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// The decimal number in a text, with an optional "-". Throws CommandError "NAME must be LOWEST to HIGHEST: TEXT" if
/// there is none or it is out of range.
int numberIn(std::string_view name, std::string_view text, int lowest, int highest);

/// The index of a text among the names. Throws CommandError "NAME must be A, B or C: TEXT".
std::size_t choiceOf(std::string_view name, std::string_view text, std::span<const std::string_view> names);

/// The text after a command's name, read from left to right. Arguments are separated by blanks and unescaped one by
/// one.
class Arguments
{
public:
    /// The text outlives the arguments.
    explicit Arguments(std::string_view text) : text_(text) {}

    /// The next argument, or nothing at the end of the line.
    std::optional<std::string> next();

    /// The next argument. Throws CommandError "missing argument: NAME" without one.
    std::string required(std::string_view name);

    /// The next argument as a number (see `numberIn`).
    int number(std::string_view name, int lowest, int highest);

    /// The next argument as an index among the names (see `choiceOf`).
    std::size_t choice(std::string_view name, std::initializer_list<std::string_view> names);

    /// Everything after one blank; may be empty.
    std::string rest();

    /// Throws CommandError "unexpected argument: TEXT" unless nothing but blanks is left.
    void expectEnd();

private:
    std::string_view text_;
};

} // namespace lexigrove
