#pragma once

#include "game/board_position.hpp"
#include "record/day.hpp"
#include "record/game_record.hpp"

#include <string>

namespace lexigrove
{

/// The board of a day for a level, 1 to 3, or 0 for a user dictionary, which plays at level 2: the same letters at
/// every level, with every compiler. docs/daily.md writes out how they are drawn, so that another program can make the
/// same.
BoardPosition boardOfTheDay(Day day, int level);

/// A daily game in four lines for the clipboard, which give no word away: date and level, points and words, the longest
/// length, a coloured square a word for its length. UTF-8, unlike other texts below the windows.
std::string dailySummary(const GameRecord& record);

} // namespace lexigrove
