#include "controls/item_list.hpp"

#include <algorithm>
#include <limits>
#include <stdexcept>

namespace lexigrove
{

namespace
{

std::string_view columnOf(std::string_view item, std::size_t column)
{
    for (; column > 0; --column) {
        const std::size_t tab = item.find('\t');
        if (tab == std::string_view::npos)
            return {};
        item.remove_prefix(tab + 1);
    }
    return item.substr(0, item.find('\t'));
}

} // namespace

void ItemList::Clear()
{
    items_.clear();
    bytes_.clear();
}

void ItemList::Additem(std::string_view text)
{
    if (text.size() > std::numeric_limits<std::uint32_t>::max() - bytes_.size())
        throw std::length_error("the item list is full");
    items_.push_back({static_cast<std::uint32_t>(bytes_.size()), static_cast<std::uint32_t>(text.size())});
    bytes_.append(text);
}

void ItemList::SortAscending()
{
    const auto before = [this](Item a, Item b) { return textOf(a) < textOf(b); };
    // A word added to a sorted dictionary is the usual case: only what follows the first descent has to be sorted.
    const auto unsorted = std::is_sorted_until(items_.begin(), items_.end(), before);
    std::sort(unsorted, items_.end(), before);
    std::inplace_merge(items_.begin(), unsorted, items_.end(), before);
}

void ItemList::sortByColumn(std::size_t column, SortBy by, SortDirection direction)
{
    std::vector<std::string_view> keys;
    keys.reserve(items_.size());
    for (const Item item : items_)
        keys.push_back(columnOf(textOf(item), column));

    std::vector<Item> sorted;
    sorted.reserve(items_.size());
    for (const std::size_t place : sortedOrder(keys, by, direction))
        sorted.push_back(items_[place]);
    items_ = std::move(sorted);
}

std::string_view ItemList::list(int position) const
{
    if (position < 0 || position >= ListCount())
        throw std::out_of_range("the item list has no such position");
    return textOf(items_[static_cast<std::size_t>(position)]);
}

std::string_view ItemList::textOf(Item item) const
{
    return std::string_view(bytes_).substr(item.offset, item.length);
}

} // namespace lexigrove
