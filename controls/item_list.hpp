#pragma once

#include "controls/sort_order.hpp"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lexigrove
{

/// The sortable item list `ListBoy1`: texts, at most 4 GB of them together. An item may have columns separated by tabs.
class ItemList
{
public:
    void Clear();
    void Additem(std::string_view text);

    /// Ascending binary order of the item texts. Quick on a list that is in order but for its last few items.
    void SortAscending();

    /// Stable order by the column `column` (0-based) of each item; an item without that column counts as empty there.
    void sortByColumn(std::size_t column, SortBy by, SortDirection direction);

    [[nodiscard]] int ListCount() const { return static_cast<int>(items_.size()); }

    /// The text at a 0-based position, valid until the next Additem or Clear; throws std::out_of_range beyond the list.
    [[nodiscard]] std::string_view list(int position) const;

private:
    /// Where an item's text stands in `bytes_`: one buffer holds all, so that 200,000 words are two allocations.
    struct Item {
        std::uint32_t offset;
        std::uint32_t length;
    };

    [[nodiscard]] std::string_view textOf(Item item) const;

    std::string bytes_;
    std::vector<Item> items_;
};

} // namespace lexigrove
