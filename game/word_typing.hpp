#pragma once

#include "game/board.hpp"
#include "game/selection.hpp"

#include <optional>
#include <vector>

namespace lexigrove
{

struct Game;

/// The path that spells the word so far and one more letter, typed on the keyboard: the current path with a touching
/// tile that shows the letter or, failing that, another path that spells the whole. Bonus and red tiles are preferred.
/// Nothing if no path spells it.
std::optional<std::vector<int>> typedPath(const Board& board, const Selection& path, char letter);

/// The next path that spells the word so far, in an order that comes back to the first one. Nothing without another.
std::optional<std::vector<int>> otherPath(const Board& board, const Selection& path);

/// Clicks the tiles of a path, of which the word's first ones may be picked already.
void pickPath(Selection& selection, const std::vector<int>& path);

/// Adds a letter to the word by clicking the tiles of its `typedPath`. If there is none, leaves the path alone and
/// returns false, after a message on the status line.
bool extendWord(Game& game, char letter);

} // namespace lexigrove
