#pragma once

#include <string>
#include <vector>

namespace lexigrove::tools
{

/// The words of one of the project's own lists: words in lower case, separated by blanks, under headings that begin
/// with "# ". Throws std::runtime_error if the file cannot be read, or names what is no word.
std::vector<std::string> readOwnWords(const std::string& path);

} // namespace lexigrove::tools
