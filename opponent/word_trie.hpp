#pragma once

#include "dictionary/word_list.hpp"
#include "opponent/letter_set.hpp"

#include <cstdint>
#include <string_view>
#include <vector>

namespace lexigrove
{

/// The words of a list as a tree of letters. Read parent before child and children in order, the words come in the
/// order of the list, whatever that is.
///
/// A word shares nodes only with the previous word. In a sorted list that joins all words with a common prefix; in an
/// unsorted one a prefix may occur several times, which costs space and time but changes no answer. A word that repeats
/// the previous word, or is a prefix of it, gets its own last node.
///
/// The nodes are stored level by level, so that the children of a node are adjacent and end where the children of the
/// next node begin: 9 bytes per node.
class WordTrie
{
public:
    using Node = std::uint32_t;

    /// Shorter words are never looked for; longer ones have more letters than the board has tiles.
    static constexpr std::size_t minLength = 2;
    static constexpr std::size_t maxLength = 64;

    /// Builds the tree from every word of minLength to maxLength letters.
    void build(const WordList& words);

    /// How many nodes hold first letters; they are the nodes from 0 on.
    [[nodiscard]] Node firstLetterCount() const { return firstLetterCount_; }
    /// The letter as the list has it.
    [[nodiscard]] char letter(Node node) const { return letters_[node]; }
    [[nodiscard]] bool endsWord(Node node) const { return (children_[node] & wordMark) != 0; }
    /// A node's children are [childrenBegin, childrenEnd).
    [[nodiscard]] Node childrenBegin(Node node) const { return children_[node] & ~wordMark; }
    [[nodiscard]] Node childrenEnd(Node node) const { return children_[node + 1] & ~wordMark; }

    /// The letters of a node's children; empty for a node without children. If `otherCharacters` is in the set, the
    /// children may be any, in any order. Otherwise there is one for each letter of the set, from A to Z.
    [[nodiscard]] LetterSet childLetters(Node node) const { return childLetters_[node]; }

private:
    static constexpr Node wordMark = 0x80000000;

    static void addLetter(LetterSet& letters, char letter);

    Node firstLetterCount_ = 0;
    std::vector<char> letters_;
    std::vector<Node>
        children_; ///< the first child, with wordMark where a word ends; one extra entry ends the last node
    std::vector<LetterSet> childLetters_;
};

} // namespace lexigrove
