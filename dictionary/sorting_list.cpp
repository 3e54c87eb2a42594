#include "dictionary/sorting_list.hpp"

#include <algorithm>

namespace lexigrove
{

void SortingList::SortAscending()
{
    const auto unsorted = std::is_sorted_until(items_.begin(), items_.end());
    std::sort(unsorted, items_.end());
    std::inplace_merge(items_.begin(), unsorted, items_.end());
}

} // namespace lexigrove
