#include "scores/score_file.hpp"

#include "dictionary/field_cipher.hpp"
#include "platform/ascii.hpp"
#include "platform/text_file.hpp"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <system_error>
#include <utility>

namespace lexigrove
{

namespace
{

constexpr std::size_t digits = 5;

/// The lines of the default file, in file order.
std::vector<std::string> defaultLines()
{
    std::vector<std::string> lines;
    for (int i = 1; i <= ScoreFile::lineCount; ++i)
        lines.push_back(scoreLine(20 - i, "Yelka"));
    return lines;
}

bool isScoreLine(std::string_view line)
{
    return line.size() > digits + 1 && line[digits] == '\t' && ascii::isNumber(line.substr(0, digits));
}

/// The score lines of the file in ascending order; nothing if the file exists but cannot be read.
std::optional<std::vector<std::string>> readScoreLines(const std::string& path)
{
    std::error_code noFile;
    if (!std::filesystem::exists(path, noFile))
        return std::vector<std::string>{};
    try {
        std::vector<std::string> lines;
        for (const std::string& cipher : readLines(path)) {
            std::string line = decipher(cipher, scoreFileKey);
            if (isScoreLine(line))
                lines.push_back(std::move(line));
        }
        std::sort(lines.begin(), lines.end());
        return lines;
    } catch (const FileError&) {
        return std::nullopt;
    }
}

/// Ten lines in ascending order out of any number: the best ten, or all of them and default lines for the rest.
std::vector<std::string> bestTen(std::vector<std::string> lines)
{
    constexpr std::size_t wanted = ScoreFile::lineCount;
    for (const std::string& line : defaultLines()) {
        if (lines.size() < wanted && std::find(lines.begin(), lines.end(), line) == lines.end())
            lines.push_back(line);
    }
    std::sort(lines.begin(), lines.end());
    if (lines.size() > wanted)
        lines.erase(lines.begin(), lines.end() - static_cast<std::ptrdiff_t>(wanted));
    return lines;
}

void writeScoreLines(const std::string& path, const std::vector<std::string>& lines)
{
    std::vector<std::string> ciphers;
    ciphers.reserve(lines.size());
    for (const std::string& line : lines)
        ciphers.push_back(encipher(line, scoreFileKey));
    try {
        replaceLines(path, ciphers);
    } catch (const FileError&) {
        return; // silently ignored
    }
}

bool isMissingOrEmpty(const std::string& path)
{
    std::error_code failure;
    const auto size = std::filesystem::file_size(path, failure);
    return failure ? !std::filesystem::exists(path, failure) : size == 0;
}

/// Waits for the turn with the file. The player is told whose it is if it does not end; a score that is then written
/// out of turn is better than one that is lost.
std::optional<FileLock> takeTurn(const std::string& path, Dialogs& dialogs)
{
    std::optional<FileLock> turn;
    try {
        turn.emplace(path);
    } catch (const FileError& error) {
        dialogs.message(error.what());
    }
    return turn;
}

} // namespace

ScoreFile::ScoreFile(std::string folder, Dialogs& dialogs)
    : path_(std::move(folder) + "LexigroveScores.txt"), dialogs_(dialogs)
{
}

void ScoreFile::ensure()
{
    if (!isMissingOrEmpty(path_))
        return;
    dialogs_.message("Scores File not found - will create a new one");
    const auto turn = takeTurn(path_, dialogs_);
    if (isMissingOrEmpty(path_)) // another game may have created it while the message was open
        writeScoreLines(path_, defaultLines());
}

std::vector<std::string> ScoreFile::load()
{
    ensure();
    return bestTen(readScoreLines(path_).value_or(std::vector<std::string>{}));
}

int ScoreFile::lowest()
{
    return scoreOf(load().front());
}

std::vector<std::string> ScoreFile::record(int score, const std::string& name)
{
    const auto turn = takeTurn(path_, dialogs_);
    const auto readable = readScoreLines(path_);
    std::vector<std::string> list = bestTen(readable.value_or(std::vector<std::string>{}));
    const std::string line = scoreLine(score, name);
    if (scoreOf(list.front()) >= scoreOf(line))
        return list;
    list.erase(list.begin());
    list.insert(std::upper_bound(list.begin(), list.end(), line), line);
    if (readable) // never overwrite scores that cannot be read
        writeScoreLines(path_, list);
    return list;
}

std::string scoreLine(int score, const std::string& name)
{
    const std::string number = std::to_string(std::clamp(score, 0, ScoreFile::highestScore));
    return std::string(digits - number.size(), '0') + number + "\t" + name;
}

int scoreOf(const std::string& line)
{
    return std::stoi(line.substr(0, digits));
}

} // namespace lexigrove
