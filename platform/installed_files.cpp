#include "platform/installed_files.hpp"

#include "platform/hash.hpp"
#include "platform/text_file.hpp"

#include <algorithm>
#include <filesystem>
#include <map>
#include <vector>

namespace lexigrove
{

namespace
{

namespace fs = std::filesystem;

constexpr const char* manifestName = ".installed";
constexpr int manifestFields = 4;

/// What is known of the installed file that a copy was made from.
struct ManifestEntry {
    std::string stamp; ///< size and time of last change, as written in the manifest
    std::string sum;   ///< checksum of the content
};
using Manifest = std::map<std::string, ManifestEntry>;

std::string checksum(const std::string& path)
{
    return std::to_string(hashOf(readFile(path)));
}

std::string stampOf(const fs::path& file)
{
    return std::to_string(fs::file_size(file)) + "\t" +
           std::to_string(fs::last_write_time(file).time_since_epoch().count());
}

/// A missing or corrupt manifest counts as empty.
Manifest readManifest(const std::string& path)
{
    Manifest manifest;
    if (!fs::exists(path))
        return manifest;
    for (const std::string& line : readLines(path)) {
        std::vector<std::string> fields{""};
        for (const char c : line) {
            if (c == '\t')
                fields.emplace_back();
            else
                fields.back() += c;
        }
        if (fields.size() == manifestFields)
            manifest[fields[0]] = {fields[1] + "\t" + fields[2], fields[3]};
    }
    return manifest;
}

void writeManifest(const std::string& path, const Manifest& manifest)
{
    std::vector<std::string> lines;
    for (const auto& [name, entry] : manifest)
        lines.push_back(name + "\t" + entry.stamp + "\t" + entry.sum);
    replaceLines(path, lines);
}

/// Syncs one file. Returns its manifest entry.
ManifestEntry syncFile(const fs::path& installed, const fs::path& target, const ManifestEntry& entry)
{
    ManifestEntry now{stampOf(installed), checksum(installed.string())};
    if (!fs::exists(target)) {
        copyFile(installed.string(), target.string());
        return now;
    }
    const std::string present = checksum(target.string());
    if (present == now.sum)
        return now;
    if (present == entry.sum) {
        copyFile(installed.string(), target.string());
        return now;
    }
    return {now.stamp, entry.sum}; // the player's own; checked again when the installed file changes
}

std::vector<fs::path> filesToSync(const std::string& installed)
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

void placeFirstFiles(const std::string& installed, const std::string& target)
{
    const fs::path first = fs::path(installed) / "first";
    if (!fs::is_directory(first))
        return;
    for (const fs::path& file : filesToSync(first.string())) {
        const fs::path copy = fs::path(target) / file.filename();
        if (!fs::exists(copy))
            copyFile(file.string(), copy.string());
    }
}

void syncInstalledFiles(const std::string& installed, const std::string& target)
{
    const std::string manifestPath = (fs::path(target) / manifestName).string();
    const FileLock lock(manifestPath); // two games may start at once
    Manifest manifest = readManifest(manifestPath);
    bool changed = false;
    for (const fs::path& file : filesToSync(installed)) {
        const std::string name = file.filename().string();
        ManifestEntry& entry = manifest[name];
        const fs::path copy = fs::path(target) / name;
        if (entry.stamp == stampOf(file) && fs::exists(copy))
            continue;
        entry = syncFile(file, copy, entry);
        changed = true;
    }
    if (changed)
        writeManifest(manifestPath, manifest);
}

} // namespace lexigrove
