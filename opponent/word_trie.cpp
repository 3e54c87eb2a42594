#include "opponent/word_trie.hpp"

#include <algorithm>
#include <array>

namespace lexigrove
{

namespace
{

/// Calls `visit(word, shared)` for every word that the tree takes in, in order; `shared` letters have their nodes from
/// the word before.
template <typename Visit>
void forEachWord(const WordList& words, Visit visit)
{
    std::string_view previous;
    for (int i = 1; i <= words.count(); ++i) {
        const std::string_view word = words.entry(i);
        if (word.size() < WordTrie::minLength || word.size() > WordTrie::maxLength)
            continue;
        const std::size_t limit = std::min(word.size() - 1, previous.size());
        std::size_t shared = 0;
        while (shared < limit && word[shared] == previous[shared])
            ++shared;
        visit(word, shared);
        previous = word;
    }
}

} // namespace

void WordTrie::build(const WordList& words)
{
    // The place of the next node of each level; level 0 holds the first letters.
    std::array<Node, maxLength + 2> next{};
    forEachWord(words, [&](std::string_view word, std::size_t shared) {
        for (std::size_t level = shared; level < word.size(); ++level)
            ++next[level + 1];
    });
    for (std::size_t level = 0; level <= maxLength; ++level)
        next[level + 1] += next[level];
    firstLetters_ = next[1];
    const Node count = next[maxLength];
    letters_.assign(count, 0);
    children_.assign(count + 1, count);
    forEachWord(words, [&](std::string_view word, std::size_t shared) {
        for (std::size_t level = shared; level < word.size(); ++level) {
            const Node node = next[level]++;
            letters_[node] = word[level];
            children_[node] = next[level + 1];
        }
        children_[next[word.size() - 1] - 1] |= wordMark;
    });
}

} // namespace lexigrove
