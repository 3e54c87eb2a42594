#pragma once

#include "platform/dialogs.hpp"

#include <string>
#include <vector>

namespace lexigrove
{

/// The ten best scores, in `LexigroveScores.txt` of the program folder. A line is the score in five digits, a tab and
/// the player's name; every line of the file is enciphered, so that it holds no control character, whatever the name.
///
/// A damaged file gives up what can be read: every line that still is a score line stays in play, the best ten of them
/// make the list, and default lines fill up what is missing. A file that cannot be read or written is passed over in
/// silence.
class ScoreFile
{
public:
    static constexpr int lineCount = 10;
    static constexpr int highestScore = 99999; ///< five digits; a higher score is kept as this one

    /// `folder` ends with its separator.
    ScoreFile(std::string folder, Dialogs& dialogs);

    /// Says so and writes the default file where the file is missing or empty: 19 down to 10 points, all Yelka's.
    void ensure();

    /// The ten score lines in ascending order of their bytes, the lowest score first. Ensures the file.
    std::vector<std::string> load();

    /// The lowest score of the list. Ensures the file.
    int lowest();

    /// Puts the line of this score and name into the file in place of the lowest one. The list is read again under a
    /// lock, so that two running games do not undo each other; where another game has meanwhile raised the bar to the
    /// score or above it, nothing changes. The list as it stands then, with the new line also where the file could not
    /// be written; a file that cannot be read is left alone.
    std::vector<std::string> record(int score, const std::string& name);

    [[nodiscard]] const std::string& path() const { return path_; }

private:
    std::string path_;
    Dialogs& dialogs_;
};

/// The score line of a score, cut to 0 to `ScoreFile::highestScore`, and a name.
std::string scoreLine(int score, const std::string& name);

/// The score of a score line.
int scoreOf(const std::string& line);

} // namespace lexigrove
