#pragma once

#include "platform/dialogs.hpp"

#include <string>
#include <vector>

namespace lexigrove
{

/// The ten best scores, in `LexigroveScores.txt` in the program folder. A line is the score in five digits, a tab and
/// the player's name. Every line of the file is enciphered, so that it contains no control character, whatever the
/// name.
///
/// A damaged file is salvaged: the best ten of the lines that are still score lines make the list, and default lines
/// fill the gaps. A file that cannot be read or written is silently ignored.
class ScoreFile
{
public:
    static constexpr int lineCount = 10;
    static constexpr int highestScore = 99999; ///< five digits; a higher score is stored as this

    /// `folder` ends with a separator.
    ScoreFile(std::string folder, Dialogs& dialogs);

    /// If the file is missing or empty, says so and writes the default file: 19 down to 10 points, all Yelka's.
    void ensure();

    /// The ten score lines in ascending order of their bytes, the lowest score first. Ensures the file.
    std::vector<std::string> load();

    /// The lowest score of the list. Ensures the file.
    int lowest();

    /// Replaces the lowest line of the file with one for this score and name. The list is read again under a lock, so
    /// that two running games do not undo each other's changes; if another game has meanwhile raised the lowest score
    /// to this one or above, nothing changes. Returns the resulting list, with the new line even if the file could not
    /// be written; a file that cannot be read is left alone.
    std::vector<std::string> record(int score, const std::string& name);

    [[nodiscard]] const std::string& path() const { return path_; }

private:
    std::string path_;
    Dialogs& dialogs_;
};

/// The score line for a name and a score, which is clamped to 0 to `ScoreFile::highestScore`.
std::string scoreLine(int score, const std::string& name);

/// The score of a score line.
int scoreOf(const std::string& line);

} // namespace lexigrove
