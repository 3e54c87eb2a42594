#include "record/saved_game.hpp"

#include "record/line_fields.hpp"

#include <algorithm>
#include <limits>
#include <vector>

namespace lexigrove
{

namespace
{

constexpr std::string_view savedGameLine = "LexiGrove game 1";
constexpr std::string_view drawNames[] = {"not-dealt", "going", "ended"};
constexpr std::string_view sortNames[] = {"no", "ascending", "descending"};
constexpr std::string_view promptNames[] = {"none", "your-move"};

constexpr int least16 = std::numeric_limits<std::int16_t>::min();

enum class Sorted { No, Ascending, Descending };

/// What a saved game keeps of things that otherwise follow from its words.
struct Kept {
    std::vector<int> wordScore; ///< score, bonus count and multiplier of the word being built, empty for none
    int hintsShown = 0;         ///< the entry of the statistics, written when they are shown
    std::vector<int> rows;      ///< of `WordsMade` in their order: the numbers of the words
    int currentRow = 0;
    Sorted sorted = Sorted::No;
};

/// Every field of a game in its order, for the writer and for the reader alike.
template <typename Fields, typename Game, typename KeptFields>
void visitFields(Fields& fields, Game& game, KeptFields& kept)
{
    using namespace field;
    auto& position = game.position;
    auto& state = position.state;
    fields.text("saved", game.date);
    fields.board("board", position.board);
    fields.text("user-dictionary", position.userDictionary);
    fields.hash("words", position.words);
    fields.choice("kind", state.kind, kindNames);
    fields.choice("against-computer", state.computerGame, yesNo);
    fields.choice("computer-plays", position.strategy, strategyNames);
    fields.choiceUnlessFirst("computer-knows", position.vocabulary, vocabularyNames);
    fields.number("score", state.yourScore, -mostPoints, mostPoints);
    fields.number("computer-score", state.compScore, -mostPoints, mostPoints);
    fields.choice("letters", state.letterDraw, drawNames);
    fields.number("tiles-left", state.tilesLeft, least16, most16);
    fields.choice("prompt", state.prompt, promptNames);
    fields.list("word-score", kept.wordScore, 0, mostPoints);
    fields.choice("hold", state.redTileHold, yesNo);
    fields.number("bonus-tiles", state.bonusTilesOnBoard, least16, most16);
    fields.number("red-tiles", state.redTilesOnBoard, least16, most16);
    fields.number("red-tiles-used", state.redTilesUsed, 0, most16);
    fields.number("red-tiles-made", state.redTilesMade, 0, most16);
    fields.number("pushes", state.pushes, 0, most16);
    fields.number("hints-used", state.hintsUsed, 0, most16);
    fields.number("ticks", state.tickCount, 0, most16);
    fields.number("pressure", state.pressure, -mostPoints, mostPoints);
    fields.number("last-pressure", state.lastPressure, -mostPoints, mostPoints);
    fields.number("red-threshold", position.redThreshold, least16, most16);
    fields.number("seconds-left", position.secondsLeft, least16, most16);
    fields.number("seconds-played", state.secondsPlayed, 0, mostPoints);
    fields.numbers("letter-counts", std::span(position.letterCounts), -1000, 1000);
    fields.text("pool", position.pool);
    fields.list("path", position.path, 1, BoardPosition::tileCount);
    fields.choice("entry-pending", position.entryPending, yesNo);
    fields.number("swap", position.swapTile, 0, BoardPosition::tileCount);
    fields.number("hints-shown", kept.hintsShown, 0, most16);
    fields.text("begun", state.begun);
    fields.text("start", state.start);
    fields.list("rows", kept.rows, 1, most16);
    fields.number("current-row", kept.currentRow, 0, most16);
    fields.choice("sorted", kept.sorted, sortNames);
    visitTurns(fields, state.turns);
}

/// What follows from the words of the game: statistics, the rows of the words made in the order kept, their number.
void deriveFromTurns(const Kept& kept, GameState& state)
{
    const int count = static_cast<int>(state.turns.size());
    for (const Turn& turn : state.turns) {
        const bool players = turn.maker == Maker::Player;
        state.statistics.recordWord(turn.word, players ? Statistics::playerBase : Statistics::computerBase);
        state.wordsMade += players ? 1 : 0;
    }
    state.statistics.setHintsUsed(kept.hintsShown);
    if (const auto& score = kept.wordScore; score.size() == 3)
        state.currScore = WordScore{score[0], score[1], static_cast<Colour>(score[2])};
    else if (!score.empty())
        throw PositionError("word-score: " + std::to_string(score.size()) + " numbers instead of 3");

    std::vector<int> sorted = kept.rows;
    std::sort(sorted.begin(), sorted.end());
    for (int i = 0; i < std::max(count, static_cast<int>(sorted.size())); ++i) {
        if (i >= count || i >= static_cast<int>(sorted.size()) || sorted[static_cast<std::size_t>(i)] != i + 1)
            throw PositionError("rows: they are not the numbers of the " + std::to_string(count) + " words");
    }
    std::vector<WordsRow> rows;
    for (const int number : kept.rows) {
        const Turn& turn = state.turns[static_cast<std::size_t>(number - 1)];
        rows.push_back({.number = number, .score = turn.score, .word = turn.word, .maker = turn.maker});
    }
    state.WordsMade.assign(std::move(rows));
    if (kept.currentRow >= state.WordsMade.Rows())
        throw PositionError("current-row: there are " + std::to_string(count) + " rows");
    state.WordsMade.setCurrent(kept.currentRow);
    constexpr const char* marks[] = {"", "A", "D"};
    state.WordsMade.Tag = marks[static_cast<std::size_t>(kept.sorted)];
}

} // namespace

std::string textOf(const SavedGame& game)
{
    const WordsGrid& grid = game.position.state.WordsMade;
    Kept kept;
    if (const auto& score = game.position.state.currScore)
        kept.wordScore = {score->score, score->bonusCount, static_cast<int>(score->best)};
    kept.hintsShown = game.position.state.statistics.number(Statistics::hintsUsed);
    for (int row = 1; row < grid.Rows(); ++row)
        kept.rows.push_back(grid.row(row).number);
    kept.currentRow = grid.Row();
    kept.sorted = grid.Tag == "A" ? Sorted::Ascending : grid.Tag == "D" ? Sorted::Descending : Sorted::No;
    LineWriter writer(savedGameLine);
    visitFields(writer, game, kept);
    return writer.finished();
}

SavedGame savedGameOf(std::string_view text)
{
    LineReader reader(text, savedGameLine);
    SavedGame game;
    Kept kept;
    visitFields(reader, game, kept);
    reader.expectEnd();
    deriveFromTurns(kept, game.position.state);
    reader.expectWritten(textOf(game));
    return game;
}

} // namespace lexigrove
