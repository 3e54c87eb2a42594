#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace lexigrove
{

/// A folder of its own for one test, gone with it. Its name holds a blank, as a player's folder may.
class TemporaryFolder
{
public:
    TemporaryFolder()
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "lexi grove XXXXXX").string();
        path_ = std::string(mkdtemp(pattern.data())) + "/";
    }
    ~TemporaryFolder() { std::filesystem::remove_all(path_); }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    /// With the closing separator.
    [[nodiscard]] const std::string& path() const { return path_; }
    [[nodiscard]] std::string file(const std::string& name) const { return path_ + name; }

    void write(const std::string& name, const std::string& bytes) const
    {
        std::ofstream(file(name), std::ios::binary) << bytes;
    }
    [[nodiscard]] std::string read(const std::string& name) const
    {
        std::ifstream in(file(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }

private:
    std::string path_;
};

} // namespace lexigrove
