#include "opponent/candidate_list.hpp"

#include <algorithm>

namespace lexigrove
{

namespace
{

void appendDigits(std::string& text, int number, int digits)
{
    const std::string decimal = std::to_string(number);
    text.append(static_cast<std::size_t>(std::max(0, digits - static_cast<int>(decimal.size()))), '0');
    text += decimal;
}

} // namespace

CandidateList::CandidateList()
{
    candidates_.reserve(4'096);
    tiles_.reserve(32'768);
}

std::string CandidateList::word(int position) const
{
    std::string result;
    for (const std::uint8_t tile : path(position))
        result += letters_[tile];
    return result;
}

std::span<const std::uint8_t> CandidateList::path(int position) const
{
    const Candidate& candidate = at(position);
    return {tiles_.data() + candidate.firstTile, candidate.length};
}

std::string CandidateList::item(int position) const
{
    std::string result;
    appendDigits(result, score(position), 4);
    result += ' ';
    result += pathItem(path(position), letters_);
    return result;
}

void CandidateList::clear(const SearchBoard& board)
{
    candidates_.clear();
    tiles_.clear();
    letters_ = board.letters;
    bestScorePosition_ = 0;
    bestLengthPosition_ = 0;
}

std::span<std::uint8_t> CandidateList::add(int score, int length)
{
    const auto firstTile = static_cast<std::uint32_t>(tiles_.size());
    candidates_.push_back({firstTile, static_cast<std::int16_t>(score), static_cast<std::uint8_t>(length)});
    if (score > (bestScorePosition_ == 0 ? 0 : this->score(bestScorePosition_)))
        bestScorePosition_ = count();
    if (bestLengthPosition_ == 0 || length > wordLength(bestLengthPosition_))
        bestLengthPosition_ = count();
    tiles_.resize(tiles_.size() + static_cast<std::size_t>(length));
    return {tiles_.data() + firstTile, static_cast<std::size_t>(length)};
}

std::string pathItem(std::span<const std::uint8_t> path, const std::array<char, SearchBoard::tileCount + 1>& letters)
{
    std::string result;
    for (const std::uint8_t tile : path)
        appendDigits(result, tile, 2);
    for (const std::uint8_t tile : path)
        result += letters[tile];
    return result;
}

} // namespace lexigrove
