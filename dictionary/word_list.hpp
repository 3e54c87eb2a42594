#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace lexigrove
{

/// The word array: entries 1 to `count()` are the words of the active dictionary, in the order of its file. Entry 0 is
/// always empty, and so is every entry that was never written.
///
/// The words are stored one after another in one buffer, with an offset for each. The buffer is never changed, only
/// replaced, so a copy of the list costs nothing and keeps its words. A view of an entry is valid as long as any copy
/// of the list it was taken from.
class WordList
{
public:
    static constexpr int capacity = 250'000;

    WordList() : words_(std::make_shared<const Words>()) {}

    /// The lines of a text, one word each, unchanged; CR LF, LF and CR end a line. Throws std::length_error above
    /// 250,000 lines.
    static WordList ofLines(std::string text);

    /// A list whose entries from 1 on are `words`. Throws std::length_error above 250,000.
    static WordList of(std::span<const std::string_view> words);

    [[nodiscard]] int count() const { return count_; }

    /// Entry 0 to 250,000. Throws std::out_of_range otherwise.
    [[nodiscard]] std::string_view entry(int index) const
    {
        const auto place = static_cast<std::size_t>(index) - 1;
        if (place < words_->count()) [[likely]]
            return words_->word(place);
        return unwrittenEntry(index);
    }

    /// FindWord: the index of the entry that equals the word, or -1. The empty word is found at 0. If the words are not
    /// in ascending order of their codes, the answers are those of this binary search, misses included.
    [[nodiscard]] int findWord(std::string_view word) const;

    /// Writes `words` to the entries from 1 on. Later entries keep their texts, and the count does not change. The
    /// views may point into this list. Throws std::length_error above 250,000 words.
    void overwrite(std::span<const std::string_view> words);

    /// Sets how many entries are words, 0 to 250,000. No entry changes.
    void setCount(int count);

    /// Whether one list is a copy of the other and so holds the same words. Code that derives data from a list can
    /// keep a copy to see whether the list has changed since. Never true of a rewritten list.
    [[nodiscard]] bool isCopyOf(const WordList& other) const
    {
        return words_ == other.words_ && count_ == other.count_;
    }

    /// Bytes that the list holds in memory.
    [[nodiscard]] std::size_t memory() const;

private:
    struct Words {
        std::string text;
        std::vector<std::uint32_t> starts{0}; ///< of entry 1 and so on, and the end of the text
        std::uint32_t gap = 0;                ///< characters between the words: the line ends of a file

        [[nodiscard]] std::size_t count() const { return starts.size() - 1; }
        [[nodiscard]] std::string_view word(std::size_t place) const
        {
            return {text.data() + starts[place], starts[place + 1] - gap - starts[place]};
        }
    };

    static std::string_view unwrittenEntry(int index);

    std::shared_ptr<const Words> words_;
    int count_ = 0;
};

} // namespace lexigrove
