#pragma once

#include "dictionary/word_list.hpp"
#include "opponent/candidate_list.hpp"
#include "opponent/search_board.hpp"
#include "opponent/spelling_board.hpp"
#include "opponent/word_trie.hpp"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace lexigrove
{

/// One word traced on a board.
struct TracedWord {
    /// The length of the longest prefix of the word that the board spells; 0 if no tile shows its first letter.
    int matchedLength = 0;
    /// Every path of that prefix as its path item ("051213CAT"), in the order found; none below two letters.
    std::vector<std::string> items;
};

/// Finds the words of a list that chains of touching tiles spell, without using a tile twice.
///
/// The answers are those of tracing the words of the list one by one, each breadth-first with every partial path kept.
/// Letters shared with the previous word are traced once: the words form a tree, and each node has the frontier of the
/// paths that spell it.
class BoardSearch
{
public:
    /// Traces one word, converted to upper case. It need not be in any list.
    TracedWord traceWord(const SearchBoard& board, std::string_view word);

    /// Looks for every word of two or more letters and returns those that can be traced, in the list's order, each with
    /// its letter score and its first path. The result is valid until the next sweep.
    ///
    /// The first sweep over a list prepares its words, in a few milliseconds for 200,000. Later sweeps allocate only if
    /// a board has more words or paths than any before, and more than English words ever have.
    ///
    /// Lists of long runs of one letter, on a board full of it, can take minutes: then `meanwhile` is called again and
    /// again, and may throw to end the search. No English words get that far. Throws std::length_error if one word can
    /// be spelled in too many ways; the candidates are then of no use.
    const CandidateList& sweep(const SearchBoard& board, const WordList& words,
                               const std::function<void()>& meanwhile = {});

    /// List 3: what the last sweep found.
    [[nodiscard]] const CandidateList& candidates() const { return candidates_; }

private:
    Frontier extend(const Frontier& paths, char letter);
    void visitChildren(WordTrie::Node parent, const Frontier& paths, int length, int score);

    WordList words_; ///< the list that the tree was made from
    WordTrie trie_;
    SpellingBoard board_;
    CandidateList candidates_;
    std::size_t pathsSeen_ = 0;       ///< since `meanwhile_` was called
    std::function<void()> meanwhile_; ///< of the sweep that runs
};

} // namespace lexigrove
