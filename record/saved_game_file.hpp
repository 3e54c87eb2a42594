#pragma once

#include "platform/text_file.hpp"

#include <optional>
#include <string>

namespace lexigrove
{

/// The file "LexigroveGame.txt" of the program folder: the game that was left in the middle.
class SavedGameFile
{
public:
    /// `folder` ends with its separator.
    explicit SavedGameFile(const std::string& folder) : path_(folder + "LexigroveGame.txt") {}

    /// The whole text; nothing without a file. Throws FileError when there is one that cannot be read.
    [[nodiscard]] std::optional<std::string> read() const;

    /// Replaces the file whole or not at all. False when it could not be written; the old file stands then.
    bool write(const std::string& text, Durability durability) const;

    /// A file that cannot be removed stays.
    void remove() const;

    /// Gives the file another name beside it, "LexigroveGame-damaged.txt", in place of one set aside before. Returns
    /// the new name without the folder; the old one when the file could not be renamed.
    std::string setAside() const;

private:
    std::string path_;
};

} // namespace lexigrove
