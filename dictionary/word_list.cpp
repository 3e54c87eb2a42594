#include "dictionary/word_list.hpp"

#include <algorithm>
#include <limits>
#include <stdexcept>

namespace lexigrove
{

namespace
{

constexpr const char* tooManyWords = "The dictionary holds more than 250,000 words";

/// Half of a sum, rounded to the nearest whole number and from a half to the even one.
constexpr std::size_t middleOf(std::size_t sum)
{
    return sum / 2 + (sum & (sum / 2) & 1);
}

} // namespace

WordList WordList::ofLines(std::string text)
{
    if (text.size() > std::numeric_limits<std::uint32_t>::max())
        throw std::length_error("The dictionary is larger than 4 GiB");

    // The lines move together in their own buffer, over their line ends.
    Words words;
    words.starts.reserve(static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')) + 3);
    char* const begin = text.data();
    const char* const end = begin + text.size();
    char* to = begin;
    for (const char* from = begin; from != end;) {
        while (from != end && *from != '\r' && *from != '\n')
            *to++ = *from++;
        words.starts.push_back(static_cast<std::uint32_t>(to - begin));
        if (from != end && *from++ == '\r' && from != end && *from == '\n')
            ++from;
    }
    if (words.starts.size() > static_cast<std::size_t>(capacity) + 2)
        throw std::length_error(tooManyWords);
    text.resize(static_cast<std::size_t>(to - begin));
    words.text = std::move(text);

    WordList list;
    list.count_ = static_cast<int>(words.starts.size()) - 2;
    list.words_ = std::make_shared<const Words>(std::move(words));
    return list;
}

WordList WordList::of(std::span<const std::string_view> words)
{
    WordList list;
    list.overwrite(words);
    list.setCount(static_cast<int>(words.size()));
    return list;
}

int WordList::findWord(std::string_view word) const
{
    const std::uint32_t* const starts = words_->starts.data();
    const char* const text = words_->text.data();
    const std::size_t written = words_->starts.size() - 1;
    std::size_t low = 0;
    auto high = static_cast<std::size_t>(count_);
    do {
        const std::size_t middle = middleOf(low + high);
        const std::string_view found =
            middle < written ? std::string_view(text + starts[middle], starts[middle + 1] - starts[middle])
                             : std::string_view();
        const int order = found.compare(word);
        if (order == 0)
            return static_cast<int>(middle);
        if (order < 0) {
            low = middle + 1;
        } else {
            if (middle == 0)
                break;
            high = middle - 1;
        }
    } while (low <= high);
    return -1;
}

void WordList::overwrite(std::span<const std::string_view> words)
{
    if (words.size() > static_cast<std::size_t>(capacity))
        throw std::length_error(tooManyWords);

    const std::size_t written = words_->starts.size() - 2;
    std::size_t size = 0;
    for (const std::string_view word : words)
        size += word.size();
    for (std::size_t i = words.size() + 1; i <= written; ++i)
        size += entry(static_cast<int>(i)).size();
    if (size > std::numeric_limits<std::uint32_t>::max())
        throw std::length_error("The dictionary is larger than 4 GiB");

    Words next;
    next.text.reserve(size);
    next.starts.reserve(std::max(words.size(), written) + 2);
    const auto append = [&next](std::string_view word) {
        next.text += word;
        next.starts.push_back(static_cast<std::uint32_t>(next.text.size()));
    };
    for (const std::string_view word : words)
        append(word);
    for (std::size_t i = words.size() + 1; i <= written; ++i)
        append(entry(static_cast<int>(i)));
    words_ = std::make_shared<const Words>(std::move(next));
}

void WordList::setCount(int count)
{
    if (count < 0 || count > capacity)
        throw std::out_of_range("The number of words must be 0 to 250,000");
    count_ = count;
}

std::size_t WordList::memory() const
{
    return sizeof(Words) + words_->text.capacity() + words_->starts.capacity() * sizeof(std::uint32_t);
}

std::string_view WordList::unwrittenEntry(int index)
{
    if (index < 0 || index > capacity)
        throw std::out_of_range("An entry of the word array must be 0 to 250,000");
    return {};
}

} // namespace lexigrove
