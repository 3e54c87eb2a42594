#include "platform/system.hpp"

#include <cstdlib>
#include <filesystem>
#include <pwd.h>
#include <unistd.h>

namespace lexigrove
{

std::string homeFolder()
{
    if (const char* home = std::getenv("HOME"); home != nullptr && *home != '\0')
        return home;
    const passwd* user = getpwuid(getuid());
    return user != nullptr && user->pw_dir != nullptr ? user->pw_dir : "";
}

std::string ownExecutable()
{
    std::error_code ignored;
    return std::filesystem::read_symlink("/proc/self/exe", ignored).string();
}

std::string newTemporaryFolder()
{
    std::string pattern = std::filesystem::temp_directory_path() / "lexigrove-XXXXXX";
    return mkdtemp(pattern.data()) != nullptr ? pattern : "";
}

std::tm localTime(std::time_t moment)
{
    std::tm local{};
    localtime_r(&moment, &local);
    return local;
}

} // namespace lexigrove
