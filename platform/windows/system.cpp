#include "platform/system.hpp"

#include <array>
#include <cstdlib>
#include <filesystem>
#include <windows.h>

namespace lexigrove
{

std::string homeFolder()
{
    const char* const home = std::getenv("USERPROFILE");
    return home != nullptr ? home : "";
}

std::string ownExecutable()
{
    std::array<char, 4096> path{};
    return {path.data(), ::GetModuleFileNameA(nullptr, path.data(), static_cast<DWORD>(path.size()))};
}

std::string newTemporaryFolder()
{
    std::error_code ignored;
    const auto folder =
        std::filesystem::temp_directory_path() / ("lexigrove-" + std::to_string(::GetCurrentProcessId()));
    return std::filesystem::create_directory(folder, ignored) ? folder.string() : "";
}

std::tm localTime(std::time_t moment)
{
    std::tm local{};
    localtime_s(&local, &moment);
    return local;
}

} // namespace lexigrove
