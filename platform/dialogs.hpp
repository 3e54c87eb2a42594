#pragma once

#include <string>

namespace lexigrove
{

/// What a file-open dialog is asked for.
struct OpenFileRequest {
    std::string title;
    std::string filter;        ///< description, zero character, patterns separated by ";", zero character
    std::string initialFolder; ///< with its closing separator
};

/// The questions that rules put to the player. Every call blocks until it is answered; texts are passed whole, in
/// Windows-1252. Closing the main window meanwhile throws `Leaving`.
class Dialogs
{
public:
    virtual ~Dialogs() = default;

    /// A message box with an OK button only.
    virtual void message(const std::string& text) = 0;

    /// A question with Yes and No; true for Yes.
    virtual bool confirm(const std::string& text) = 0;

    /// An input box. Cancel and an empty answer are both the empty text.
    virtual std::string input(const std::string& title, const std::string& prompt,
                              const std::string& defaultAnswer) = 0;

    /// A file-open dialog: the whole path chosen, or the empty text for Cancel.
    virtual std::string openFile(const OpenFileRequest& request) = 0;
};

} // namespace lexigrove
