#include "console/version.hpp"

namespace lexigrove
{

const char* gameVersion()
{
    return LEXIGROVE_VERSION;
}

} // namespace lexigrove
