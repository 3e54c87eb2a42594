#pragma once

#include "opponent/search_board.hpp"

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace lexigrove
{

/// The words that a sweep found, each with its letter score and its first path, in dictionary order. Positions count
/// from 1. The list does not change with the board.
class CandidateList
{
public:
    /// Reserves room for the words of any board of English letters: the most on 3,000 random boards were 2,200 with
    /// 11,500 letters.
    CandidateList();

    [[nodiscard]] int count() const { return static_cast<int>(candidates_.size()); }

    /// The sum of the word's letter values; tile multipliers do not count.
    [[nodiscard]] int score(int position) const { return at(position).score; }
    [[nodiscard]] int wordLength(int position) const { return at(position).length; }
    /// The word as its tiles spell it.
    [[nodiscard]] std::string word(int position) const;
    /// The tile numbers of the word's path, in order. The span is valid until the list changes.
    [[nodiscard]] std::span<const std::uint8_t> path(int position) const;
    /// The candidate as one text: the score in four digits, a blank and the path item ("0005 051213CAT").
    [[nodiscard]] std::string item(int position) const;

    /// The first candidate with the highest score; 0 if none scores above 0.
    [[nodiscard]] int bestScorePosition() const { return bestScorePosition_; }
    /// The first of the longest candidates; 0 if there is none.
    [[nodiscard]] int bestLengthPosition() const { return bestLengthPosition_; }

    /// Clears the list for the words of this board and keeps its memory.
    void clear(const SearchBoard& board);

    /// Appends a word of `length` letters (2 to 64) and returns the place for its path's tile numbers, to be filled in
    /// at once.
    std::span<std::uint8_t> add(int score, int length);

private:
    struct Candidate {
        std::uint32_t firstTile = 0; ///< where its path begins in tiles_
        std::int16_t score = 0;
        std::uint8_t length = 0;
    };

    [[nodiscard]] const Candidate& at(int position) const
    {
        return candidates_.at(static_cast<std::size_t>(position) - 1);
    }

    std::vector<Candidate> candidates_;
    std::vector<std::uint8_t> tiles_;
    std::array<char, SearchBoard::tileCount + 1> letters_{};
    int bestScorePosition_ = 0;
    int bestLengthPosition_ = 0;
};

/// A path as one text: every tile number in two digits, then the letters that the tiles spell ("051213CAT").
std::string pathItem(std::span<const std::uint8_t> path, const std::array<char, SearchBoard::tileCount + 1>& letters);

} // namespace lexigrove
