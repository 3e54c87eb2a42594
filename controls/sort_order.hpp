#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace lexigrove
{

enum class SortBy {
    Text,  ///< without regard to case, accented letters of Windows-1252 included
    Number ///< the number at the start of each text (`numberOf`)
};

enum class SortDirection { Ascending, Descending };

/// The stable order of the texts: the position of the text that comes first, then of the second, and so on. Equal texts
/// keep their order in both directions.
std::vector<std::size_t> sortedOrder(const std::vector<std::string_view>& texts, SortBy by, SortDirection direction);

} // namespace lexigrove
