#pragma once

#include <optional>
#include <string>

namespace lexigrove
{

/// A request for a file-open dialog.
struct OpenFileRequest {
    std::string title;
    std::string filter;        ///< description, NUL, patterns separated by ";", NUL
    std::string initialFolder; ///< with its trailing separator
};

/// Questions that the rules ask the player. Every call blocks until it is answered. Texts are complete and in
/// Windows-1252. Closing the main window meanwhile throws `Leaving`.
class Dialogs
{
public:
    virtual ~Dialogs() = default;

    /// A message box with only an OK button.
    virtual void message(const std::string& text) = 0;

    /// A question with Yes and No; true for Yes.
    virtual bool confirm(const std::string& text) = 0;

    /// Offers to mend what would spoil the game; true if the player accepts. Where nobody can look into it, nothing is
    /// asked and the game goes on as it is.
    virtual bool offer(const std::string& /*text*/) { return false; }

    /// A question at the end of a game that was recorded: nothing when the player wants to look back on it first.
    virtual std::optional<bool> confirmOrLookBack(const std::string& text) { return confirm(text); }

    /// An input box. Cancel and an empty answer both return an empty string.
    virtual std::string input(const std::string& title, const std::string& prompt,
                              const std::string& defaultAnswer) = 0;

    /// An input box for developers, which players find by accident: nothing when help is wanted instead.
    virtual std::optional<std::string> inputOrHelp(const std::string& title, const std::string& prompt)
    {
        return input(title, prompt, "");
    }

    /// A file-open dialog. Returns the full path chosen, or an empty string for Cancel.
    virtual std::string openFile(const OpenFileRequest& request) = 0;
};

} // namespace lexigrove
