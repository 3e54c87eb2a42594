#pragma once

#include "game/board_position.hpp"
#include "game/game_state.hpp"
#include "game/turn.hpp"
#include "settings/game_settings.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace lexigrove
{

struct Position;

/// How a game came to its end.
enum class GameEnd {
    Lost,         ///< a red tile was pushed out
    ClockExpired, ///< the time of a game against the computer was over
    NewGame,      ///< the player began another one
    Left,         ///< the player left the program
    NoWordLeft,   ///< no word was left on the board, and no letter to come
};

/// A game that is over, as the past games keep it.
struct GameRecord {
    std::string begun = {};          ///< local date and time of its start, "2026-11-23 04:15"
    std::string userDictionary = {}; ///< the file of dictionary 0, empty for a level; without control characters
    GameKind kind = GameKind::Normal;
    bool computerGame = false;
    Strategy strategy = Strategy::HighestScore; ///< of the computer
    Vocabulary vocabulary = Vocabulary::Every;  ///< of the computer
    int yourScore = 0;
    int compScore = 0;
    int secondsPlayed = 0;
    GameEnd end = GameEnd::Left;
    BoardPosition start = {};     ///< also the arrangement and the level of the game
    std::vector<Turn> turns = {}; ///< the first one first
    int hintsUsed = 0;
    int redTilesMade = 0;
    int pushes = 0;

    friend bool operator==(const GameRecord&, const GameRecord&) = default;
};

/// The record of a game as it stands. Throws PositionError when the board of its start cannot be read.
GameRecord recordOf(const Position& game, GameEnd end);

/// The readable text of a record, "LexiGrove record 1" and then a line a field; docs/record.md describes it.
std::string textOf(const GameRecord& record);

/// The size of text, in bytes, that is read: a game of 60 words takes about 20,000.
inline constexpr std::size_t largestRecord = std::size_t{1} << 20;

/// The record of such a text. Throws PositionError, which names the line and what is wrong with it, when the text is of
/// another kind, of another version, too large, or differs in any byte from what `textOf` writes: its last line
/// is a check of the others.
GameRecord gameRecordOf(std::string_view text);

} // namespace lexigrove
