#pragma once

#include "dictionary/word_list.hpp"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lexigrove
{

/// The word list `List1`: the first words of a word array, as it was when the list was filled, and the rows among them
/// that match the search box. No word is copied, so filling takes no time, however many there are.
class FilteredWords
{
public:
    void Clear();

    /// Fills the list with entries 1 to `count` of `words`. The search does not change.
    void fill(const WordList& words, int count);

    [[nodiscard]] int ListCount() const { return count_; }

    /// The text at a position, counted from 0, regardless of the search. Throws std::out_of_range otherwise.
    [[nodiscard]] std::string_view list(int position) const;

    /// Keeps the rows whose words contain the text, in upper or lower case; an empty string keeps all.
    void setSearch(std::string_view text);
    [[nodiscard]] const std::string& search() const { return search_; }

    /// The number of rows that match the search, and the text of one, counted from 0. Throws std::out_of_range
    /// otherwise.
    [[nodiscard]] int rowCount() const;
    [[nodiscard]] std::string_view row(int row) const;

private:
    void applySearch();

    WordList words_;
    int count_ = 0;
    std::string search_;              ///< in upper case
    std::vector<std::int32_t> found_; ///< entries that match the search; unused while it is empty
};

} // namespace lexigrove
