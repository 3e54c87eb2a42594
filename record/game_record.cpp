#include "record/game_record.hpp"

#include "game/position.hpp"
#include "record/day.hpp"
#include "record/line_fields.hpp"

#include <algorithm>
#include <cstdint>

namespace lexigrove
{

namespace
{

constexpr std::string_view recordLine = "LexiGrove record 1";
constexpr std::string_view endNames[] = {"lost", "clock", "new-game", "left", "no-word"};

/// Every field of a record in its order, for the writer and for the reader alike.
template <typename Fields, typename Record>
void visitFields(Fields& fields, Record& record)
{
    using namespace field;
    fields.text("begun", record.begun);
    fields.board("start", record.start);
    fields.text("user-dictionary", record.userDictionary);
    fields.choice("kind", record.kind, kindNames);
    fields.choice("against-computer", record.computerGame, yesNo);
    fields.choice("computer-plays", record.strategy, strategyNames);
    fields.choiceUnlessFirst("computer-knows", record.vocabulary, vocabularyNames);
    fields.number("score", record.yourScore, -mostPoints, mostPoints);
    fields.number("computer-score", record.compScore, -mostPoints, mostPoints);
    fields.number("seconds-played", record.secondsPlayed, 0, mostPoints);
    fields.choice("end", record.end, endNames);
    fields.number("hints-used", record.hintsUsed, 0, most16);
    fields.number("red-tiles-made", record.redTilesMade, 0, most16);
    fields.number("pushes", record.pushes, 0, most16);
    visitTurns(fields, record.turns);
}

bool isMoment(std::string_view text)
{
    if (text.size() != 16 || !dayOf(text.substr(0, 10)) || text[10] != ' ' || text[13] != ':')
        return false;
    const auto below = [&](std::size_t place, std::string_view most) {
        const std::string_view part = text.substr(place, 2);
        return std::all_of(part.begin(), part.end(), [](char c) { return c >= '0' && c <= '9'; }) && part <= most;
    };
    return below(11, "23") && below(14, "59");
}

} // namespace

GameRecord recordOf(const Position& game, GameEnd end)
{
    const GameState& state = game.state;
    return {.begun = state.begun,
            .userDictionary = game.userDictionary,
            .kind = state.kind,
            .computerGame = state.computerGame,
            .strategy = game.strategy,
            .vocabulary = game.vocabulary,
            .yourScore = state.yourScore,
            .compScore = state.compScore,
            .secondsPlayed = state.secondsPlayed,
            .end = end,
            .start = boardPositionOf(state.start),
            .turns = state.turns,
            .hintsUsed = state.hintsUsed,
            .redTilesMade = state.redTilesMade,
            .pushes = state.pushes};
}

std::string textOf(const GameRecord& record)
{
    LineWriter writer(recordLine);
    visitFields(writer, record);
    return writer.finished();
}

GameRecord gameRecordOf(std::string_view text)
{
    if (text.size() > largestRecord)
        throw PositionError("line 1: a text of " + std::to_string(text.size()) + " bytes is no record");
    LineReader reader(text, recordLine);
    GameRecord record;
    visitFields(reader, record);
    reader.expectEnd();
    if (!isMoment(record.begun))
        throw PositionError("line 2: '" + record.begun + "' is no date and time");
    reader.expectWritten(textOf(record));
    return record;
}

} // namespace lexigrove
