#pragma once

#include "record/game_record.hpp"

#include <string>
#include <vector>

namespace lexigrove
{

/// A record with the name of its file, without the folder.
struct NamedRecord {
    std::string name;
    GameRecord record;
};

/// The folder "Games" of the program folder: a file a game. A file is named by the game's start and a number that tells
/// games of one minute apart, "2026-11-23-0415-001.txt", so that the names sort by time. Other files are left alone.
class RecordFolder
{
public:
    static constexpr std::size_t most = 200; ///< games that are kept

    /// `programFolder` ends with its separator.
    explicit RecordFolder(const std::string& programFolder) : folder_(programFolder + "Games/") {}

    /// Writes a record whole or not at all, and removes the oldest games beyond the 200. Makes the folder where it is
    /// missing. Returns the file's name. Throws FileError when the record could not be written.
    std::string add(const GameRecord& record) const;

    struct Contents {
        std::vector<NamedRecord> records; ///< that can be read, the newest first
        int damaged = 0;                  ///< number of the others
    };
    /// Empty without a folder.
    [[nodiscard]] Contents list() const;

    /// The record of a file. Throws FileError or PositionError.
    [[nodiscard]] GameRecord load(const std::string& name) const;

private:
    [[nodiscard]] std::vector<std::string> names() const;

    std::string folder_;
};

} // namespace lexigrove
