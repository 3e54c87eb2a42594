#include "opponent/word_trie.hpp"

#include <algorithm>
#include <array>

namespace lexigrove
{

namespace
{

bool isTakenIn(std::string_view word)
{
    return word.size() >= WordTrie::minLength && word.size() <= WordTrie::maxLength;
}

/// Prefix shared with the previous word; the last letter always gets a node.
std::size_t sharedLetters(std::string_view word, std::string_view previous)
{
    const std::size_t limit = std::min(word.size() - 1, previous.size());
    std::size_t shared = 0;
    while (shared < limit && word[shared] == previous[shared])
        ++shared;
    return shared;
}

} // namespace

void WordTrie::build(const WordList& words)
{
    // How much larger each level is than the one above it; level 0 holds the first letters.
    std::array<Node, maxLength + 1> growth{};
    std::vector<std::uint8_t> shared(static_cast<std::size_t>(words.count()) + 1);
    std::string_view previous;
    for (int i = 1; i <= words.count(); ++i) {
        const std::string_view word = words.entry(i);
        if (!isTakenIn(word))
            continue;
        const std::size_t level = sharedLetters(word, previous);
        shared[static_cast<std::size_t>(i)] = static_cast<std::uint8_t>(level);
        ++growth[level];
        --growth[word.size()];
        previous = word;
    }

    std::array<Node, maxLength + 1> next{}; // where the next node of each level goes
    Node levelSize = 0;
    for (std::size_t level = 0; level < maxLength; ++level) {
        levelSize += growth[level];
        next[level + 1] = next[level] + levelSize;
    }
    firstLetterCount_ = next[1];
    const Node count = next[maxLength];
    letters_.assign(count, 0);
    children_.assign(count + std::size_t{1}, count);
    childLetters_.assign(count, 0);

    for (int i = 1; i <= words.count(); ++i) {
        const std::string_view word = words.entry(i);
        if (!isTakenIn(word))
            continue;
        for (std::size_t level = shared[static_cast<std::size_t>(i)]; level < word.size(); ++level) {
            const Node node = next[level]++;
            letters_[node] = word[level];
            children_[node] = next[level + 1];
            if (level > 0)
                addLetter(childLetters_[next[level - 1] - 1], word[level]);
        }
        children_[next[word.size() - 1] - 1] |= wordMark;
    }
}

/// Adds the letter of one more child; one that does not come after the others in the alphabet counts as another
/// character.
void WordTrie::addLetter(LetterSet& letters, char letter)
{
    const LetterSet set = setOf(letter);
    letters |= set > letters ? set : otherCharacters;
}

} // namespace lexigrove
