#include "record/record_folder.hpp"

#include "platform/text_file.hpp"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace lexigrove
{

namespace
{

namespace fs = std::filesystem;

constexpr std::string_view namePattern = "0000-00-00-0000-000.txt"; // a zero stands for any digit

bool isRecordName(std::string_view name)
{
    return std::equal(name.begin(), name.end(), namePattern.begin(), namePattern.end(),
                      [](char c, char pattern) { return pattern == '0' ? c >= '0' && c <= '9' : c == pattern; });
}

/// The first name of this moment that is free.
std::string freeName(const std::string& folder, const std::string& begun)
{
    const std::string moment = begun.substr(0, 10) + '-' + begun.substr(11, 2) + begun.substr(14, 2) + '-';
    for (int number = 1; number <= 999; ++number) {
        const std::string digits = std::to_string(number);
        std::string name = moment;
        name.append(3 - digits.size(), '0').append(digits).append(".txt");
        std::error_code failure;
        if (!fs::exists(folder + name, failure))
            return name;
    }
    throw FileError("There are too many games of one minute", folder, 0);
}

} // namespace

std::string RecordFolder::add(const GameRecord& record) const
{
    std::error_code failure;
    fs::create_directories(folder_, failure);
    if (failure)
        throw FileError("Cannot make the folder", folder_, failure.value());
    const FileLock lock(folder_ + "games"); // two games may end at once
    std::string name = freeName(folder_, record.begun);
    replaceFile(folder_ + name, textOf(record));

    const std::vector<std::string> kept = names();
    for (std::size_t oldest = 0; oldest + most < kept.size(); ++oldest) {
        if (kept[oldest] != name) // a game that was kept for long may be the oldest
            fs::remove(folder_ + kept[oldest], failure);
    }
    return name;
}

/// The oldest first.
std::vector<std::string> RecordFolder::names() const
{
    std::vector<std::string> found;
    std::error_code failure;
    for (fs::directory_iterator entry(folder_, failure), end; !failure && entry != end; entry.increment(failure)) {
        std::string name = entry->path().filename().string();
        if (isRecordName(name))
            found.push_back(std::move(name));
    }
    std::sort(found.begin(), found.end());
    return found;
}

RecordFolder::Contents RecordFolder::list() const
{
    Contents contents;
    std::vector<std::string> newestFirst = names();
    std::reverse(newestFirst.begin(), newestFirst.end());
    for (std::string& name : newestFirst) {
        try {
            GameRecord record = load(name);
            contents.records.push_back({std::move(name), std::move(record)});
        } catch (const std::runtime_error&) {
            ++contents.damaged;
        }
    }
    return contents;
}

GameRecord RecordFolder::load(const std::string& name) const
{
    return gameRecordOf(readFile(folder_ + name, largestRecord));
}

} // namespace lexigrove
