#pragma once

#include "dictionary/word_list.hpp"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lexigrove
{

/// The list `List1` of words: the first words of a word array as it stood when the list was filled, and the rows of
/// them that the search box leaves. No item is made; filling takes no time whatever the number of words.
class WordView
{
public:
    void Clear();

    /// Fills the list with entries 1 to `count` of `words`. The search stays as it is.
    void fill(const WordList& words, int count);

    [[nodiscard]] int ListCount() const { return count_; }

    /// The text at a position from 0 up, the search left aside. Throws std::out_of_range outside.
    [[nodiscard]] std::string_view list(int position) const;

    /// Leaves the rows whose words contain the text, upper and lower case alike; the empty text leaves all.
    void setSearch(std::string_view text);
    [[nodiscard]] const std::string& search() const { return search_; }

    /// The rows that the search leaves, and the text of one from 0 up. Throws std::out_of_range outside.
    [[nodiscard]] int rowCount() const;
    [[nodiscard]] std::string_view row(int row) const;

private:
    void applySearch();

    WordList words_;
    int count_ = 0;
    std::string search_;              ///< in upper case
    std::vector<std::int32_t> found_; ///< entries that the search leaves; not used while it is empty
};

} // namespace lexigrove
