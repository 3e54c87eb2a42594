#pragma once

#include <initializer_list>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

namespace lexigrove
{

/// A command cannot be carried out as it was given. `what()` names what was wrong, and nothing has changed.
class CommandError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// The decimal number of a text, an optional "-" before it. Throws CommandError "NAME must be LOWEST to HIGHEST: TEXT"
/// when it is none or lies outside.
int numberIn(std::string_view name, std::string_view text, int lowest, int highest);

/// The place of a text among the names. Throws CommandError "NAME must be A, B or C: TEXT".
std::size_t choiceOf(std::string_view name, std::string_view text, std::span<const std::string_view> names);

/// What stands behind a command's name, read from left to right. Arguments are separated by blanks and unescaped one
/// by one.
class Arguments
{
public:
    /// The text outlives the arguments.
    explicit Arguments(std::string_view text) : text_(text) {}

    /// The next argument, nothing at the end of the line.
    std::optional<std::string> next();

    /// The next argument. Throws CommandError "missing argument: NAME" without one.
    std::string required(std::string_view name);

    /// The next argument as a number (see `numberIn`).
    int number(std::string_view name, int lowest, int highest);

    /// The next argument as a place among the names (see `choiceOf`).
    std::size_t choice(std::string_view name, std::initializer_list<std::string_view> names);

    /// All that stands behind one blank, as it stands; it may be empty.
    std::string rest();

    /// Throws CommandError "unexpected argument: TEXT" unless nothing but blanks is left.
    void expectEnd();

private:
    std::string_view text_;
};

} // namespace lexigrove
