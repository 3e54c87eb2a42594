#include "opponent/board_search.hpp"

#include "dictionary/letter_tables.hpp"
#include "dictionary/word_text.hpp"

#include <bit>

namespace lexigrove
{

TracedWord BoardSearch::traceWord(const SearchBoard& board, std::string_view word)
{
    TracedWord traced;
    const std::string upper = upperCase(word);
    board_.prepare(board);
    Frontier paths = upper.empty() ? Frontier{} : board_.start(upper.front());
    if (paths.empty())
        return traced;
    traced.matchedLength = 1;
    for (std::size_t i = 1; i < upper.size(); ++i) {
        const Frontier longer = board_.extend(paths, upper[i]);
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

const CandidateList& BoardSearch::sweep(const SearchBoard& board, const WordList& words,
                                        const std::function<void()>& meanwhile)
{
    meanwhile_ = meanwhile;
    pathsSeen_ = 0;
    if (!words_.isCopyOf(words)) {
        trie_.build(words);
        words_ = words;
    }
    board_.prepare(board);
    candidates_.clear(board);
    for (WordTrie::Node node = 0; node != trie_.firstLetterCount(); ++node) {
        const char letter = trie_.letter(node);
        const Frontier paths = board_.start(upperCase(letter));
        visitChildren(node, paths, 1, letterValue(letter));
    }
    return candidates_;
}

Frontier BoardSearch::extend(const Frontier& paths, char letter)
{
    constexpr std::size_t many = std::size_t{1} << 22; // some 50 ms of work; a whole sweep of English words sees less
    pathsSeen_ += paths.end - paths.begin;
    if (pathsSeen_ > many) {
        pathsSeen_ = 0;
        if (meanwhile_)
            meanwhile_();
    }
    return board_.extend(paths, letter);
}

/// Continues from the paths that spell a node to those children whose letter is next to the end of a path.
void BoardSearch::visitChildren(WordTrie::Node parent, const Frontier& paths, int length, int score)
{
    const auto visit = [&](WordTrie::Node node, char letter, int letterScore) {
        const LetterSet below = trie_.childLetters(node);
        const Frontier longer = extend(paths, letter);
        if (longer.empty())
            return;
        if (trie_.endsWord(node))
            board_.copyPath(longer.begin, candidates_.add(score + letterScore, length + 1));
        if ((below & (longer.next | otherCharacters)) != 0)
            visitChildren(node, longer, length + 1, score + letterScore);
    };
    const LetterSet letters = trie_.childLetters(parent);
    const WordTrie::Node first = trie_.childrenBegin(parent);
    if ((letters & otherCharacters) != 0) {
        for (WordTrie::Node node = first; node != trie_.childrenEnd(parent); ++node)
            visit(node, upperCase(trie_.letter(node)), letterValue(trie_.letter(node)));
        return;
    }
    for (LetterSet hits = letters & paths.next; hits != 0; hits &= hits - 1) {
        const int letterNumber = std::countr_zero(hits);
        const LetterSet before = letters & ((LetterSet{1} << letterNumber) - 1);
        const char letter = static_cast<char>('A' - 1 + letterNumber);
        visit(first + countOf(before), letter, letterValue(letter));
    }
}

} // namespace lexigrove
