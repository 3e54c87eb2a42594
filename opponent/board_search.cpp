#include "opponent/board_search.hpp"

#include "dictionary/letter_tables.hpp"

#include <algorithm>
#include <bit>

namespace lexigrove
{

TracedWord BoardSearch::traceWord(const SearchBoard& board, std::string_view word)
{
    TracedWord traced;
    board_.prepare(board);
    Frontier paths = word.empty() ? Frontier{} : board_.start(word.front());
    if (paths.empty())
        return traced;
    traced.matchedLength = 1;
    for (const char letter : word.substr(1)) {
        if ((board_.setOf(letter) & paths.next) == 0)
            break;
        const Frontier longer = board_.extend(paths, letter);
        if (longer.empty())
            break;
        paths = longer;
        ++traced.matchedLength;
    }
    if (traced.matchedLength < 2)
        return traced;
    std::vector<std::uint8_t> tiles(static_cast<std::size_t>(traced.matchedLength));
    for (std::uint32_t path = paths.begin; path != paths.end; ++path) {
        board_.copyPath(path, tiles);
        traced.items.push_back(pathItem(tiles, board.letters));
    }
    return traced;
}

const CandidateList& BoardSearch::sweep(const SearchBoard& board, const WordList& words)
{
    if (!words_.isCopyOf(words)) {
        trie_.build(words);
        words_ = words;
    }
    board_.prepare(board);
    candidates_.clear(board);
    for (WordTrie::Node node = 0; node != trie_.firstLetters(); ++node) {
        const char letter = trie_.letter(node);
        const Frontier paths = board_.start(letter);
        visitChildren(node, paths, 1, letterValue(letter));
    }
    return candidates_;
}

/// Goes on from the paths that spell a node to its children: to those whose letter is next to an end of one of them.
void BoardSearch::visitChildren(WordTrie::Node parent, const Frontier& paths, int length, int score)
{
    const WordTrie::Node end = trie_.childrenEnd(parent);
    for (WordTrie::Node group = trie_.childrenBegin(parent); group < end; group += 32) {
        // About one child in three has such a letter. Gathering them first spares wrong guesses at a branch.
        std::uint32_t hits = 0;
        const WordTrie::Node groupSize = std::min<WordTrie::Node>(32, end - group);
        for (WordTrie::Node child = 0; child != groupSize; ++child) {
            const LetterSet letter = board_.setOf(trie_.letter(group + child));
            hits |= static_cast<std::uint32_t>((letter & paths.next) != 0) << child;
        }
        for (; hits != 0; hits &= hits - 1) {
            const WordTrie::Node node = group + static_cast<WordTrie::Node>(std::countr_zero(hits));
            const Frontier longer = board_.extend(paths, trie_.letter(node));
            if (longer.empty())
                continue;
            const int longerScore = score + letterValue(trie_.letter(node));
            if (trie_.endsWord(node))
                board_.copyPath(longer.begin, candidates_.add(longerScore, length + 1));
            visitChildren(node, longer, length + 1, longerScore);
        }
    }
}

} // namespace lexigrove
