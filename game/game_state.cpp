#include "game/game_state.hpp"

#include <cstdint>
#include <limits>
#include <utility>

namespace lexigrove
{

void GameState::resetForNewGame()
{
    GameState fresh;
    fresh.developerMode = developerMode;
    fresh.kind = kind;
    fresh.computerGame = computerGame;
    fresh.redTileHold = redTileHold;
    fresh.WordsMade = WordsMade; // with its sort mark
    fresh.WordsMade.clear();
    *this = std::move(fresh);
}

std::string GameState::tilesLeftText() const
{
    switch (letterDraw) {
    case LetterDraw::NotDealt:
        return {};
    case LetterDraw::Ended:
        return "NONE";
    case LetterDraw::Going:
        break;
    }
    return std::to_string(tilesLeft);
}

std::string GameState::currScoreText() const
{
    return currScore ? std::to_string(currScore->score) : "";
}

void countUp(int& counter)
{
    if (counter < std::numeric_limits<std::int16_t>::max())
        ++counter;
}

} // namespace lexigrove
