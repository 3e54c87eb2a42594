#include "platform/installed_files.hpp"

#include "platform/text_file.hpp"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <filesystem>
#include <map>
#include <string_view>
#include <vector>

namespace lexigrove
{

namespace
{

namespace fs = std::filesystem;

constexpr const char* noteName = ".installed";
constexpr int noteFields = 4;

/// The installed file that a copy was made from.
struct Original {
    std::string stamp; ///< size and time of last change, as written in the manifest
    std::string sum;   ///< checksum of the content
};
using Note = std::map<std::string, Original>;

/// 64-bit FNV-1a: detects changed files, but is no defence against forgery.
std::string checksum(const std::string& path)
{
    std::uint64_t sum = 14695981039346656037U;
    for (const char byte : readFile(path)) {
        sum ^= static_cast<unsigned char>(byte);
        sum *= 1099511628211U;
    }
    return std::to_string(sum);
}

std::string stampOf(const fs::path& file)
{
    return std::to_string(fs::file_size(file)) + "\t" +
           std::to_string(fs::last_write_time(file).time_since_epoch().count());
}

/// A missing or corrupt manifest counts as empty.
Note readNote(const std::string& path)
{
    Note note;
    if (!fs::exists(path))
        return note;
    for (const std::string& line : readLines(path)) {
        std::vector<std::string> fields{""};
        for (const char c : line) {
            if (c == '\t')
                fields.emplace_back();
            else
                fields.back() += c;
        }
        if (fields.size() == noteFields)
            note[fields[0]] = {fields[1] + "\t" + fields[2], fields[3]};
    }
    return note;
}

void writeNote(const std::string& path, const Note& note)
{
    std::vector<std::string> lines;
    for (const auto& [name, original] : note)
        lines.push_back(name + "\t" + original.stamp + "\t" + original.sum);
    replaceLines(path, lines);
}

/// Syncs one file. Returns its manifest entry.
Original follow(const fs::path& installed, const fs::path& target, const Original& noted)
{
    Original now{stampOf(installed), checksum(installed.string())};
    if (!fs::exists(target)) {
        copyFile(installed.string(), target.string());
        return now;
    }
    const std::string present = checksum(target.string());
    if (present == now.sum)
        return now;
    if (present == noted.sum) {
        copyFile(installed.string(), target.string());
        return now;
    }
    return {now.stamp, noted.sum}; // the player's own; checked again when the installed file changes
}

std::vector<fs::path> filesToFollow(const std::string& installed)
{
    std::vector<fs::path> files;
    for (const fs::directory_entry& entry : fs::directory_iterator(installed)) {
        if (entry.is_regular_file() && !entry.path().filename().string().starts_with('.'))
            files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

} // namespace

void followInstalledFiles(const std::string& installed, const std::string& target)
{
    const std::string notePath = (fs::path(target) / noteName).string();
    const FileLock lock(notePath); // two games may start at once
    Note note = readNote(notePath);
    bool changed = false;
    for (const fs::path& file : filesToFollow(installed)) {
        const std::string name = file.filename().string();
        Original& noted = note[name];
        const fs::path copy = fs::path(target) / name;
        if (noted.stamp == stampOf(file) && fs::exists(copy))
            continue;
        noted = follow(file, copy, noted);
        changed = true;
    }
    if (changed)
        writeNote(notePath, note);
}

} // namespace lexigrove
