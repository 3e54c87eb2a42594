#pragma once

#include "game/position.hpp"

#include <string>
#include <string_view>

namespace lexigrove
{

/// A game that was left in the middle, as a file keeps it.
struct SavedGame {
    std::string date; ///< of saving, in the system's short forms; only shown
    Position position;

    friend bool operator==(const SavedGame&, const SavedGame&) = default;
};

/// The text of a saved game: "LexiGrove game 1" and then a line a field, "name value", each ended by a line feed.
/// docs/position.md describes it. Developer mode is not kept.
std::string textOf(const SavedGame& game);

/// The saved game of such a text. Throws PositionError, which names the line, when the text is of another kind or a
/// later version, or when a line is missing, unknown, out of order or out of range.
SavedGame savedGameOf(std::string_view text);

} // namespace lexigrove
