#include "dictionary/filtered_words.hpp"

#include "dictionary/word_text.hpp"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace lexigrove
{

namespace
{

std::array<char, 256> upperCaseTable()
{
    std::array<char, 256> table{};
    for (unsigned code = 0; code < 256; ++code)
        table[code] = upperCase(static_cast<char>(code));
    return table;
}

} // namespace

void FilteredWords::Clear()
{
    fill(WordList(), 0);
}

void FilteredWords::fill(const WordList& words, int count)
{
    words_ = words;
    count_ = count;
    applySearch();
}

std::string_view FilteredWords::list(int position) const
{
    if (position < 0 || position >= count_)
        throw std::out_of_range("The list has no such position");
    return words_.entry(position + 1);
}

void FilteredWords::setSearch(std::string_view text)
{
    search_ = upperCase(text);
    applySearch();
}

int FilteredWords::rowCount() const
{
    return search_.empty() ? count_ : static_cast<int>(found_.size());
}

std::string_view FilteredWords::row(int row) const
{
    if (row < 0 || row >= rowCount())
        throw std::out_of_range("The list has no such row");
    return words_.entry(search_.empty() ? row + 1 : found_[static_cast<std::size_t>(row)]);
}

void FilteredWords::applySearch()
{
    found_.clear();
    if (search_.empty())
        return;
    const std::array<char, 256> upper = upperCaseTable();
    const auto same = [&upper](char letter, char sought) {
        return upper[static_cast<unsigned char>(letter)] == sought;
    };
    for (int i = 1; i <= count_; ++i) {
        const std::string_view word = words_.entry(i);
        if (std::search(word.begin(), word.end(), search_.begin(), search_.end(), same) != word.end())
            found_.push_back(i);
    }
}

} // namespace lexigrove
