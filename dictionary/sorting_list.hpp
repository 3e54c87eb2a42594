#pragma once

#include <span>
#include <string_view>
#include <vector>

namespace lexigrove
{

/// What the item list `ListBoy1` does for the dictionaries: it takes items and sorts them. It keeps views of the texts,
/// which must outlive it.
class SortingList
{
public:
    /// An empty list with room for so many items before it grows.
    explicit SortingList(int expected = 0) { items_.reserve(static_cast<std::size_t>(expected)); }

    void Clear() { items_.clear(); }
    void Additem(std::string_view text) { items_.push_back(text); }

    /// Ascending order of the character codes. A list that is in order but for its last items is merged, not sorted
    /// anew.
    void SortAscending();

    [[nodiscard]] int ListCount() const { return static_cast<int>(items_.size()); }

    /// The text at a position from 0 up.
    [[nodiscard]] std::string_view list(int position) const { return items_.at(static_cast<std::size_t>(position)); }

    [[nodiscard]] std::span<const std::string_view> items() const { return items_; }

private:
    std::vector<std::string_view> items_;
};

} // namespace lexigrove
