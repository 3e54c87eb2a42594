#pragma once

#include <map>
#include <string>

namespace lexigrove
{

/// A way from a text that may be anything into the game, by the name of its folder in corpus/. It must neither crash
/// nor hang; what it takes, it writes and reads back as the same. A failure ends the program with a message.
using Reader = void (*)(const std::string& text);

const std::map<std::string, Reader>& readers();

} // namespace lexigrove
