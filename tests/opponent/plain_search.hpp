#pragma once

#include "dictionary/letter_tables.hpp"
#include "dictionary/word_list.hpp"
#include "dictionary/word_text.hpp"
#include "opponent/search_board.hpp"
#include "platform/ascii.hpp"

#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace lexigrove::test
{

/// The board word search as a player would describe it, word by word and with texts for paths: what the fast search is
/// measured against, in its answers and in its speed.
class PlainSearch
{
public:
    explicit PlainSearch(const SearchBoard& board) : board_(board) {}

    std::vector<std::string> traced; ///< the paths of the word traced last
    std::vector<std::string> found;  ///< of the last sweep
    int bestScorePosition = 0;
    int bestLengthPosition = 0;

    int traceWord(std::string_view given)
    {
        const std::string word = upperCase(given);
        std::vector<std::string> paths; // two digits a tile
        for (int tile = 1; tile <= 64; ++tile) {
            const int code = static_cast<unsigned char>(letter(tile));
            if (!word.empty() && letter(tile) == word[0] && code > 64 && code <= 128)
                paths.push_back(digits(tile));
        }
        int matched = paths.empty() ? 0 : 1;
        for (std::size_t k = 1; matched == static_cast<int>(k) && k < word.size(); ++k) {
            std::vector<std::string> longer;
            for (const std::string& path : paths) {
                const auto last = static_cast<std::size_t>(std::stoi(path.substr(path.size() - 2)));
                for (const int next : board_.neighbours[last]) {
                    const bool fits = letter(next) == word[k] && letter(next) != 0;
                    if (fits && path.find(digits(next)) == std::string::npos)
                        longer.push_back(path + digits(next));
                }
            }
            if (longer.empty())
                break;
            paths = longer;
            ++matched;
        }
        traced.clear();
        for (const std::string& path : paths)
            if (matched > 1)
                traced.push_back(path + word.substr(0, static_cast<std::size_t>(matched)));
        return matched;
    }

    void sweep(const WordList& words)
    {
        found.clear();
        std::string previous;
        std::size_t shared = 1; // letters in common with the word before that make a word untraceable
        int bestScore = 0;
        std::size_t bestLength = 0;
        bestScorePosition = 0;
        bestLengthPosition = 0;
        for (int i = 1; i <= words.count(); ++i) {
            const std::string word(words.entry(i));
            if (word.size() < 2 || (word.size() >= shared && word.substr(0, shared) == previous.substr(0, shared)))
                continue;
            const int matched = traceWord(word);
            shared = static_cast<std::size_t>(matched) + 1;
            previous = word;
            if (matched != static_cast<int>(word.size()))
                continue;
            const int score = letterSum(word);
            found.push_back(digits(score / 100) + digits(score % 100) + " " + traced.front());
            if (score > bestScore)
                bestScorePosition = static_cast<int>(found.size());
            if (word.size() > bestLength)
                bestLengthPosition = static_cast<int>(found.size());
            bestScore = std::max(score, bestScore);
            bestLength = std::max(word.size(), bestLength);
        }
    }

private:
    [[nodiscard]] char letter(int tile) const { return board_.letters[static_cast<std::size_t>(tile)]; }
    static std::string digits(int number)
    {
        return {static_cast<char>('0' + number / 10), static_cast<char>('0' + number % 10)};
    }

    const SearchBoard& board_;
};

/// A board of random letters in which the top `emptyCells` rows of each column, a number drawn up to the one given, are
/// empty.
inline SearchBoard randomBoard(std::mt19937& random, bool square, std::string_view letters, unsigned mostEmptyCells)
{
    SearchBoard board;
    const NeighbourTable table = square ? squareNeighbours() : staggeredNeighbours();
    for (unsigned col = 0; col < 8; ++col) {
        const unsigned height = square || col % 2 == 1 ? 8 : 7;
        const unsigned empty = mostEmptyCells == 0 ? 0 : static_cast<unsigned>(random() % (mostEmptyCells + 1));
        for (unsigned row = empty; row < height; ++row)
            board.letters[col * 8 + row + 1] = letters[random() % letters.size()];
    }
    for (std::size_t tile = 1; tile < table.size(); ++tile) {
        for (const std::uint8_t neighbour : table[tile]) {
            if (board.letters[tile] != 0 && board.letters[neighbour] != 0)
                board.neighbours[tile].append(neighbour);
        }
    }
    return board;
}

} // namespace lexigrove::test
