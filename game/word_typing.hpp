#pragma once

#include "game/board.hpp"
#include "game/selection.hpp"

#include <optional>
#include <vector>

namespace lexigrove
{

struct Game;

/// The path that spells the word so far and one letter more, typed on the keyboard: the path as it stands with a
/// touching tile, where one shows the letter; else another path over the board that spells the whole. Among the tiles
/// to choose from a bonus or red one comes first. Nothing when no path spells it.
std::optional<std::vector<int>> typedPath(const Board& board, const Selection& path, char letter);

/// Spells on with a letter by clicking the tiles of its `typedPath`. False, after a message on the status line, when
/// there is none; the path then stays.
bool spellOn(Game& game, char letter);

} // namespace lexigrove
