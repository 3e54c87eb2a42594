#include "record/review.hpp"

#include "dictionary/letter_tables.hpp"
#include "opponent/board_search.hpp"

#include <algorithm>
#include <cstdint>
#include <tuple>

namespace lexigrove
{

namespace
{

SearchBoard searchBoardOf(const BoardPosition& position)
{
    SearchBoard board;
    for (std::size_t tile = 1; tile < position.cells.size(); ++tile) {
        const char letter = position.cells[tile].letter;
        if (letter != BoardPosition::none && letter != BoardPosition::blank)
            board.letters[tile] = letter;
    }
    const NeighbourTable table =
        position.arrangement == Arrangement::Square ? squareNeighbours() : staggeredNeighbours();
    for (std::size_t tile = 1; tile < table.size(); ++tile) {
        for (const std::uint8_t neighbour : table[tile]) {
            if (position.cells[neighbour].letter != BoardPosition::none)
                board.neighbours[tile].append(neighbour);
        }
    }
    return board;
}

/// What a tile multiplies a word by. A red tile counts nothing.
int multiplierOf(const BoardPosition::Cell& cell)
{
    return multiplier::isBonus(cell.multiplier) ? static_cast<int>(cell.multiplier) : 1;
}

/// Finds the path of a word with the best multiplier on it, as a player may click it: over touching tiles, none twice.
class BestPath
{
public:
    BestPath(const BoardPosition& position, const SearchBoard& board) : position_(position), board_(board)
    {
        for (const BoardPosition::Cell& cell : position.cells)
            highest_ = std::max(highest_, multiplierOf(cell));
    }

    /// The highest multiplier on the board: no path has a better one.
    [[nodiscard]] int highest() const { return highest_; }

    /// The word with its best path, which there is. Begins with a path that is known.
    FoundWord find(const std::string& word, std::span<const std::uint8_t> known)
    {
        word_ = word;
        path_.clear();
        best_.assign(known.begin(), known.end());
        bestMultiplier_ = 1;
        for (const std::uint8_t tile : known)
            bestMultiplier_ = std::max(bestMultiplier_, multiplierAt(tile));
        for (std::uint8_t tile = 1; tile <= SearchBoard::tileCount; ++tile)
            visit(tile, 0, 1);
        return {word, {best_.begin(), best_.end()}, bestMultiplier_ * letterSum(word)};
    }

private:
    [[nodiscard]] int multiplierAt(std::uint8_t tile) const { return multiplierOf(position_.cells[tile]); }

    void visit(std::uint8_t tile, std::uint64_t used, int multiplier)
    {
        const std::uint64_t bit = std::uint64_t{1} << (tile - 1);
        if (bestMultiplier_ == highest_ || board_.letters[tile] != word_[path_.size()] || (used & bit) != 0)
            return;
        path_.push_back(tile);
        multiplier = std::max(multiplier, multiplierAt(tile));
        if (path_.size() < word_.size()) {
            for (const std::uint8_t neighbour : board_.neighbours[tile])
                visit(neighbour, used | bit, multiplier);
        } else if (multiplier > bestMultiplier_) {
            bestMultiplier_ = multiplier;
            best_ = path_;
        }
        path_.pop_back();
    }

    const BoardPosition& position_;
    const SearchBoard& board_;
    int highest_ = 1;
    std::string word_;
    std::vector<std::uint8_t> path_;
    std::vector<std::uint8_t> best_;
    int bestMultiplier_ = 1;
};

WordsThere wordsOn(const BoardPosition& position, const WordList& words, BoardSearch& search)
{
    const SearchBoard board = searchBoardOf(position);
    const CandidateList& candidates = search.sweep(board, words);
    BestPath paths(position, board);
    const auto found = [&](int place) {
        return place == 0 ? FoundWord{} : paths.find(candidates.word(place), candidates.path(place));
    };
    WordsThere there{candidates.count(), {}, found(candidates.bestLengthPosition())};

    // The word of the highest letter sum sets the mark: only words that a bonus could lift that far are traced.
    const int mark = found(candidates.bestScorePosition()).score;
    for (int place = 1; place <= candidates.count(); ++place) {
        const int most = candidates.score(place) * paths.highest();
        if (most < mark || most <= there.best.score)
            continue;
        if (FoundWord word = found(place); word.score > there.best.score)
            there.best = std::move(word);
    }
    return there;
}

} // namespace

const WordList& Review::wordsOf(ReviewList list) const
{
    if (list == ReviewList::LevelThree)
        return lists_.level(3);
    return lists_.own(record_.start.level, record_.userDictionary);
}

bool Review::hasWords(ReviewList list) const
{
    return wordsOf(list).count() > 0;
}

const WordsThere& Review::there(ReviewList list, int turn) const
{
    if (record_.start.level == 3)
        list = ReviewList::Own;
    std::vector<WordsThere>& known = there_[static_cast<std::size_t>(list)];
    if (known.empty()) {
        BoardSearch search; // prepares the list for the first turn, and serves all
        for (const Turn& made : record_.turns) {
            known.push_back(wordsOn(made.before, wordsOf(list), search));
            if (made.score > known.back().best.score)
                known.back().best = {made.word, made.path, made.score};
        }
    }
    return known.at(static_cast<std::size_t>(turn) - 1);
}

int Review::taken() const
{
    int points = 0;
    for (const Turn& made : record_.turns)
        points += made.maker == Maker::Player ? made.score : 0;
    return points;
}

int Review::possible(ReviewList list) const
{
    int points = taken();
    for (int number = 1; number <= turnCount(); ++number)
        points += leftBehind(list, number);
    return points;
}

int Review::leftBehind(ReviewList list, int number) const
{
    const Turn& made = turn(number);
    return made.maker == Maker::Player ? there(list, number).best.score - made.score : 0;
}

std::vector<int> Review::mostLeftBehind(ReviewList list) const
{
    std::vector<int> turns;
    for (int number = 1; number <= turnCount(); ++number) {
        if (leftBehind(list, number) > 0)
            turns.push_back(number);
    }
    std::stable_sort(turns.begin(), turns.end(),
                     [&](int a, int b) { return leftBehind(list, a) > leftBehind(list, b); });
    constexpr std::size_t shown = 3;
    turns.resize(std::min(turns.size(), shown));
    return turns;
}

std::optional<int> Review::rarest() const
{
    const auto rarity = [this](const std::string& word) {
        int holding = 0;
        for (int level = 1; level <= 3; ++level)
            holding += lists_.level(level).findWord(word) != -1 ? 1 : 0;
        return std::tuple(-holding, letterSum(word), word.size());
    };
    std::optional<int> rarest;
    for (int number = 1; number <= turnCount(); ++number) {
        if (turn(number).maker == Maker::Player && (!rarest || rarity(turn(number).word) > rarity(turn(*rarest).word)))
            rarest = number;
    }
    return rarest;
}

} // namespace lexigrove
