#pragma once

#include "dictionary/letter_tables.hpp"
#include "dictionary/word_list.hpp"
#include "dictionary/word_text.hpp"
#include "opponent/search_board.hpp"
#include "platform/ascii.hpp"

#include <array>
#include <cstdio>
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

    /// Lists 0 to 3.
    std::array<std::vector<std::string>, 4> fwlist;
    int bestScorePosition = 0;
    int bestLengthPosition = 0;

    void buildLetterIndex()
    {
        index_ = {};
        for (int tile = 1; tile <= 64; ++tile) {
            const int entry = letterCode(tile) - 64;
            if (!ascii::trimmed(letter(tile)).empty() && entry >= 1 && entry <= 64)
                index_[static_cast<std::size_t>(entry)] += std::to_string(tile) + ",";
        }
    }

    int traceWord(std::string_view given)
    {
        const std::string word = upperCase(given);
        const std::string entry = indexEntry(word);
        if (entry.empty())
            return 0;
        fwlist[0].clear();
        fwlist[1].clear();
        fwlist[2].clear();
        int result = 1;
        for (const int t : numbersIn(entry)) {
            for (const int n : board_.neighbours[static_cast<std::size_t>(t)]) {
                if (letter(t) + letter(n) == word.substr(0, 2)) {
                    fwlist[0].push_back(twoDigits(t).append(twoDigits(n)).append(letter(t)).append(letter(n)));
                    result = 2;
                }
            }
        }
        for (std::size_t k = 3; k <= word.size(); ++k) {
            for (const std::string& item : fwlist[0]) {
                const std::string digits = item.substr(0, 2 * (k - 1));
                const std::string letters = item.substr(item.size() - (k - 1));
                const int last = std::stoi(digits.substr(digits.size() - 2));
                for (const int m : board_.neighbours[static_cast<std::size_t>(last)]) {
                    const std::string newLetters = letters + letter(m);
                    if (digits.find(twoDigits(m)) == std::string::npos && newLetters == word.substr(0, k)) {
                        fwlist[1].push_back(std::string(digits).append(twoDigits(m)).append(newLetters));
                        result = static_cast<int>(k);
                    }
                }
            }
            if (fwlist[1].empty())
                return result;
            fwlist[0] = fwlist[1];
            fwlist[1].clear();
        }
        return result;
    }

    void sweep(const WordList& words)
    {
        buildLetterIndex();
        fwlist[3].clear();
        std::string previous;
        int previousMatched = -1;
        int bestScore = 0;
        int bestLength = 0;
        bestScorePosition = 0;
        bestLengthPosition = 0;
        for (int i = 1; i <= words.count(); ++i) {
            const std::string w(words.entry(i));
            const int length = static_cast<int>(w.size());
            if (length < 2)
                continue;
            const int score = letterSum(w);
            if (sharesDeadPrefix(w, previous, previousMatched))
                continue;
            previousMatched = traceWord(w);
            previous = w;
            if (previousMatched != length)
                continue;
            fwlist[3].push_back(fourDigits(score) + " " + fwlist[0].front());
            if (score > bestScore) {
                bestScore = score;
                bestScorePosition = static_cast<int>(fwlist[3].size());
            }
            if (length > bestLength) {
                bestLength = length;
                bestLengthPosition = static_cast<int>(fwlist[3].size());
            }
        }
    }

private:
    static bool sharesDeadPrefix(const std::string& w, const std::string& previous, int previousMatched)
    {
        for (std::size_t k = 1; k <= w.size(); ++k) {
            if (previousMatched == static_cast<int>(k) - 1 && w.substr(0, k) == previous.substr(0, k))
                return true;
        }
        return false;
    }

    [[nodiscard]] int letterCode(int tile) const
    {
        return static_cast<unsigned char>(board_.letters[static_cast<std::size_t>(tile)]);
    }

    /// The letter as a text; empty where none is to be seen.
    [[nodiscard]] std::string letter(int tile) const
    {
        const char letter = board_.letters[static_cast<std::size_t>(tile)];
        return letter == 0 ? std::string() : std::string(1, letter);
    }

    [[nodiscard]] std::string indexEntry(const std::string& word) const
    {
        const int entry = word.empty() ? 0 : static_cast<unsigned char>(word.front()) - 64;
        return entry >= 1 && entry <= 64 ? index_[static_cast<std::size_t>(entry)] : std::string();
    }

    static std::vector<int> numbersIn(const std::string& entry)
    {
        std::vector<int> numbers;
        for (std::size_t start = 0; start < entry.size(); start = entry.find(',', start) + 1)
            numbers.push_back(std::stoi(entry.substr(start)));
        return numbers;
    }

    static std::string formatted(const char* format, int number)
    {
        std::array<char, 16> text{};
        (void)std::snprintf(text.data(), text.size(), format, number);
        return text.data();
    }
    static std::string twoDigits(int number) { return formatted("%02d", number); }
    static std::string fourDigits(int number) { return formatted("%04d", number); }

    const SearchBoard& board_;
    std::array<std::string, 65> index_;
};

} // namespace lexigrove::test
