// Keeping the game in its file after an input, against writing the same bytes alone: what the position costs. A game of
// twenty words, in which a tile is picked and taken back.

#include "bench/level_three.hpp"
#include "tests/support/random_play.hpp"

namespace lexigrove
{

namespace
{

constexpr const char* savedGame = "LexigroveGame.txt";
constexpr int saves = 50; ///< in one measurement

std::vector<int> playOn(PlayedGame& played, int words)
{
    std::mt19937 random(718);
    std::vector<int> path;
    for (int word = 0; word < words; ++word) {
        path = anyWord(played, random);
        played.click(path);
        played.flow.perform(Command::EnterWord);
        for (int col = 1; col <= Board::columns; ++col)
            played.flow.drop(col);
    }
    return anyWord(played, random);
}

} // namespace

} // namespace lexigrove

int main(int argumentCount, char** arguments)
{
    using namespace lexigrove;
    PlayedGame played(bench::levelThreeList(argumentCount, arguments));
    played.start(Arrangement::Square);
    const std::vector<int> path = playOn(played, 20);
    played.flow.saveIfChanged();
    const std::string text = played.folder.read(savedGame);
    std::printf("A game of %zu words: %zu bytes\n", played.state.turns.size(), text.size());
    if (path.empty() || text.empty())
        return 1;

    const bench::Medians medians = bench::measure(
        21,
        [&] {
            for (int i = 0; i < saves; ++i) {
                played.click({path.front()});
                played.flow.saveIfChanged();
            }
        },
        [&] {
            for (int i = 0; i < saves; ++i)
                replaceFile(played.folder.file("Copy.txt"), text, Durability::Written);
        });
    std::printf("Goal of one save: below 5 ms\n");
    bench::print("50 saves", "50 bare writes of the same bytes", medians, 3.0);
    return 0;
}
