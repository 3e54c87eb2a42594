#pragma once

#include "dictionary/word_list.hpp"
#include "opponent/letter_set.hpp"

#include <cstdint>
#include <string_view>
#include <vector>

namespace lexigrove
{

/// The words of a list as a tree of letters whose words, read parent before child and children in their order, come in
/// the order of the list, whatever that order is.
///
/// A word shares nodes with the word before it and with no other. In a sorted list that joins all words of a prefix; in
/// an unsorted one a prefix stands several times, which costs room and time but changes no answer. A word that repeats
/// the word before it, or is the beginning of it, gets a last node of its own.
///
/// The nodes lie level by level, so that the children of a node are neighbours in memory and end where the children of
/// the next node begin: 9 bytes a node.
class WordTrie
{
public:
    using Node = std::uint32_t;

    /// Words below this length are never looked for, words above have more letters than the board has tiles.
    static constexpr std::size_t minLength = 2;
    static constexpr std::size_t maxLength = 64;

    /// Takes in every word of minLength to maxLength letters.
    void build(const WordList& words);

    /// The nodes of the first letters are 0 up to this number.
    [[nodiscard]] Node firstLetters() const { return firstLetters_; }
    /// The letter as it stands in the list.
    [[nodiscard]] char letter(Node node) const { return letters_[node]; }
    [[nodiscard]] bool endsWord(Node node) const { return (children_[node] & wordMark) != 0; }
    /// A node's children are childrenBegin up to childrenEnd, without the latter.
    [[nodiscard]] Node childrenBegin(Node node) const { return children_[node] & ~wordMark; }
    [[nodiscard]] Node childrenEnd(Node node) const { return children_[node + 1] & ~wordMark; }

    /// The letters of a node's children; empty for a node without children. Where `otherCharacters` is in the set, the
    /// children may be any and come in any order. Otherwise there is one for each letter of the set, from A to Z.
    [[nodiscard]] LetterSet childLetters(Node node) const { return childLetters_[node]; }

private:
    static constexpr Node wordMark = 0x80000000;

    static void addLetter(LetterSet& letters, char letter);

    Node firstLetters_ = 0;
    std::vector<char> letters_;
    std::vector<Node> children_; ///< the first child, with wordMark where a word ends; one more closes the last node
    std::vector<LetterSet> childLetters_;
};

} // namespace lexigrove
