#pragma once

#include <algorithm>
#include <span>
#include <string_view>
#include <vector>

namespace lexigrove
{

/// The item list `ListBoy1`: takes items and sorts them. It keeps views of the texts, which must outlive it.
class SortingList
{
public:
    /// An empty list with room for the expected number of items.
    explicit SortingList(int expected = 0) { items_.reserve(static_cast<std::size_t>(expected)); }

    void Clear() { items_.clear(); }
    void Additem(std::string_view text) { items_.push_back(text); }

    /// Sorts in ascending order of character codes. If only the last items are out of order, they are merged in.
    void SortAscending()
    {
        const auto unsorted = std::is_sorted_until(items_.begin(), items_.end());
        std::sort(unsorted, items_.end());
        std::inplace_merge(items_.begin(), unsorted, items_.end());
    }

    [[nodiscard]] int ListCount() const { return static_cast<int>(items_.size()); }

    /// The text at a position, counted from 0.
    [[nodiscard]] std::string_view list(int position) const { return items_.at(static_cast<std::size_t>(position)); }

    [[nodiscard]] std::span<const std::string_view> items() const { return items_; }

private:
    std::vector<std::string_view> items_;
};

} // namespace lexigrove
