#include "dictionary/word_list.hpp"

#include "platform/text_file.hpp"

#include <algorithm>
#include <limits>
#include <stdexcept>

namespace lexigrove
{

namespace
{

constexpr const char* tooManyLines = "The dictionary holds more than 250,000 lines";
constexpr const char* tooMuchText = "The dictionary is larger than 4 GiB";

/// Half of a sum, rounded to the nearest integer, with halves to even.
constexpr int middleOf(int sum)
{
    return sum / 2 + (sum & (sum / 2) & 1);
}

/// The numbers of CR, LF and CR LF pairs in a text.
struct LineEnds {
    std::size_t returns = 0;
    std::size_t feeds = 0;
    std::size_t pairs = 0;
};

/// Counts in blocks whose counts fit in a byte, so that the compiler compares many characters at once.
LineEnds countLineEnds(std::string_view text)
{
    LineEnds ends;
    for (std::size_t start = 0; start < text.size(); start += 255) {
        const char* const block = text.data() + start;
        const std::size_t size = std::min<std::size_t>(255, text.size() - start);
        std::uint8_t returns = 0;
        std::uint8_t feeds = 0;
        std::uint8_t pairs = start > 0 && block[-1] == '\r' && block[0] == '\n' ? 1 : 0;
        for (std::size_t i = 0; i < size; ++i) {
            returns = static_cast<std::uint8_t>(returns + (block[i] == '\r'));
            feeds = static_cast<std::uint8_t>(feeds + (block[i] == '\n'));
        }
        for (std::size_t i = 1; i < size; ++i)
            pairs = static_cast<std::uint8_t>(pairs + ((block[i - 1] == '\r') & (block[i] == '\n')));
        ends.returns += returns;
        ends.feeds += feeds;
        ends.pairs += pairs;
    }
    return ends;
}

/// The text with LF for every CR LF and every CR.
std::string withLineFeeds(std::string_view text)
{
    std::string changed;
    changed.reserve(text.size() + 1);
    for (const std::string_view line : splitLines(text))
        changed.append(line) += '\n';
    return changed;
}

} // namespace

WordList WordList::ofLines(std::string text)
{
    if (text.size() >= std::numeric_limits<std::uint32_t>::max())
        throw std::length_error(tooMuchText);

    LineEnds ends = countLineEnds(text);
    if (ends.returns != ends.pairs || (ends.pairs != 0 && ends.pairs != ends.feeds)) { // mixed line ends
        text = withLineFeeds(text);
        ends = countLineEnds(text);
    }
    Words words;
    words.gap = ends.pairs == 0 ? 1 : 2;
    if (!text.empty() && text.back() != '\n') {
        text += ends.pairs == 0 ? "\n" : "\r\n";
        text.shrink_to_fit();
    }

    words.starts.reserve(ends.feeds + 2);
    for (std::size_t next = 0; next < text.size();) {
        next = text.find('\n', next) + 1;
        words.starts.push_back(static_cast<std::uint32_t>(next));
    }
    if (words.count() > static_cast<std::size_t>(capacity))
        throw std::length_error(tooManyLines);
    words.text = std::move(text);

    WordList list;
    list.count_ = static_cast<int>(words.count());
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
    const Words& words = *words_;
    int low = 0;
    int high = count_;
    do {
        const int middle = middleOf(low + high);
        const auto place = static_cast<std::size_t>(middle) - 1; // entry 0 has no place, and is empty
        const std::string_view found = place < words.count() ? words.word(place) : std::string_view();
        const int order = found.compare(word);
        if (order == 0)
            return middle;
        if (order < 0)
            low = middle + 1;
        else
            high = middle - 1;
    } while (low <= high);
    return -1;
}

void WordList::overwrite(std::span<const std::string_view> words)
{
    if (words.size() > static_cast<std::size_t>(capacity))
        throw std::length_error(tooManyLines);

    const std::size_t written = std::max(words.size(), words_->count());
    const auto next = [&](std::size_t place) { return place < words.size() ? words[place] : words_->word(place); };
    std::size_t size = 0;
    for (std::size_t place = 0; place < written; ++place)
        size += next(place).size();
    if (size > std::numeric_limits<std::uint32_t>::max())
        throw std::length_error(tooMuchText);

    Words changed;
    changed.text.reserve(size);
    changed.starts.reserve(written + 1);
    std::string_view run; // words that lie side by side already are copied in one piece
    for (std::size_t place = 0; place < written; ++place) {
        const std::string_view word = next(place);
        changed.starts.push_back(changed.starts.back() + static_cast<std::uint32_t>(word.size()));
        if (word.data() == run.data() + run.size()) {
            run = {run.data(), run.size() + word.size()};
        } else {
            changed.text += run;
            run = word;
        }
    }
    changed.text += run;
    words_ = std::make_shared<const Words>(std::move(changed));
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
