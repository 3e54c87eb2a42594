#include "platform/installed_files.hpp"

#include "platform/hash.hpp"
#include "platform/text_file.hpp"

#include <algorithm>
#include <filesystem>
#include <map>
#include <unistd.h>
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

std::string checksumOf(std::string_view content)
{
    return std::to_string(hashOf(content));
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
    ManifestEntry now{stampOf(installed), checksumOf(readFile(installed.string()))};
    if (!fs::exists(target)) {
        copyFile(installed.string(), target.string());
        return now;
    }
    const std::string present = checksumOf(readFile(target.string()));
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

/// The regular files of a folder and its subfolders, by their paths in it; locks are nobody's.
std::vector<fs::path> filesBelow(const fs::path& folder)
{
    std::vector<fs::path> files;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.is_regular_file() && entry.path().extension() != ".lock")
            files.push_back(entry.path().lexically_relative(folder));
    }
    return files;
}

void writeBelow(const fs::path& folder, const fs::path& name, const std::string& content)
{
    fs::create_directories((folder / name).parent_path());
    replaceFile((folder / name).string(), content);
}

/// The configuration names a user dictionary by its path.
void replaceAll(std::string& text, const std::string& old, const std::string& now)
{
    for (std::size_t at = text.find(old); at != std::string::npos; at = text.find(old, at + now.size()))
        text.replace(at, old.size(), now);
}

fs::path unusedFolder(const fs::path& parent)
{
    fs::path folder = parent / "Earlier";
    for (int number = 2; fs::exists(folder); ++number)
        folder = parent / ("Earlier " + std::to_string(number));
    return folder;
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
        try {
            entry = syncFile(file, copy, entry);
            changed = true;
        } catch (const FileError&) { // stays as it is, and is tried again at the next start
            continue;
        }
    }
    if (changed)
        writeManifest(manifestPath, manifest);
}

std::string takeOverFiles(const std::string& earlier, const std::string& target)
{
    const FileLock lock((fs::path(target) / manifestName).string());
    const Manifest manifest = readManifest((fs::path(earlier) / manifestName).string());
    const fs::path aside = unusedFolder(target);
    std::vector<fs::path> taken;
    for (const fs::path& name : filesBelow(earlier)) {
        std::string content = readFile((fs::path(earlier) / name).string());
        if (content.starts_with("\x7f"
                                "ELF"))
            continue; // a program or a module
        taken.push_back(name);
        const auto entry = manifest.find(name.string());
        if (entry != manifest.end() && entry->second.sum == checksumOf(content))
            continue; // the game's own
        if (name == "Lexigrove.cfg")
            replaceAll(content, (fs::path(earlier) / "").string(), (fs::path(target) / "").string());
        const fs::path present = fs::path(target) / name;
        if (!fs::exists(present))
            writeBelow(target, name, content);
        else if (name != manifestName && readFile(present.string()) != content)
            writeBelow(aside, name, content);
    }
    for (const fs::path& name : taken)
        fs::remove(fs::path(earlier) / name);
    return fs::exists(aside) ? aside.string() : "";
}

void copyFiles(const std::string& source, const std::string& target)
{
    for (const fs::path& name : filesBelow(source)) {
        if (access((fs::path(source) / name).string().c_str(), R_OK) == 0)
            writeBelow(target, name, readFile((fs::path(source) / name).string()));
    }
}

} // namespace lexigrove
