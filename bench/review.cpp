// Looking back on a game of 60 turns on full boards with four bonus tiles, against the bare sweeps of these boards: how
// long opening the review takes, with nothing read before, for a game of level 3.

#include "bench/level_three.hpp"
#include "opponent/board_search.hpp"
#include "record/daily.hpp"
#include "record/review_texts.hpp"

#include <filesystem>

namespace lexigrove
{

namespace
{

constexpr int turnCount = 60;

GameRecord gameOnFullBoards()
{
    GameRecord record{.begun = "2026-11-23 04:15", .start = boardOfTheDay(Day{}, 3)};
    for (int i = 0; i < turnCount; ++i) {
        Turn turn{.before = boardOfTheDay(Day(std::chrono::days(20'000 + i)), 3),
                  .word = "STEAM",
                  .path = {1, 2, 3, 4, 5},
                  .score = 7};
        for (const unsigned tile : {10U, 28U, 45U, 52U})
            turn.before.cells[tile].multiplier = static_cast<Colour>(2 + (tile + static_cast<unsigned>(i)) % 3);
        record.turns.push_back(turn);
    }
    return record;
}

SearchBoard plainBoardOf(const BoardPosition& position)
{
    SearchBoard board;
    board.neighbours = position.arrangement == Arrangement::Square ? squareNeighbours() : staggeredNeighbours();
    for (std::size_t tile = 1; tile < board.letters.size(); ++tile)
        board.letters[tile] = position.cells[tile].letter == BoardPosition::none ? '\0' : position.cells[tile].letter;
    return board;
}

std::size_t openReview(const std::string& folder, const std::string& text)
{
    LevelLists lists(folder);
    const Review review(gameRecordOf(text), lists);
    const ReviewList list = ReviewList::Own;
    return rarestText(review).size() + summaryText(review, list).size() + review.mostLeftBehind(list).size();
}

} // namespace

} // namespace lexigrove

/// The folder with the three word lists may be named on the command line; without it the build.
int main(int argumentCount, char** arguments)
{
    using namespace lexigrove;
    const std::string built = (std::filesystem::path(arguments[0]).parent_path() / "../share/lexigrove/").string();
    const std::string folder = argumentCount > 1 ? arguments[1] + std::string("/") : built;
    const GameRecord record = gameOnFullBoards();
    const std::string text = textOf(record);
    std::printf("A record of %d turns: %zu bytes\n", turnCount, text.size());

    LevelLists lists(folder);
    if (lists.level(3).count() == 0) {
        std::fprintf(stderr, "No word lists in %s\n", folder.c_str());
        return 1;
    }
    std::size_t sum = 0;
    const bench::Medians medians = bench::measure(
        21, [&] { sum += openReview(folder, text); },
        [&] {
            BoardSearch search;
            for (const Turn& turn : record.turns)
                sum += static_cast<std::size_t>(search.sweep(plainBoardOf(turn.before), lists.level(3)).count());
        });
    std::printf("Goal of opening: below 100 ms\n");
    bench::print("Opening the review", "preparing the list and the bare sweeps", medians, 2.0);
    return sum == 0 ? 1 : 0;
}
